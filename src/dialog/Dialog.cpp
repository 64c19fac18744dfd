#include "dialog/Dialog.h"

#include <algorithm>
#include <utility>

#include "dialog/DialogFont.h"
#include "dialog/DialogTexts.h"
#include "tables/RunTimeError.h"
#include "texts/LookupText.h"

namespace ORXKMPrintProp {
namespace {

template <class W>
std::unique_ptr<Widget> Make(WidgetContext& context, const LayoutRow& row) {
  return std::make_unique<W>(context, row);
}

std::unique_ptr<Widget> MakeWidget(WidgetContext& context, const LayoutRow& row) {
  switch (row.kind) {
    case WidgetKind::SSTab:
      return Make<SSTab>(context, row);
    case WidgetKind::Frame:
      return Make<Frame>(context, row);
    case WidgetKind::Label:
      return Make<Label>(context, row);
    case WidgetKind::TextBox:
      return Make<TextBox>(context, row);
    case WidgetKind::ComboBox:
      return Make<ComboBox>(context, row);
    case WidgetKind::CheckBox:
      return Make<CheckBox>(context, row);
    case WidgetKind::ListBox:
      return Make<ListBox>(context, row);
    case WidgetKind::CommandButton:
      return Make<CommandButton>(context, row);
  }
  return nullptr;
}

}  // namespace

Dialog::Dialog(const Platform& platform) : context_{platform, &noView_} {
  for (const LayoutRow& row : DialogLayout()) controls_.push_back(MakeWidget(context_, row));
  tabStrip_ = &Get<SSTab>(u"tstPrint");
}

Dialog::~Dialog() = default;

Widget* Dialog::Find(const WidgetName& name) const {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(), [&](const auto& widget) { return widget->Row().name == name; });
  return found == controls_.end() ? nullptr : found->get();
}

Widget* Dialog::FindSpelled(TextView name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& widget) { return widget->Row().name.Spelled() == name; });
  return found == controls_.end() ? nullptr : found->get();
}

Widget& Dialog::Needed(const WidgetName& name) const {
  if (Widget* const widget = Find(name)) return *widget;
  throw RunTimeError(ErrorKind::NoSuchKey, u"The dialog has no widget " + Text(name.name) + u".");
}

void Dialog::MousePointer(std::int16_t pointer) {
  if (pointer == mousePointer_) return;
  mousePointer_ = pointer;
  context_.view->MousePointerChanged(pointer);
}

void Dialog::ApplyTexts() {
  for (const DialogText& text : DialogTexts()) Receive(text, ModPrnGen::LookupText(text.key, text.text));
}

void Dialog::Receive(const DialogText& place, Text text) {
  Widget& widget = Needed(place.widget);
  switch (place.receives) {
    case Receives::Caption:
      return widget.Caption(std::move(text));
    case Receives::ToolTipText:
      return widget.ToolTipText(std::move(text));
    case Receives::TabCaption:
      return tabStrip_->TabCaption(place.number, std::move(text));
    case Receives::Item:
      auto& combo = dynamic_cast<ComboBox&>(widget);
      if (place.number >= combo.ListCount()) return combo.AddItem(std::move(text));
      combo.List(place.number, std::move(text));
  }
}

void Dialog::ApplyDialogFont() {
  if (gDefaultFontName.empty()) RBDoubleByteCS::GetDefaultDialogFont(context_.platform);
  for (const auto& widget : controls_) {
    if (!widget->Row().name.name.starts_with(u"mnu")) widget->FontName(gDefaultFontName);
  }
}

}  // namespace ORXKMPrintProp
