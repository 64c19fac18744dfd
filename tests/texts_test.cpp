#include <gtest/gtest.h>

#include <vector>

#include "support/table_text.h"
#include "support/watched_table.h"
#include "tables/RunTimeError.h"
#include "texts/DefaultFont.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp::test {
namespace {

using ModPrnGen::LookupText;

class LookupTextTest : public testing::Test {
 protected:
  ~LookupTextTest() override { gTextTable.reset(); }

  static void UseTexts(const std::string& rows) {
    gTextTable = TableFrom(Kind::Texts, rows);
    gTextTable->Columns()->KeyColumn(gTextTable->Columns(u"TARGETID")->Index());
  }
};

TEST_F(LookupTextTest, ReplacesPlaceholders) {
  const struct {
    Text text;
    std::vector<Variant> values;
    Text result;
  } rows[] = {
      {u"Page &1 of &2", {u"D"}, u"Page  of "},
      {u"&1&2", {u"D", u"A", u"B"}, u"A&2"},
      {u"&1 &2", {u"D", u"A", u"B"}, u"A B"},
      {u"&12", {u"D"}, u"2"},
      {u"&0", {u"D"}, u"D"},
      {u"&", {u"D"}, u"D"},
      {u"&File", {u"D"}, u"Dile"},
      {u"&-1", {u"D"}, u"1"},
      {u"& 1", {u"D", u"A"}, u"A1"},
      {u"&.5x", {u"D", u"A"}, u"D5x"},
      {u"&1.", {u"D", u"&2", u"B"}, u"&2."},
      {u"a&2&1b", {u"D", u"A", u""}, u"a&1b"},
      {u"&1&", {u"D", u"A"}, u"A&"},
      {u"&&&", {u"D"}, u"D&"},
      {u"&1-&3", {u"D", std::int16_t{5}, u"B", Variant()}, u"5-"},
      {u"x&1", {u"D", ObjectRef()}, u"x"},
      {u"none", {u"D"}, u"none"},
  };
  for (const auto& row : rows) {
    const auto texts = TableFrom(Kind::Texts, "TARGETID='k'");
    texts->Rows(1)->Value(u"CAPTION", row.text);
    texts->Columns()->KeyColumn(std::int32_t{1});
    gTextTable = texts;
    EXPECT_EQ(ToAscii(LookupText(u"k", row.values)), ToAscii(row.result)) << ToAscii(row.text);
  }
}

TEST_F(LookupTextTest, TakesTheTableWhereItHasTheKeyAndTheDefaultElse) {
  EXPECT_EQ(LookupText(u"k", u"D"), u"D");
  EXPECT_EQ(LookupText(u"k", u"D&1"), u"D");
  UseTexts("TARGETID='k' CAPTION='text'\nTARGETID='empty' CAPTION=''\nTARGETID='number' CAPTION=7\nTARGETID='none'");
  EXPECT_EQ(LookupText(u"k", u"D"), u"text");
  EXPECT_EQ(LookupText(u"empty", u"D"), u"");
  EXPECT_EQ(LookupText(u"number", u"D"), u"7");
  EXPECT_EQ(LookupText(u"none", u"D"), u"");
  EXPECT_EQ(LookupText(u"K", u"D"), u"D");
  EXPECT_THROW(LookupText(u"k", std::vector<Variant>()), RunTimeError);
}

TEST_F(LookupTextTest, ToleratesAFailingLookUpButNotAFailingCell) {
  UseTexts("TARGETID='k' CAPTION='text'");
  const auto watch = std::make_shared<Watch>();
  gTextTable = Watched("texts", gTextTable, watch);
  const auto failingAt = [&](std::size_t k) {
    watch->calls.clear();
    watch->failAt = k;
    return ToAscii(LookupText(u"k", u"D"));
  };
  EXPECT_EQ(failingAt(1), "D") << watch->calls.back();
  EXPECT_EQ(failingAt(2), "D") << watch->calls.back();
  EXPECT_THROW(failingAt(3), RunTimeError);
  EXPECT_EQ(watch->calls, (std::vector<std::string>{"texts.Rows", "texts.Rows.Item(k)", "texts[1].Value(CAPTION)"}));
  EXPECT_EQ(failingAt(0), "text");
}

/// Notes what it is asked, and has a face name of its own.
class NotingPlatform : public RBDoubleByteCS::FontPlatform {
 public:
  explicit NotingPlatform(Text face) : face_(std::move(face)) {}

  Window GetActiveWindow() override { return Note("window", &calls); }
  Context GetContext(Window window) override { return Note(window == &calls ? "context" : "wrong window", this); }
  Text GetTextFace(Context context, std::size_t length) override {
    Note(context == this ? "face " + std::to_string(length) : "wrong context", nullptr);
    return face_;
  }
  void ReleaseContext(Window window, Context context) override {
    Note(window == &calls && context == this ? "release" : "wrong release", nullptr);
  }

  std::string calls;

 private:
  void* Note(const std::string& call, void* result) {
    calls += call + ";";
    return result;
  }
  Text face_;
};

TEST(DefaultFont, IsThePlatformsFaceUpToItsNul) {
  const Text nul(1, u'\0');
  const std::pair<Text, Text> rows[] = {
      {u"Face" + nul + u"rest" + nul, u"Face"}, {u" Face " + nul, u" Face "}, {nul + u"Face", u""}, {u"Face", u"Face"},
      {Text(79, u'x') + nul, Text(79, u'x')},
  };
  for (const auto& [face, expected] : rows) {
    NotingPlatform platform(face);
    RBDoubleByteCS::GetDefaultDialogFont(platform);
    EXPECT_EQ(gDefaultFontName, expected);
    EXPECT_EQ(platform.calls, "window;context;face 80;release;");
  }
  RBDoubleByteCS::FontPlatform withoutView;
  RBDoubleByteCS::GetDefaultDialogFont(withoutView);
  EXPECT_EQ(gDefaultFontName, u"MS Sans Serif");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
