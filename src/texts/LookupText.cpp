#include "texts/LookupText.h"

#include <cstddef>

#include "tables/Conversions.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp {

thread_local PerThread<TableRef> gTextTable = NewPerThread<TableRef>();

namespace ModPrnGen {
namespace {

RowRef FindRow(const TableRef& table, const Text& key) {
  if (!table) return nullptr;
  try {
    return RowsOf(*table)->Item(key);
  } catch (const RunTimeError&) {
    return nullptr;  // how some tables tell an unknown key
  }
}

Text ValueOf(std::span<const Variant> values, std::int16_t number) {
  if (number < 0 || static_cast<std::size_t>(number) >= values.size()) return {};
  try {
    return ToText(Variant(values[static_cast<std::size_t>(number)]));
  } catch (const RunTimeError&) {
    return {};  // a value that cannot be a text
  }
}

}  // namespace

Text LookupText(const Text& Key, std::span<const Variant> Values) {
  if (Values.empty()) throw RunTimeError(ErrorKind::Index, u"The text \"" + Key + u"\" has no default.");
  Text text = ToText(Variant(Values[0]));
  const TableRef table = gTextTable;
  if (const RowRef row = FindRow(table, Key)) text = ToText(row->Value(u"CAPTION"));

  std::size_t scan = 0;
  while ((scan = text.find(u'&', scan)) != Text::npos) {
    const Text value = ValueOf(Values, LeadingNumber(TextView(text).substr(scan + 1, 2)));
    text.replace(scan, 2, value);
    // The character behind the value is passed over.
    scan += value.size() + 1;
  }
  return text;
}

Text LookupText(TextView Key, TextView Default) {
  const Variant values[] = {Text(Default)};
  return LookupText(Text(Key), values);
}

}  // namespace ModPrnGen
}  // namespace ORXKMPrintProp
