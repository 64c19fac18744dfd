#pragma once

#include <cstdint>
#include <optional>

#include "dialog/Widgets.h"
#include "model/Property.h"
#include "pages/ListRoutines.h"
#include "tables/Conversions.h"

// How input widgets show and store the properties of the model. What a widget holds that is no value of the
// property stores nothing: the property keeps its value, and the next fill shows it.

namespace ORXKMPrintProp {

inline void Show(TextBox& box, const Text& value) { box.SetText(value); }
inline void Show(TextBox& box, std::int16_t value) { box.SetText(ToText(std::int32_t{value})); }
inline void Show(CheckBox& box, bool value) { box.Value(ModPrnGen::BoolToCheck(value)); }

/// The entry whose index is the value, a blank field for a value without one.
inline void Show(ComboBox& combo, std::int32_t value) {
  combo.ListIndex(value >= 0 && value < combo.ListCount() ? static_cast<std::int16_t>(value) : std::int16_t{-1});
}

inline void Store(const TextBox& box, TextProperty& property) { property(box.GetText()); }
inline void Store(const CheckBox& box, FlagProperty& property) { property(ModPrnGen::CheckToBool(box.Value())); }

template <class Enumeration>
void Store(const ComboBox& combo, Property<Enumeration>& property) {
  if (combo.ListIndex() >= 0) property(static_cast<Enumeration>(combo.ListIndex()));
}

inline void StoreNumber(std::optional<std::int16_t> number, NumberProperty& property) {
  if (number) property(*number);
}
/// The number at the head of the text, 0 for none.
inline void StoreLeading(const TextBox& box, NumberProperty& property) {
  StoreNumber(TryLeadingNumber(box.GetText()), property);
}
/// The whole text as a number.
inline void StoreWhole(const TextBox& box, NumberProperty& property) {
  StoreNumber(TryInteger(box.GetText()), property);
}

}  // namespace ORXKMPrintProp
