// The input is lines: the caption of the key in the text table ("-" and nothing else: the table has no such key),
// then the values. The first value is the default.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "host/Utf8.h"
#include "support.h"
#include "tables/MemoryTable.h"
#include "tables/RunTimeError.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::fuzz {
namespace {

std::int32_t NumberIn(const std::string& line) {
  return static_cast<std::int32_t>(std::strtol(line.c_str() + 1, nullptr, 10) % 100000);
}

/// A line as a value: "#" and a number is a number, "!" alone is nothing that has a text, "~" alone is empty.
Variant ValueOf(const std::string& line) {
  if (line == "!") return ObjectRef(MemoryTable::Create({}));
  if (line == "~") return {};
  if (line.starts_with('#')) return NumberIn(line);
  return host::FromUtf8(line);
}

Text TextOf(const std::string& line) {
  if (line == "!" || line == "~") return {};
  if (!line.starts_with('#')) return host::FromUtf8(line);
  return host::FromUtf8(std::to_string(NumberIn(line)));
}

/// The number that the placeholder's next two characters stand for; -1 for any below 0.
int NumberOf(TextView next) {
  std::string digits;
  for (const char16_t c : next.substr(0, 2)) {
    if (c != u' ') digits += c < 0x80 ? static_cast<char>(c) : '?';
  }
  const auto digit = [&](std::size_t at) {
    return at < digits.size() && digits[at] >= '0' && digits[at] <= '9' ? digits[at] - '0' : -1;
  };
  if (digits.empty()) return 0;
  switch (digits[0]) {
    case '-':
      return digit(1) > 0 ? -1 : 0;
    case '+':
      return digit(1) > 0 ? digit(1) : 0;
    case '.':
      return digit(1) > 5 ? 1 : 0;  // a half goes to the even 0
  }
  if (digit(0) < 0) return 0;
  return digit(1) < 0 ? digit(0) : 10 * digit(0) + digit(1);
}

/// The same from left to right, without looking at anything twice.
Text Expected(TextView text, const std::vector<std::string>& values) {
  Text result;
  while (!text.empty()) {
    if (text[0] != u'&') {
      result += text[0];
      text.remove_prefix(1);
      continue;
    }
    const int number = NumberOf(text.substr(1));
    if (number >= 0 && static_cast<std::size_t>(number) < values.size()) {
      result += TextOf(values[static_cast<std::size_t>(number)]);
    }
    text.remove_prefix(std::min<std::size_t>(2, text.size()));
    // What follows the value stays as it is, also an "&".
    if (!text.empty()) {
      result += text[0];
      text.remove_prefix(1);
    }
  }
  return result;
}

void Use(const std::string& input) {
  std::istringstream lines(input);
  std::string caption;
  std::getline(lines, caption);
  std::vector<std::string> values;
  std::vector<Variant> variants;
  for (std::string line; std::getline(lines, line);) {
    values.push_back(line);
    variants.push_back(ValueOf(line));
  }

  const bool known = caption != "-";
  const auto table = MemoryTable::Create({u"TARGETID", u"CAPTION"});
  table->Columns()->KeyColumn(table->Columns(u"TARGETID")->Index());
  if (known) {
    const RowRef row = table->Rows()->Add();
    row->Value(u"TARGETID", u"KEY");
    row->Value(u"CAPTION", host::FromUtf8(caption));
  }
  gTextTable = table;

  const bool fails = values.empty() || values[0] == "!";
  try {
    const Text text = ModPrnGen::LookupText(u"KEY", variants);
    Demand(!fails, "without a default there is no text");
    Demand(text == Expected(known ? host::FromUtf8(caption) : TextOf(values[0]), values),
           "the text is that with its placeholders replaced");
  } catch (const RunTimeError&) {
    Demand(fails, "a text with a default is found");
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ORXKMPrintProp::fuzz::ResetSharedValues();
  ORXKMPrintProp::fuzz::Use({reinterpret_cast<const char*>(data), size});
  return 0;
}
