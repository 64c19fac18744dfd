#include "host/PrintRows.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <utility>

#include "host/SettingsDocument.h"
#include "host/Terminal.h"
#include "tables/CellCodecs.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::host {

using namespace ModPrnGen;

Text RawText(const Row& row, TextView column) { return ToText(row.Value(column)); }
Text LineText(const Row& row, TextView column) { return OneLine(RawText(row, column)); }
bool Flag(const Row& row, TextView column) { return FlagFromCell(RawText(row, column)); }
int Number(const Row& row, TextView column) { return ToInteger(row.Value(column)); }
Text Digits(int number) { return ToText(std::int32_t{number}); }

Text FirstText(const Row& row, std::initializer_list<TextView> columns) {
  for (const TextView column : columns) {
    if (Text text = LineText(row, column); !text.empty()) return text;
  }
  return {};
}

Text OwnerName(const Row& row) { return FirstText(row, {u"IOBJTXT", u"IOBJNM"}); }
Text AttributeName(const Row& row) { return FirstText(row, {u"ATTRITXT", u"ATTRINM"}); }
Text ElementName(const Row& row) { return FirstText(row, {u"CHAVLTXT", u"CHAVL"}); }

Text Joined(const std::vector<Text>& parts, TextView separator) {
  Text joined;
  for (const Text& part : parts) {
    if (part.empty()) continue;
    if (!joined.empty()) joined += separator;
    joined += part;
  }
  return joined;
}

bool IsPrinted(const Row& characteristic) { return AxisFromCell(RawText(characteristic, u"AXIS")); }

Text PageLimit(const Row& general) {
  const Text pages = LineText(general, u"MAX_PAGES");
  return pages == u"0" ? Text() : pages;
}

Presentation PresentationOf(const Row& row) {
  const auto presentation = PresentationFromCell(RawText(row, u"IOBJPRSNT"));
  return {.keyFirst = presentation == PP_VALP_KEY || presentation == PP_VALP_KEYTEXT,
          .both = presentation == PP_VALP_KEYTEXT || presentation == PP_VALP_TEXTKEY};
}

void SortByPosition(Rows& rows) {
  std::stable_sort(rows.begin(), rows.end(),
                   [](const RowRef& a, const RowRef& b) { return Number(*a, u"POSIT") < Number(*b, u"POSIT"); });
}

std::vector<Owner> OwnersOf(const Rows& owners, const Rows& owned) {
  std::map<Text, Rows> byName;
  for (const RowRef& row : owned) byName[RawText(*row, u"IOBJNM")].push_back(row);
  std::map<Text, std::size_t> sharers;
  for (const RowRef& row : owners) ++sharers[RawText(*row, u"IOBJNM")];

  std::vector<Owner> result;
  for (const RowRef& row : owners) {
    const Text name = RawText(*row, u"IOBJNM");
    const Rows& all = byName[name];
    // Rows of the dimension table that share a name have the same rows, and each has brought its own copy of them.
    const Rows rows(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(all.size() / sharers[name]));
    Owner owner{.row = row};
    for (const RowRef& item : rows) (Flag(*item, u"HIDDEN") ? owner.hidden : owner.printed).push_back(item);
    SortByPosition(owner.printed);
    result.push_back(std::move(owner));
  }
  return result;
}

Printout PrintoutOf(const Snapshot& readBack) {
  Rows printed, hidden, structures;
  for (const RowRef& row : readBack.Dimension().rows) {
    (IsStructure(*row) ? structures : IsPrinted(*row) ? printed : hidden).push_back(row);
  }
  SortByPosition(printed);
  const std::size_t count = printed.size();
  printed.insert(printed.end(), hidden.begin(), hidden.end());
  Printout printout{.characteristics = OwnersOf(printed, readBack.Attribute().rows),
                    .structures = OwnersOf(structures, readBack.Member().rows)};
  const auto end = printout.characteristics.begin() + static_cast<std::ptrdiff_t>(count);
  std::move(end, printout.characteristics.end(), std::back_inserter(printout.hidden));
  printout.characteristics.erase(end, printout.characteristics.end());
  for (Owner& owner : printout.hidden) {
    owner.printed.insert(owner.printed.end(), owner.hidden.begin(), owner.hidden.end());
    owner.hidden = std::move(owner.printed);
  }
  return printout;
}

}  // namespace ORXKMPrintProp::host
