#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <set>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "host/editor/Editor.h"
#include "random/RandomSettings.h"
#include "support/user_step.h"
#include "support/widget_text.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::host::test {
namespace {

using namespace ORXKMPrintProp::test;

/// A window in which a layout is edited by another letter.
class Window : public EditorWindow {
 public:
  std::string told;

 private:
  void ShowMeaning(const Snapshot&, const Snapshot&) override {}
  void ShowState(const EditorState&) override {}
  Choice Ask(const Question& question) override {
    told += question.text + " " + question.further;
    return Choice::Cancel;
  }
  std::optional<Text> EditLayout(const Text&, const Text& layout, bool) override { return layout + u"L"; }
  std::optional<std::string> PickFile(FileUse, const std::string&) override { return {}; }
  RecentFiles Remembered() override { return {}; }
  void Remember(const RecentFiles&) override {}
  void Focus(const Widget&) override {}
};

SettingsDocument DocumentOf(const Settings& tables) {
  SettingsDocument document;
  for (const TableOfControl& table : kTables) {
    for (const TableMember& member : kTableMembers) {
      if (table.name != std::string(member.name)) continue;
      document.*member.table = std::dynamic_pointer_cast<MemoryTable>(tables.*table.table);
    }
  }
  return document;
}

/// A user who does anything, and remembers what he has seen before and after each step that can be undone: the page
/// on top and, without what nobody sees and the next commit takes away, the model.
class UndoingUser {
 public:
  explicit UndoingUser(std::uint64_t seed)
      : random_(seed), settings_({.file = FileOf(Loading(random_))}, Platform::Plain()) {}

  ~UndoingUser() { std::filesystem::remove(settings_.Target()); }
  UndoingUser(const UndoingUser&) = delete;
  UndoingUser& operator=(const UndoingUser&) = delete;

  void Act() {
    if (random_.OneIn(12)) return Refresh();
    const Widget& widget = *random_.Of(Usable());
    const std::string line = LineFor(widget);
    if (line.empty()) return;
    const std::string before = Picture();
    const std::string order = Order();
    const std::string value = StateOf(widget);
    script_ += line + "\n";
    const UserStep step(GetDialog(), line);
    step.Do();
    editor_.OnUsed(widget);
    const WidgetName name = widget.Row().name;
    const WidgetKind kind = widget.Row().kind;
    const bool isLayout = name.name == u"cmdPrintLayout";
    const bool isField = kind == WidgetKind::TextBox || kind == WidgetKind::CheckBox ||
                         (kind == WidgetKind::ComboBox && name.name != u"cmbAttrChar");
    const bool isList = kind == WidgetKind::CommandButton || (kind == WidgetKind::ListBox && name.index > 0);
    const bool isStep = isLayout || (isField && StateOf(widget) != value) || (isList && Order() != order);
    if (isStep) {
      const bool goesOn = kind == WidgetKind::TextBox && last_ == &widget;
      if (!goesOn) steps_.push_back({before, ""});
      steps_.back().second = Picture();
    }
    last_ = isStep ? &widget : nullptr;
  }

  void UndoAllAndRedoAll() {
    for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) {
      editor_.Undo();
      ASSERT_EQ(Picture(), step->first) << "undo of step " << steps_.rend() - step << "\n" << script_;
    }
    const std::string first = Picture();
    editor_.Undo();
    EXPECT_EQ(Picture(), first) << "there are more steps than there should be\n" << script_;
    for (const auto& [before, after] : steps_) {
      editor_.Redo();
      ASSERT_EQ(Picture(), after) << script_;
    }
    EXPECT_EQ(window_.told, "") << script_;
    last_ = nullptr;
  }

 private:
  static std::string FileOf(const Settings& settings) {
    const std::string path = testing::TempDir() + "/undo_test-" + std::to_string(std::random_device{}()) + ".json";
    SaveFile(path, ToJson(DocumentOf(settings)));
    return path;
  }

  static Settings Loading(Random& random) {
    for (;;) {
      const RandomSettings settings = SettingsFrom(random.Next() % 1000000);
      if (settings.end == LoadEnd::Done) return settings.tables;
    }
  }

  Dialog& GetDialog() { return settings_.Control().GetDialog(); }

  void Refresh() {
    script_ += "refresh\n";
    editor_.Read();
    last_ = nullptr;
  }

  std::vector<const Widget*> Usable() {
    std::vector<const Widget*> widgets{&GetDialog().TabStrip()};
    const bool hasOwner[] = {true, true, GetDialog().Get<ComboBox>(u"cmbAttrChar").ListCount() > 0,
                             GetDialog().Get<ListBox>(u"lstStrStructures").ListCount() > 0};
    for (const auto& widget : GetDialog().Controls()) {
      // Without a characteristic, or a structure, the fields of its items stand for nothing.
      if (widget->Refuses() != Refusal::None || !hasOwner[GetDialog().TabStrip().Tab()]) continue;
      const WidgetKind kind = widget->Row().kind;
      const bool isPlain = kind == WidgetKind::Label || kind == WidgetKind::Frame || kind == WidgetKind::SSTab;
      if (!isPlain) widgets.push_back(widget.get());
    }
    return widgets;
  }

  std::string LineFor(const Widget& widget) {
    const std::string name = " " + ToAscii(widget.Row().name.Spelled());
    const auto* const entries = dynamic_cast<const EntryWidget*>(&widget);
    if (entries && entries->ListCount() == 0) return "";
    const auto entry = [&] { return " " + std::to_string(random_.Below(entries->ListCount())); };
    switch (widget.Row().kind) {
      case WidgetKind::SSTab:
        return "tab " + std::to_string(random_.Below(4));
      case WidgetKind::ComboBox:
        return "pick" + name + entry();
      case WidgetKind::CheckBox:
        return "toggle" + name;
      case WidgetKind::CommandButton:
        return MovesNothing(widget.Row().name) ? "" : "press" + name;
      case WidgetKind::TextBox:
        return "edit" + name + " " + random_.Of<std::string>({"", "", "99999", "1x"}) + std::to_string(++edits_);
      default:
        return random_.OneIn(4) ? "caret" + name + entry()
                                : "click" + name + entry() + (random_.OneIn(4) ? entry() : "");
    }
  }

  /// Such a button stores the order all the same, which is not told from a look.
  bool MovesNothing(const WidgetName& button) {
    if (button.name == u"cmdPrintLayout") return false;
    const TextView source = button.name == u"cmdLeftToRight" ? u"lstAvail" : u"lstPrint";
    return GetDialog().Get<ListBox>(source, button.index).SelCount() == 0;
  }

  std::string Order() {
    std::string order;
    const std::int16_t page = GetDialog().TabStrip().Tab();
    if (page == kGeneralTab) return order;
    const auto& list = GetDialog().Get<ListBox>(u"lstPrint", page);
    for (std::int16_t i = 0; i < list.ListCount(); ++i) order += std::to_string(list.ItemData(i)) + " ";
    return order;
  }

  /// What is available stands in another order when the page is filled anew.
  static std::string EntriesOf(const ListBox& list) {
    std::set<std::string> entries;
    for (std::int16_t i = 0; i < list.ListCount(); ++i) {
      entries.insert(std::to_string(list.ItemData(i)) + (list.Selected(i) ? "*" : "") +
                     (list.ListIndex() == i ? ">" : ""));
    }
    std::string all;
    for (const std::string& entry : entries) all += entry + " ";
    return all;
  }

  std::string Picture() {
    std::string picture;
    for (const auto& widget : GetDialog().Controls()) {
      const LayoutRow& row = widget->Row();
      if (row.kind == WidgetKind::Label || (row.page != -1 && row.page != GetDialog().TabStrip().Tab())) continue;
      if (row.name.name == u"lstStrStructures") continue;  // the caret may be anywhere
      const bool isAvail = row.name.name == u"lstAvail";
      picture += ToAscii(row.name.Spelled()) + (widget->Enabled() ? " " : " disabled ") +
                 (widget->Visible() ? "" : "hidden ") +
                 (isAvail ? EntriesOf(dynamic_cast<const ListBox&>(*widget)) : StateOf(*widget)) + "\n";
    }
    const Settings written("", "", "", "");
    gPrnProp->ToTable(*written.gen, *written.dim, *written.mem, *written.atr);
    const SettingsDocument document = DocumentOf(written);
    for (const MemoryTableRef& table : {document.dimension, document.member, document.attribute}) {
      for (const RowRef& row : AllRows(*table)) {
        for (const Text& column : table->ColumnNames()) {
          const bool isWidth = column.ends_with(u"_WIDTH") && column != u"PR_AUTO_WIDTH";
          if (isWidth && row->Value(u"PR_AUTO_WIDTH") == Variant(Text(u"X"))) row->Value(column, Variant());
          const bool isBreak = column.ends_with(u"_BREAK") || column == u"PR_BREAK_AREA";
          if (isBreak && GetDialog().TabStrip().Tab() == kCharTab) row->Value(column, Variant());
          if (column == u"STRT_LVL" && row->Value(u"HRY_ACTIVE") != Variant(Text(u"X"))) row->Value(column, Variant());
        }
      }
    }
    return picture + written.Brief();
  }

  Random random_;
  EditedSettings settings_;
  Window window_;
  Editor editor_{settings_, window_};
  std::vector<std::pair<std::string, std::string>> steps_;  ///< what was seen before and after
  const Widget* last_ = nullptr;
  int edits_ = 0;
  std::string script_;
};

class Undo : public testing::TestWithParam<std::uint64_t> {};

TEST_P(Undo, LeadsBackAndForthThroughAllSteps) {
  ReleaseSharedValues();
  UndoingUser user(GetParam());
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 40; ++i) user.Act();
    user.UndoAllAndRedoAll();
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Undo, testing::Range<std::uint64_t>(1, 7));

}  // namespace
}  // namespace ORXKMPrintProp::host::test
