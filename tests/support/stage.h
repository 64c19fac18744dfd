#pragma once

#include <functional>
#include <string>
#include <vector>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "support/widget_text.h"

namespace ORXKMPrintProp::test {

/// A control with settings in it, a user in front of it and a host behind it.
class Stage : private ORXQueryPrnPropEvents, private View {
 public:
  explicit Stage(Settings settings = Settings()) : settings(std::move(settings)) {
    control.Connect(*this);
    control.GetDialog().SetView(this);
    if (this->settings.gen->RowCount() > 0) this->settings.LoadInto(control);
  }
  ~Stage() override { control.GetDialog().SetView(nullptr); }

  ListBox& List(TextView name, std::int16_t index = WidgetName::kNoIndex) {
    return Dialog_().Get<ListBox>(name, index);
  }
  ComboBox& Combo(TextView name) { return Dialog_().Get<ComboBox>(name); }
  TextBox& Box(TextView name) { return Dialog_().Get<TextBox>(name); }
  CheckBox& Check(TextView name) { return Dialog_().Get<CheckBox>(name); }
  CommandButton& Button(TextView name, std::int16_t index) { return Dialog_().Get<CommandButton>(name, index); }
  Dialog& Dialog_() { return control.GetDialog(); }

  void Tab(std::int16_t tab) { Dialog_().TabStrip().UserPick(tab); }
  void Click(ListBox& list, std::int16_t entry) { Drag(list, {entry}); }
  /// Button down on the first entry, the pointer over the others in turn, button up.
  void Drag(ListBox& list, const std::vector<std::int16_t>& entries) {
    list.UserMouseDown(entries[0], ListBox::kLeftButton);
    for (std::size_t i = 1; i < entries.size(); ++i) list.UserMouseMove(entries[i]);
    list.UserMouseUp(ListBox::kLeftButton);
  }
  void Press(TextView button, std::int16_t index) { Button(button, index).UserPress(); }

  /// "available | printed" of the page with that number.
  std::string Lists(std::int16_t tab) {
    return StateOf(List(u"lstAvail", tab)) + " | " + StateOf(List(u"lstPrint", tab));
  }
  /// The three group-change selectors from top to bottom.
  std::string Breaks() {
    return StateOf(Combo(u"cmbCharQueryBreak")) + " / " + StateOf(Combo(u"cmbCharPageBreak")) + " / " +
           StateOf(Combo(u"cmbCharBreakArea"));
  }
  /// The names of the widgets that begin so and are enabled, or visible, without what they begin with.
  std::string EnabledOf(TextView begin) {
    return Those(begin, [](const Widget& w) { return w.Enabled(); });
  }
  std::string HiddenOf(TextView begin) {
    return Those(begin, [](const Widget& w) { return !w.Visible(); });
  }

  /// What the host reads now, in brief. The page on top is committed by that.
  std::string Read() {
    control.ORXDimTable();
    return settings.Brief();
  }
  std::string ReadDimension() {
    control.ORXDimTable();
    return BriefOf(Kind::Dimension, *settings.dim);
  }
  /// What has come to the host and the user since it was last asked.
  std::string Events() { return std::exchange(events_, ""); }

  Settings settings;
  ORXQueryPrnProp control;
  std::function<void()> onOrderChanged = [] {};
  std::function<void()> onPrintLayoutGet = [] {};
  std::function<void()> onMessage = [] {};

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override {
    events_ += "layout " + std::to_string(ButtonID) + " '" + ToAscii(CharIObjName) + "';";
    onPrintLayoutGet();
  }
  void ORXOrderChanged() override {
    events_ += "order;";
    onOrderChanged();
  }
  void MsgBox(const Text& text, const Text& title) override {
    events_ += ToAscii(title) + ": " + ToAscii(text) + ";";
    onMessage();
  }

  template <class Condition>
  std::string Those(TextView begin, Condition condition) {
    std::string names;
    for (const auto& widget : Dialog_().Controls()) {
      const WidgetName& name = widget->Row().name;
      if (!name.name.substr(3).starts_with(begin) || !condition(*widget)) continue;
      const WidgetKind kind = widget->Row().kind;
      if (kind == WidgetKind::Label || kind == WidgetKind::Frame) continue;
      names += (names.empty() ? "" : " ") + ToAscii(name.name.substr(3 + begin.size()));
    }
    return names;
  }

  std::string events_;
};

/// Dimension rows of print characteristics, in their order: `a b c` with the flags of each behind it, Q, P, A for
/// the breaks, - for a hidden one.
std::string Characteristics(const std::string& words);

}  // namespace ORXKMPrintProp::test
