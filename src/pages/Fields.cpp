#include "pages/Fields.h"

#include <optional>

#include "pages/ListRoutines.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp {
namespace {

const Text& TextIn(const Widget& box) { return dynamic_cast<const TextBox&>(box).GetText(); }

void StoreNumber(std::optional<std::int16_t> number, Widget& box, NumberProperty& property) {
  if (number) property(*number);
  dynamic_cast<TextBox&>(box).kept = ToText(std::int32_t{property()});
}

}  // namespace

void TextField::Show(const Text& value, Widget& box) { dynamic_cast<TextBox&>(box).SetText(value); }
void TextField::Store(const Widget& box, TextProperty& property) { property(TextIn(box)); }

void FlagField::Show(bool value, Widget& check) { dynamic_cast<CheckBox&>(check).Value(ModPrnGen::BoolToCheck(value)); }
void FlagField::Store(const Widget& check, FlagProperty& property) {
  property(ModPrnGen::CheckToBool(dynamic_cast<const CheckBox&>(check).Value()));
}

void ChoiceField::Show(std::int32_t value, Widget& combo) {
  auto& shown = dynamic_cast<ComboBox&>(combo);
  shown.ListIndex(value >= 0 && value < shown.ListCount() ? static_cast<std::int16_t>(value) : std::int16_t{-1});
}
std::int16_t ChoiceField::Picked(const Widget& combo) { return dynamic_cast<const ComboBox&>(combo).ListIndex(); }

void LeadingNumberField::Show(std::int16_t value, Widget& box) {
  auto& shown = dynamic_cast<TextBox&>(box);
  shown.kept = ToText(std::int32_t{value});
  shown.SetText(shown.kept);
}
void LeadingNumberField::Store(Widget& box, NumberProperty& property) {
  StoreNumber(TryLeadingNumber(TextIn(box)), box, property);
}

void WholeNumberField::Store(Widget& box, NumberProperty& property) {
  StoreNumber(TryInteger(TextIn(box)), box, property);
}

void FieldWidgets::Blank() const {
  for (const auto& [widget, kind] : widgets_) {
    switch (kind) {
      case FieldKind::Flag:
        FlagField::Show(false, *widget);
        break;
      case FieldKind::Choice:
        ChoiceField::Show(-1, *widget);
        break;
      case FieldKind::Text:
      case FieldKind::LeadingNumber:
      case FieldKind::WholeNumber:
        TextField::Show({}, *widget);
        break;
    }
  }
}

void FieldWidgets::Enable(bool enabled) const {
  for (const auto& [widget, kind] : widgets_) widget->Enabled(enabled);
}

void FieldWidgets::Add(Widget& widget, FieldKind kind) {
  widgets_.emplace_back(&widget, kind);
  if (kind != FieldKind::LeadingNumber && kind != FieldKind::WholeNumber) return;
  auto& box = dynamic_cast<TextBox&>(widget);
  box.KeyPress = ModPrnGen::FilterDigitKey;
  box.CanStore = [kind](const Text& text) {
    return (kind == FieldKind::WholeNumber ? TryInteger(text) : TryLeadingNumber(text)).has_value();
  };
}

}  // namespace ORXKMPrintProp
