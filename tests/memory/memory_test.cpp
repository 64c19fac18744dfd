// What becomes of the control when memory runs out: each single allocation of a whole session fails once.

#include <gtest/gtest.h>

#include <new>
#include <set>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "failing_new.h"
#include "support/loaded.h"
#include "support/user_step.h"
#include "support/widget_text.h"

namespace ORXKMPrintProp::test {
namespace {

Settings Tables() {
  static const std::string columns = " IOBJTXT='a text that no small buffer holds' POSIT=1 AXIS='Y' HIENM='H'\n";
  return Settings(
      "IOBJNM='A'" + columns + "IOBJNM='B'" + columns +
          "IOBJNM='C' IOBJTXT='another text, hidden for the time being'\n" +
          "IS_STRUCTURE='X' IOBJNM='S' IOBJTXT='a structure with a name of some length'\nIS_STRUCTURE='X' IOBJNM='T'",
      "IOBJNM='A' ATTRINM='1' ATTRITXT='an attribute with a name of some length'\nIOBJNM='A' ATTRINM='2'",
      "IOBJNM='S' CHAVL='1' CHAVLTXT='an element with a name of some length'\nIOBJNM='S' CHAVL='2'\nIOBJNM='T' "
      "CHAVL='3'");
}

/// What a user and a host do one after the other; each goes on when the one before it has failed.
const char* const kSession =
    "load; tab 0; edit txtGenPrnTitle a title that no small buffer can hold; "
    "tab 1; down lstPrint(1) 0; move lstPrint(1) 1; up lstPrint(1); "
    "edit txtCharColTitle a column title that no small buffer can hold; "
    "click lstAvail(1) 0; press cmdLeftToRight(1); pick cmbCharQueryBreak 1; press cmdRightToLeft(1); "
    "tab 2; down lstPrint(2) 0; move lstPrint(2) 1; up lstPrint(2); press cmdRightToLeft(2); "
    "tab 3; down lstPrint(3) 0; move lstPrint(3) 1; up lstPrint(3); press cmdRightToLeft(3); "
    "read; lock; unlock; tab 1; read";

class Session {
 public:
  /// @return how many allocations there were. @param failing which of them fails, 0 for none.
  std::size_t Play(std::size_t failing) {
    gAllocations = 0;
    gFailing = failing;
    ForEach(kSession, "; ", [this](const std::string& line) {
      const UserStep step(dialog_, line);
      const auto before = Entries();
      gIsCounting = true;
      try {
        Do(step);
      } catch (const std::bad_alloc&) {
        hasFailed = true;
      }
      gIsCounting = false;
      const bool movesEntries = step.verb == "move" || step.verb == "press";
      if (movesEntries && Entries() != before) hasLostEntry = true;
    });
    return gAllocations;
  }

  /// What the dialog shows and the tables hold after one more load and read-back.
  std::string Reloaded() {
    const Settings tables = Tables();
    tables.LoadInto(control_);
    dialog_.TabStrip().UserPick(kGeneralTab);
    std::string text;
    for (const auto& widget : dialog_.Controls()) {
      text += StateOf(*widget) + ToAscii(widget->Caption()) + (widget->Enabled() ? "\n" : " disabled\n");
    }
    control_.ORXGenPropTable();
    return text + tables.Brief();
  }

  bool hasFailed = false;
  bool hasLostEntry = false;  ///< or doubled one, in something that moves entries

 private:
  void Do(const UserStep& step) {
    if (step.verb == "load") {
      tables_.LoadInto(control_);
    } else if (step.verb == "read") {
      control_.ORXDimTable();
    } else if (step.verb == "lock" || step.verb == "unlock") {
      control_.ORXSetReadOnly(step.verb == "lock");
    } else {
      step.Do();
    }
  }

  /// The items in the lists of the page on top.
  std::multiset<std::int32_t> Entries() {
    std::multiset<std::int32_t> items;
    for (const auto& widget : dialog_.Controls()) {
      const auto* const list = dynamic_cast<const ListBox*>(widget.get());
      if (!list || list->Row().page != dialog_.TabStrip().Tab()) continue;
      for (std::int16_t i = 0; i < list->ListCount(); ++i) items.insert(list->ItemData(i));
    }
    return items;
  }

  Settings tables_ = Tables();
  ORXQueryPrnProp control_;
  Dialog& dialog_ = control_.GetDialog();
};

TEST(OutOfMemory, FailsTheCallLosesNoEntryAndNeverHarmsTheNextLoad) {
  ReleaseSharedValues();
  Session undisturbed;
  const std::size_t allocations = undisturbed.Play(0);
  ASSERT_GT(allocations, 500u);
  EXPECT_FALSE(undisturbed.hasFailed || undisturbed.hasLostEntry);
  const std::string expected = undisturbed.Reloaded();
  std::size_t failed = 0;
  for (std::size_t failing = 1; failing <= allocations; ++failing) {
    ReleaseSharedValues();
    Session session;
    session.Play(failing);
    failed += session.hasFailed ? 1 : 0;
    ASSERT_FALSE(session.hasLostEntry) << failing;
    ASSERT_EQ(session.Reloaded(), expected) << failing;
  }
  // Sorting does without memory where there is none.
  EXPECT_GT(failed * 20, allocations * 19);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
