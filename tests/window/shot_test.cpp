#include "host/window/Shot.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <QImage>
#include <cstdlib>
#include <set>

#include "host/temporary_folder.h"

namespace ORXKMPrintProp::host::test {
namespace {

/// The program runs as where there is no display at all.
class ShotTest : public testing::Test {
 protected:
  int Shoot(const std::string& arguments) const {
    const std::string command = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " PRNPROP_PROGRAM " shot " +
                                arguments + " 2>" + folder.Path("err");
    return WEXITSTATUS(std::system(command.c_str()));
  }
  QImage Load(const std::string& name) const { return QImage(QString::fromStdString(folder.Path(name))); }

  TemporaryFolder folder;
};

/// Something is drawn where not all pixels are alike.
bool HasContent(const QImage& image) {
  std::set<QRgb> colors;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
  }
  return colors.size() > 20;
}

TEST_F(ShotTest, EveryPageIsDrawnInItsSizeAndLooksDifferent) {
  QSize size;
  std::set<std::string> pictures;
  for (const std::string page : {"0", "1", "2", "3"}) {
    ASSERT_EQ(Shoot(PRNPROP_EXAMPLES "/sales.json --page " + page + " -o " + folder.Path("a.png")), 0);
    const QImage image = Load("a.png");
    EXPECT_TRUE(HasContent(image)) << page;
    // 9675 by 5940 twips, at the resolution of the screen.
    EXPECT_NEAR(image.width() * 5940.0 / 9675, image.height(), 1);
    if (size.isEmpty()) size = image.size();
    EXPECT_EQ(image.size(), size);
    pictures.insert(folder.Read("a.png"));
  }
  EXPECT_EQ(pictures.size(), 4u);
  ASSERT_EQ(Shoot(PRNPROP_EXAMPLES "/sales.json --page 1 --size 1.5 -o " + folder.Path("b.png")), 0);
  EXPECT_NEAR(Load("b.png").width(), size.width() * 1.5, 1);
  ASSERT_EQ(Shoot(PRNPROP_EXAMPLES "/sales.json --page 1 --size 300x400 -o " + folder.Path("c.png")), 0);
  EXPECT_EQ(Load("c.png").size(), QSize(300, 400));
}

TEST_F(ShotTest, TextsAndReadOnlyShowInThePicture) {
  std::set<std::string> pictures;
  const std::string sales = PRNPROP_EXAMPLES "/sales.json --page 0 -o " + folder.Path("a.png");
  for (const std::string more : {"", " --read-only", " --texts " PRNPROP_EXAMPLES "/german.json"}) {
    ASSERT_EQ(Shoot(sales + more), 0);
    pictures.insert(folder.Read("a.png"));
  }
  EXPECT_EQ(pictures.size(), 3u);
}

TEST_F(ShotTest, WhatCantBeDrawnIsToldAndWritesNothing) {
  folder.Write("none.json", "{}");
  const std::string out = " -o " + folder.Path("a.png");
  EXPECT_EQ(Shoot(folder.Path("none.json") + " --page 0" + out), 1);
  EXPECT_EQ(Shoot(folder.Path("missing.json") + " --page 0" + out), 3);
  EXPECT_EQ(folder.Read("err"), "prnprop: " + folder.Path("missing.json") + ": No such file or directory\n");
  EXPECT_EQ(Shoot(PRNPROP_EXAMPLES "/small.json --page 4" + out), 2);
  EXPECT_EQ(Shoot(PRNPROP_EXAMPLES "/small.json --page 0 --size big" + out), 2);
  EXPECT_FALSE(std::filesystem::exists(folder.Path("a.png")));
  EXPECT_EQ(Shoot(PRNPROP_EXAMPLES "/small.json --page 0 -o " + folder.Path("no/a.png")), 3);
}

TEST(PictureSizeTest, IsAFactorOrTwoLengths) {
  EXPECT_EQ(ParsePictureSize("2")->factor, 2);
  EXPECT_EQ(ParsePictureSize("0.5")->factor, 0.5);
  EXPECT_EQ(ParsePictureSize("640x480")->height, 480);
  for (const char* const bad : {"", "x", "0", "-1", "17", "nan", "640x", "x480", "0x1", "640x480x2", "99999x1", "2 "}) {
    EXPECT_FALSE(ParsePictureSize(bad)) << bad;
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
