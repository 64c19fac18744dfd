// Two threads, each with controls of its own, touch nothing in common.

#include <gtest/gtest.h>

#include <barrier>
#include <thread>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "support/user_step.h"

namespace ORXKMPrintProp::test {
namespace {

/// What a user and a host do with settings of that name, again and again. @return what comes of it each time.
std::string Work(const std::string& name) {
  const std::string structure = "IOBJNM='S" + name + "' IOBJTXT='S' IS_STRUCTURE='X'";
  const Settings settings("IOBJNM='" + name + "' IOBJTXT='" + name + "' AXIS='Y'\nIOBJNM='B' IOBJTXT='b'\n" + structure,
                          "IOBJNM='" + name + "' ATTRINM='1'", "IOBJNM='S" + name + "' CHAVL='e'");
  ORXQueryPrnProp control;
  control.ORXControlTexts(TableFrom(Kind::Texts, "TARGETID='ID_PRN_CHAR' CAPTION='" + name + "'"));
  settings.LoadInto(control);
  Dialog& dialog = control.GetDialog();
  ForEach("tab 1; tab 2; tab 3; tab 1; edit txtCharColTitle " + name + "; click lstAvail(1) 0; press cmdLeftToRight(1)",
          "; ", [&](const std::string& step) { UserStep(dialog, step).Do(); });
  control.ORXGenPropTable();
  const Settings failing("", "", "", "");
  failing.LoadInto(control);
  return settings.Brief() + ToAscii(dialog.TabStrip().TabCaption(kCharTab)) + ToAscii(gErrorText);
}

TEST(TwoThreads, WorkWithControlsOfTheirOwn) {
  const std::string expected[] = {Work("X"), Work("Y")};
  std::barrier start(2);
  const auto thread = [&](int which) {
    return std::thread([&, which] {
      start.arrive_and_wait();
      for (int i = 0; i < 30; ++i) EXPECT_EQ(Work(which == 0 ? "X" : "Y"), expected[which]);
      ReleaseSharedValues();
    });
  };
  std::thread first = thread(0);
  std::thread second = thread(1);
  first.join();
  second.join();
  ReleaseSharedValues();
}

}  // namespace
}  // namespace ORXKMPrintProp::test
