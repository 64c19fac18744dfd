#include "host/ShowJson.h"

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

#include "host/ExitStatus.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/PrintRows.h"
#include "host/SettingsDocument.h"
#include "host/Snapshot.h"
#include "host/Utf8.h"
#include "tables/CellCodecs.h"

namespace ORXKMPrintProp::host {
namespace {

using namespace ModPrnGen;
using Json = nlohmann::ordered_json;

// Words stand for codes, by the value of the enumeration. What there is nothing to say of is left out.

void AddText(Json& object, const char* member, const Row& row, TextView column) {
  if (const Text text = RawText(row, column); !text.empty()) object[member] = ToUtf8(text);
}

void AddNumber(Json& object, const char* member, int number) {
  if (number != 0) object[member] = number;
}

/// The words of the flags that are set.
Json Flags(const Row& row, std::initializer_list<std::pair<TextView, const char*>> flags) {
  Json words = Json::array();
  for (const auto& [column, word] : flags) {
    if (Flag(row, column)) words.push_back(word);
  }
  return words;
}

Json Column(const Row& row, const char* shows, TextView align, TextView width, TextView eachPage) {
  static constexpr const char* alignments[] = {"left", "right", "centered"};
  Json column = Json::object();
  if (shows) column["shows"] = shows;
  column["align"] = alignments[AlignFromCell(RawText(row, align))];
  if (Flag(row, u"PR_AUTO_WIDTH")) {
    column["autoWidth"] = true;
  } else {
    AddNumber(column, "width", Number(row, width));
  }
  if (!eachPage.empty() && Flag(row, eachPage)) column["eachPage"] = true;
  return column;
}

/// Of a characteristic or an attribute.
Json Columns(const Row& row) {
  const auto [keyFirst, both] = PresentationOf(row);
  const char* const shows[] = {keyFirst ? "key" : "description", keyFirst ? "description" : "key"};
  Json columns = Json::array({Column(row, shows[0], u"PR_COL1_ALIGN", u"PR_COL1_WIDTH", u"PR_COL1_FIX")});
  if (both) columns.push_back(Column(row, shows[1], u"PR_COL2_ALIGN", u"PR_COL2_WIDTH", u"PR_COL2_FIX"));
  return columns;
}

struct Kind {
  TextView name;
  TextView text;
};
constexpr Kind kOwner{u"IOBJNM", u"IOBJTXT"};
constexpr Kind kAttribute{u"ATTRINM", u"ATTRITXT"};
constexpr Kind kElement{u"CHAVL", u"CHAVLTXT"};

Json Item(const Row& row, const Kind& kind) {
  Json item{{"name", ToUtf8(RawText(row, kind.name))}};
  AddText(item, "text", row, kind.text);
  return item;
}

Json PrintedItem(const Row& row, const Kind& kind, Json columns) {
  Json item = Item(row, kind);
  AddText(item, "title", row, u"PR_COL1_HEADER");
  item["columns"] = std::move(columns);
  return item;
}

Json Page(const Row& row) {
  static constexpr const char* directions[] = {"horizontal", "vertical"};
  static constexpr const char* totals[] = {"top left", "bottom right"};
  static constexpr const char* signs[] = {"-X", "X-", "(X)"};
  static constexpr const char* units[] = {"left of the value", "right of the value", "in the heading", "not displayed"};
  Json page = Json::object();
  AddText(page, "title", row, u"TITLE");
  page["order"] = directions[DirectionFromCell(RawText(row, u"PRINT_DIRECTION"))];
  AddNumber(page, "maxPages", Number(row, u"MAX_PAGES"));
  page["margins"] = {{"top", Number(row, u"MARGIN_TOP")},
                     {"bottom", Number(row, u"MARGIN_BOTTOM")},
                     {"left", Number(row, u"MARGIN_LEFT")},
                     {"right", Number(row, u"MARGIN_RIGHT")}};
  page["totals"] = totals[SumPositFromCell(RawText(row, u"SUMPOSIT"))];
  page["signs"] = signs[SignPrsntFromCell(RawText(row, u"SIGNPRSNT"))];
  page["currencyAndUnit"] = units[CurUnitPositionFromCell(RawText(row, u"CURUNITPOSITION"))];
  page["options"] = Flags(row, {{u"HIDE_ZERO", "no zeros"},
                                {u"NOMULTTXT", "no repeated texts"},
                                {u"NO_LINES", "no lines"},
                                {u"USE_COLORS", "colored headers"}});
  return page;
}

Json Characteristic(const Owner& owner) {
  static constexpr const char* totals[] = {nullptr, "suppressed on condition", "always suppressed"};
  const Row& row = *owner.row;
  Json characteristic = PrintedItem(row, kOwner, Columns(row));
  characteristic["breaks"] =
      Flags(row, {{u"PR_QUERY_BREAK", "cover page"}, {u"PR_PAGE_BREAK", "page"}, {u"PR_BREAK_AREA", "block"}});
  if (Flag(row, u"HRY_ACTIVE")) {
    Json& hierarchy = characteristic["hierarchy"] = Json::object();
    AddText(hierarchy, "name", row, u"HIENM");
    AddNumber(hierarchy, "level", Number(row, u"STRT_LVL"));
    AddText(hierarchy, "version", row, u"VERSION");
    AddText(hierarchy, "to", row, u"DATETO");
  }
  if (const char* const words = totals[NoSumsFromCell(RawText(row, u"NOSUMS"))]) characteristic["totals"] = words;
  Json& attributes = characteristic["attributes"] = Json::array();
  for (const RowRef& attribute : owner.printed) {
    attributes.push_back(PrintedItem(*attribute, kAttribute, Columns(*attribute)));
  }
  return characteristic;
}

Json Structure(const Owner& owner) {
  Json structure = Item(*owner.row, kOwner);
  Json& elements = structure["elements"] = Json::array();
  for (const RowRef& element : owner.printed) {
    Json columns = Json::array({Column(*element, nullptr, u"PR_COL1_ALIGN", u"PR_COL1_WIDTH", {})});
    elements.push_back(PrintedItem(*element, kElement, std::move(columns)));
  }
  return structure;
}

/// @param what names their owner
void AddHidden(Json& items, const char* what, const std::vector<Owner>& owners, const Kind& kind) {
  for (const Owner& owner : owners) {
    for (const RowRef& row : owner.hidden) {
      Json item{{what, ToUtf8(RawText(*owner.row, kOwner.name))}};
      item.update(Item(*row, kind));
      items.push_back(std::move(item));
    }
  }
}

void AddPrintout(Json& object, const Snapshot& readBack) {
  const Printout printout = PrintoutOf(readBack);
  object["page"] = Page(*readBack.General().rows.at(0));
  Json& characteristics = object["characteristics"] = Json::array();
  for (const Owner& owner : printout.characteristics) characteristics.push_back(Characteristic(owner));
  Json& structures = object["structures"] = Json::array();
  for (const Owner& owner : printout.structures) structures.push_back(Structure(owner));

  Json hidden = Json::array(), attributes = Json::array(), elements = Json::array();
  for (const Owner& owner : printout.hidden) hidden.push_back(Item(*owner.row, kOwner));
  AddHidden(attributes, "characteristic", printout.characteristics, kAttribute);
  AddHidden(attributes, "characteristic", printout.hidden, kAttribute);
  AddHidden(elements, "structure", printout.structures, kElement);
  object["notPrinted"] = {{"characteristics", hidden}, {"attributes", attributes}, {"elements", elements}};
}

}  // namespace

int ShowJson(const std::string& path, std::ostream& out) {
  Json object{{"file", InputName(path)}, {"status", kSuccess}};
  try {
    const SettingsDocument document = ReadSettings(path);
    LoadAndReadBack(document);
    AddPrintout(object, SnapshotOf(document));
  } catch (const LoadError& error) {
    object["status"] = kLoss;
    object["error"] = error.what();
  } catch (const DocumentError& error) {
    object["status"] = kBadFile;
    object["error"] = error.what();
  }
  out << ToLine(object) << "\n";
  return object["status"];
}

}  // namespace ORXKMPrintProp::host
