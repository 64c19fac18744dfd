// What a transcript of the program can't show of a check of many documents, and of one of texts.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "host/InOrder.h"
#include "host/ProgressLine.h"
#include "host/Utf8.h"
#include "host/editor/TextCheck.h"

namespace ORXKMPrintProp::host {
namespace {

TEST(InOrder, GoesAheadOfASlowOneOnlySoFar) {
  constexpr std::size_t kAll = 1000, kThreads = 4, kAhead = 64;
  std::atomic<std::size_t> begun = 0;
  std::size_t taken = 0;
  const auto work = [&](std::size_t number) {
    ++begun;
    return number;
  };
  InOrder(kAll, kThreads, work, [&](std::size_t number) {
    EXPECT_EQ(number, taken);
    // Whoever is at work has time to do what may be done.
    while (taken == 0 && begun < kAhead) std::this_thread::yield();
    if (taken == 0) std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_LE(begun, taken + kAhead);
    ++taken;
  });
  EXPECT_EQ(taken, kAll);
}

TEST(InOrder, HandsAFailureOnInItsTurn) {
  for (const std::size_t threads : {std::size_t{1}, std::size_t{4}}) {
    for (const bool isAtWork : {true, false}) {
      std::vector<std::size_t> taken;
      const auto failAt5 = [](bool isThis, std::size_t number) {
        if (isThis && number == 5) throw std::runtime_error("five");
        return number;
      };
      try {
        InOrder(
            100, threads, [&](std::size_t number) { return failAt5(isAtWork, number); },
            [&](std::size_t number) { taken.push_back(failAt5(!isAtWork, number)); });
        ADD_FAILURE() << "nothing was thrown";
      } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "five");
      }
      EXPECT_EQ(taken, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
    }
  }
}

TEST(ProgressLine, MakesRoomForWhatIsPrinted) {
  std::ostringstream terminal;
  {
    ProgressLine line(&terminal, {});
    line.Wipe();
    line.Show("10 of 10");
    line.Show("1 of 1");
    line.Wipe();
    terminal << "done\n";
    line.Show("last");
    ProgressLine(nullptr).Show("nowhere");
    ProgressLine(&terminal, std::chrono::hours(1)).Show("too soon");
  }
  EXPECT_EQ(terminal.str(), "10 of 10\r        \r1 of 1\r      \rdone\nlast\r    \r");
}

TEST(TextCheck, TellsOfAllWidgetsTheOneThatLacksMost) {
  const SettingsDocument document = ParseSettings(
      R"({"texts":[{"TARGETID":"ID_PRN_COLALIGN1","CAPTION":"L"},{"TARGETID":"ID_PRN_USECOLORS","CAPTION":"C"}]})", "");
  const auto measure = [](const MemoryTableRef&, const std::vector<ShownText>& shown) {
    TextRooms rooms{.rooms = {}, .dpi = 120};
    for (const auto& [place, text] : shown) {
      const TextView name = place.widget.name;
      const int needed = name == u"cmbAttrColAlign1" || name == u"cmbCharColAlign1" ? 12
                         : name == u"cmbCharColAlign2"                              ? 15
                                                                                    : 10;
      rooms.rooms.push_back(name == u"cmbStrColAlign" ? std::nullopt : std::optional(views::TextRoom{needed, 10}));
    }
    return rooms;
  };
  std::string told;
  for (const TextFinding& finding : FindingsOf(document.texts, measure)) {
    if (finding.measured) told += ToUtf8(finding.key + u" " + finding.measured->widget + u": " + finding.words) + "\n";
  }
  EXPECT_EQ(told, "ID_PRN_COLALIGN1 cmbCharColAlign2: \"L\" needs 15 of 10 pixels at 120 dpi\n");
}

}  // namespace
}  // namespace ORXKMPrintProp::host
