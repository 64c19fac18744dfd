// What becomes of the control when memory runs out: each single allocation of a whole session fails once.

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <set>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "failing_new.h"
#include "support/loaded.h"
#include "support/widget_text.h"

namespace ORXKMPrintProp::test {
namespace {

const Settings& Tables() {
  static const std::string columns = " IOBJTXT='a text that no small buffer holds' POSIT=1 AXIS='Y' HIENM='H'\n";
  static const Settings tables(
      "IOBJNM='A'" + columns + "IOBJNM='B'" + columns +
          "IOBJNM='C' IOBJTXT='another text, hidden for the time being'\n" +
          "IS_STRUCTURE='X' IOBJNM='S' IOBJTXT='a structure with a name of some length'\nIS_STRUCTURE='X' IOBJNM='T'",
      "IOBJNM='A' ATTRINM='1' ATTRITXT='an attribute with a name of some length'\nIOBJNM='A' ATTRINM='2'",
      "IOBJNM='S' CHAVL='1' CHAVLTXT='an element with a name of some length'\nIOBJNM='S' CHAVL='2'\nIOBJNM='T' "
      "CHAVL='3'");
  return tables;
}

Settings Copy() {
  return Settings(ToString(*Tables().dim), ToString(*Tables().atr), ToString(*Tables().mem), ToString(*Tables().gen));
}

/// What a user and a host do one after the other; each goes on when the one before it has failed.
class Session {
 public:
  Session() : tables_(Copy()) {
    const auto pick = [this](std::int16_t tab) { Add([=, this] { dialog_.TabStrip().UserPick(tab); }); };
    Add([this] { tables_.LoadInto(control_); });
    pick(kGeneralTab);
    Edit(u"txtGenPrnTitle", u"a title that no small buffer can hold");
    pick(kCharTab);
    Drag(kCharTab, 0, 1);
    Edit(u"txtCharColTitle", u"a column title that no small buffer can hold");
    Add([this] { List(u"lstAvail", kCharTab).UserMouseDown(0, ListBox::kLeftButton); });
    Add([this] { List(u"lstAvail", kCharTab).UserMouseUp(ListBox::kLeftButton); });
    Press(u"cmdLeftToRight", kCharTab);
    Add([this] { dialog_.Get<ComboBox>(u"cmbCharQueryBreak").UserPick(1); });
    Press(u"cmdRightToLeft", kCharTab);
    for (const std::int16_t tab : {kAttrTab, kStrTab}) {
      pick(tab);
      Drag(tab, 0, 1);
      Press(u"cmdRightToLeft", tab);
    }
    Add([this] { control_.ORXAtrTable(); });
    Add([this] { control_.ORXSetReadOnly(true); });
    Add([this] { control_.ORXSetReadOnly(false); });
    pick(kCharTab);
    Add([this] { control_.ORXDimTable(); });
  }

  /// @return how many allocations there were. @param failing which of them fails, 0 for none.
  std::size_t Play(std::size_t failing) {
    gAllocations = 0;
    gFailing = failing;
    for (const Step& step : steps_) {
      const auto before = step.movesEntries ? Entries() : std::multiset<std::int32_t>();
      gIsCounting = true;
      try {
        step.action();
      } catch (const std::bad_alloc&) {
        hasFailed_ = true;
      }
      gIsCounting = false;
      if (step.movesEntries && Entries() != before) hasLostEntry_ = true;
    }
    return gAllocations;
  }

  bool HasFailed() const { return hasFailed_; }
  /// Something that moves entries has lost or doubled one.
  bool HasLostEntry() const { return hasLostEntry_; }

  /// What the dialog shows and the tables hold after one more load and read-back.
  std::string Reloaded() {
    const Settings tables = Copy();
    tables.LoadInto(control_);
    dialog_.TabStrip().UserPick(kGeneralTab);
    std::string text;
    for (const auto& widget : dialog_.Controls()) {
      if (const auto* const list = dynamic_cast<const ListBox*>(widget.get())) text += StateOf(*list) + "\n";
      if (const auto* const combo = dynamic_cast<const ComboBox*>(widget.get())) text += StateOf(*combo) + "\n";
      if (const auto* const box = dynamic_cast<const TextBox*>(widget.get())) text += ToAscii(box->GetText()) + "\n";
      text += ToAscii(widget->Caption()) + (widget->Enabled() ? "\n" : " disabled\n");
    }
    control_.ORXGenPropTable();
    return text + tables.Brief();
  }

 private:
  struct Step {
    std::function<void()> action;
    bool movesEntries;
  };

  void Add(std::function<void()> action, bool movesEntries = false) {
    steps_.push_back({std::move(action), movesEntries});
  }
  /// The items in the lists of the page on top.
  std::multiset<std::int32_t> Entries() {
    std::multiset<std::int32_t> items;
    for (const TextView name : {u"lstAvail", u"lstPrint"}) {
      const ListBox& list = List(name, dialog_.TabStrip().Tab());
      for (std::int16_t i = 0; i < list.ListCount(); ++i) items.insert(list.ItemData(i));
    }
    return items;
  }
  ListBox& List(TextView name, std::int16_t tab) { return dialog_.Get<ListBox>(name, tab); }
  void Edit(TextView name, Text text) {
    Add([this, name, text = std::move(text)] { dialog_.Get<TextBox>(name).UserEdit(text); });
  }
  void Press(TextView name, std::int16_t tab) {
    Add([=, this] { dialog_.Get<CommandButton>(name, tab).UserPress(); }, true);
  }
  void Drag(std::int16_t tab, std::int16_t from, std::int16_t to) {
    Add([=, this] { List(u"lstPrint", tab).UserMouseDown(from, ListBox::kLeftButton); });
    Add([=, this] { List(u"lstPrint", tab).UserMouseMove(to); }, true);
    Add([=, this] { List(u"lstPrint", tab).UserMouseUp(ListBox::kLeftButton); });
  }

  Settings tables_;
  ORXQueryPrnProp control_;
  Dialog& dialog_ = control_.GetDialog();
  std::vector<Step> steps_;
  bool hasFailed_ = false;
  bool hasLostEntry_ = false;
};

TEST(OutOfMemory, FailsTheCallLosesNoEntryAndNeverHarmsTheNextLoad) {
  ReleaseSharedValues();
  Session undisturbed;
  const std::size_t allocations = undisturbed.Play(0);
  ASSERT_GT(allocations, 500u);
  EXPECT_FALSE(undisturbed.HasFailed() || undisturbed.HasLostEntry());
  const std::string expected = undisturbed.Reloaded();
  std::size_t failed = 0;
  for (std::size_t failing = 1; failing <= allocations; ++failing) {
    ReleaseSharedValues();
    Session session;
    session.Play(failing);
    failed += session.HasFailed() ? 1 : 0;
    ASSERT_FALSE(session.HasLostEntry()) << failing;
    ASSERT_EQ(session.Reloaded(), expected) << failing;
  }
  // Sorting does without memory where there is none.
  EXPECT_GT(failed * 20, allocations * 19);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
