#include <gtest/gtest.h>

#include <vector>

#include "dialog/Dialog.h"
#include "dialog/DialogFont.h"
#include "support/table_text.h"
#include "support/watched_table.h"
#include "tables/RunTimeError.h"
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

TEST_F(LookupTextTest, TakesTheTableWhereItHasTheKeyAndTheDefaultElse) {
  const char16_t* const keys[] = {u"k", u"empty", u"number", u"none", u"K"};
  const auto texts = [&] {
    std::string all;
    for (const auto* const key : keys) all += ToAscii(LookupText(key, u"D&1")) + "|";
    return all;
  };
  EXPECT_EQ(texts(), "D|D|D|D|D|");
  UseTexts("TARGETID='k' CAPTION='text'\nTARGETID='empty' CAPTION=''\nTARGETID='number' CAPTION=7\nTARGETID='none'");
  EXPECT_EQ(texts(), "text||7||D|");
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
  EXPECT_EQ(failingAt(1) + failingAt(2) + failingAt(0), "DDtext");
  EXPECT_THROW(failingAt(3), RunTimeError);
  EXPECT_EQ(watch->calls, (std::vector<std::string>{"texts.Rows", "texts.Rows.Item(k)", "texts[1].Value(CAPTION)"}));
}

class NotingPlatform : public Platform {
 public:
  explicit NotingPlatform(Text face) : face_(std::move(face)) {}

  Text DialogFontFace() const override {
    ++asked;
    return face_;
  }

  mutable int asked = 0;

 private:
  Text face_;
};

TEST(DialogFont, IsThePlatformsFaceUpToItsNulAskedForOnce) {
  const Text nul(1, u'\0');
  const std::pair<Text, Text> rows[] = {
      {u"Face" + nul + u"rest" + nul, u"Face"}, {u" Face " + nul, u" Face "}, {u"Face", u"Face"}};
  for (const auto& [face, expected] : rows) {
    gDefaultFontName.clear();
    NotingPlatform platform(face);
    for (int control = 0; control < 2; ++control) {
      Dialog dialog(platform);
      dialog.ApplyDialogFont();
      for (const auto& widget : dialog.Controls()) {
        const Font& font = widget->GetFont();
        EXPECT_EQ(std::tuple(font.Name, font.Size, font.Weight), std::tuple(expected, 8.25, 400));
      }
    }
    EXPECT_EQ(platform.asked, 1);
  }
  RBDoubleByteCS::GetDefaultDialogFont(Platform::Plain());
  EXPECT_EQ(gDefaultFontName, u"MS Sans Serif");
}

}  // namespace
}  // namespace ORXKMPrintProp::test
