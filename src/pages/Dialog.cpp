#include "pages/Dialog.h"

#include <algorithm>
#include <utility>

#include "tables/CaseFolding.h"
#include "tables/Conversions.h"
#include "tables/RunTimeError.h"
#include "texts/DialogTexts.h"

namespace ORXKMPrintProp {
namespace {

template <class W>
std::unique_ptr<Widget> Make(Dialog& dialog, const LayoutRow& row) {
  return std::make_unique<W>(dialog, row);
}

std::unique_ptr<Widget> MakeWidget(Dialog& dialog, const LayoutRow& row) {
  switch (row.kind) {
    case WidgetKind::SSTab:
      return Make<SSTab>(dialog, row);
    case WidgetKind::Frame:
      return Make<Frame>(dialog, row);
    case WidgetKind::Label:
      return Make<Label>(dialog, row);
    case WidgetKind::TextBox:
      return Make<TextBox>(dialog, row);
    case WidgetKind::ComboBox:
      return Make<ComboBox>(dialog, row);
    case WidgetKind::CheckBox:
      return Make<CheckBox>(dialog, row);
    case WidgetKind::ListBox:
      return Make<ListBox>(dialog, row);
    case WidgetKind::CommandButton:
      return Make<CommandButton>(dialog, row);
  }
  return nullptr;
}

}  // namespace

int View::CompareTexts(TextView a, TextView b) const {
  const auto [x, y] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                    [](char16_t c, char16_t d) { return FoldCase(c) == FoldCase(d); });
  if (x == a.end() || y == b.end()) return (x != a.end()) - (y != b.end());
  return FoldCase(*x) < FoldCase(*y) ? -1 : 1;
}

Dialog::Dialog() {
  for (const LayoutRow& row : DialogLayout()) controls_.push_back(MakeWidget(*this, row));
  tabStrip_ = &Get<SSTab>(u"tstPrint");
}

Dialog::~Dialog() = default;

Widget* Dialog::Find(const WidgetName& name) const {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(), [&](const auto& widget) { return widget->Row().name == name; });
  return found == controls_.end() ? nullptr : found->get();
}

Widget& Dialog::Needed(const WidgetName& name) const {
  if (Widget* const widget = Find(name)) return *widget;
  throw RunTimeError(ErrorKind::Key, u"The dialog has no widget " + Text(name.name) + u".");
}

void Dialog::MousePointer(std::int16_t pointer) {
  if (pointer == mousePointer_) return;
  mousePointer_ = pointer;
  view_->MousePointerChanged(pointer);
}

void Dialog::ApplyTexts() {
  ORXKMPrintProp::ApplyTexts([this](const DialogText& place, Text text) {
    Widget& widget = Needed(place.widget);
    switch (place.receives) {
      case Receives::Caption:
        widget.Caption(std::move(text));
        break;
      case Receives::ToolTipText:
        widget.ToolTipText(std::move(text));
        break;
      case Receives::TabCaption:
        tabStrip_->TabCaption(place.number, std::move(text));
        break;
      case Receives::Item: {
        auto& combo = dynamic_cast<ComboBox&>(widget);
        if (place.number < combo.ListCount()) {
          combo.List(place.number, std::move(text));
        } else {
          combo.AddItem(std::move(text));
        }
        break;
      }
    }
  });
}

void Dialog::ApplyDialogFont(RBDoubleByteCS::FontPlatform& platform) {
  if (gDefaultFontName.empty()) RBDoubleByteCS::GetDefaultDialogFont(platform);
  for (const auto& widget : controls_) {
    if (!widget->Row().name.name.starts_with(u"mnu")) widget->FontName(gDefaultFontName);
  }
}

void Dialog::SetView(View* view) {
  view_ = view ? view : &noView_;
  for (const auto& widget : controls_) {
    if (auto* const entries = dynamic_cast<EntryWidget*>(widget.get())) entries->ForgetOrder();
  }
}

}  // namespace ORXKMPrintProp
