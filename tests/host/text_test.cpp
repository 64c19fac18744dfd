#include <gtest/gtest.h>

#include <utility>

#include "host/Terminal.h"
#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

TEST(Utf8, GoesBothWaysAndReplacesWhatIsNoCharacter) {
  const std::pair<std::string, Text> same[] = {
      {"a\x7f", u"a\x7f"},
      {"\xc2\x80\xdf\xbf", u"\u0080\u07ff"},
      {"\xe0\xa0\x80\xef\xbf\xbf", u"\u0800\uffff"},
      {"\xf0\x90\x80\x80\xf4\x8f\xbf\xbf", u"\U00010000\U0010ffff"},
      {std::string("a\0b", 3), Text(u"a\0b", 3)},
  };
  for (const auto& [utf8, text] : same) {
    EXPECT_EQ(ToUtf8(text), utf8);
    EXPECT_EQ(FromUtf8(utf8), text) << utf8;
  }
  const std::pair<Text, std::string> lone[] = {
      {{u'a', 0xD800}, "a\uFFFD"}, {{0xDC00, u'b'}, "\uFFFDb"}, {{0xD800, 0xD800, 0xDC00}, "\uFFFD\U00010000"}};
  for (const auto& [text, utf8] : lone) EXPECT_EQ(ToUtf8(text), utf8);
  const std::pair<std::string, Text> broken[] = {
      {"\xff(", u"\uFFFD("},                               // no first byte
      {"\xc3(", u"\uFFFD("},                               // no second one
      {"\xe2\x82", u"\uFFFD\uFFFD"},                       // cut off
      {"\xc0\xaf", u"\uFFFD\uFFFD"},                       // longer than need be
      {"\xed\xa0\x80", u"\uFFFD\uFFFD\uFFFD"},             // a surrogate
      {"\xf4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}};  // behind the last character
  for (const auto& [utf8, text] : broken) EXPECT_EQ(FromUtf8(utf8), text);
}

TEST(Terminal, CountsColumnsAndKeepsToOneLine) {
  const std::pair<Text, int> widths[] = {{u"Gro\u0308ße", 5}, {u"数量", 4}, {u"ﾃﾞ", 2}, {u"\U0001F600\U00010400", 3}};
  for (const auto& [text, width] : widths) EXPECT_EQ(DisplayWidth(text), width) << ToUtf8(text);
  EXPECT_EQ(OneLine(TextView(u"a\nb\x1b[1m\u009b\x7f\u2028ü")), u"a b [1m   ü");
}

}  // namespace
}  // namespace ORXKMPrintProp::host
