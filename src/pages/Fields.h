#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "dialog/Dialog.h"
#include "model/Property.h"

namespace ORXKMPrintProp {

enum class FieldKind { Text, Flag, Choice, LeadingNumber, WholeNumber };

/// An input widget that stands for a property of an `Item`.
template <class Item>
struct FieldOf {
  TextView widget;  ///< its name, in which "?" stands for that of the page
  FieldKind kind;
  void (*show)(const Item&, Widget&);
  void (*store)(Widget&, Item&);
};

// How a widget of each kind shows and stores a value. What it holds that is not a value of the property stores nothing:
// the property keeps its value, and the next fill shows it.

struct TextField {
  static constexpr FieldKind kKind = FieldKind::Text;
  static void Show(const Text& value, Widget& box);
  static void Store(const Widget& box, TextProperty& property);
};

struct FlagField {
  static constexpr FieldKind kKind = FieldKind::Flag;
  static void Show(bool value, Widget& check);
  static void Store(const Widget& check, FlagProperty& property);
};

/// The entry whose index is the value, a blank field for a value without one.
struct ChoiceField {
  static constexpr FieldKind kKind = FieldKind::Choice;
  static void Show(std::int32_t value, Widget& combo);
  template <class Enumeration>
  static void Store(const Widget& combo, Property<Enumeration>& property) {
    if (const std::int16_t index = Picked(combo); index >= 0) property(static_cast<Enumeration>(index));
  }
  static std::int16_t Picked(const Widget& combo);
};

/// The number at the head of the text, 0 for none.
struct LeadingNumberField {
  static constexpr FieldKind kKind = FieldKind::LeadingNumber;
  static void Show(std::int16_t value, Widget& box);
  static void Store(Widget& box, NumberProperty& property);
};

/// The whole text as a number.
struct WholeNumberField {
  static constexpr FieldKind kKind = FieldKind::WholeNumber;
  static void Show(std::int16_t value, Widget& box) { LeadingNumberField::Show(value, box); }
  static void Store(Widget& box, NumberProperty& property);
};

/// The widget of that name stands for the property, in a field of that kind.
template <class Item, auto Member, class Field>
constexpr FieldOf<Item> PropertyField(TextView widget) {
  return {widget, Field::kKind, [](const Item& item, Widget& shown) { Field::Show((item.*Member)(), shown); },
          [](Widget& shown, Item& item) { Field::Store(shown, item.*Member); }};
}

/// What all kinds have in common.
class FieldWidgets {
 public:
  /// Empty, unchecked, no entry.
  void Blank() const;
  void Enable(bool enabled) const;

 protected:
  /// Gives a box for numbers its key filter, and the rule of what it can store.
  void Add(Widget& widget, FieldKind kind);

  std::vector<std::pair<Widget*, FieldKind>> widgets_;
};

/// The widgets of a table of fields.
template <class Item>
class Fields : public FieldWidgets {
 public:
  using Rows = std::span<const FieldOf<Item>>;

  /// @param rows must live as long.
  /// @param page the name of the page in the names of its widgets, "Char".
  Fields(const Dialog& dialog, Rows rows, TextView page = {}) : rows_(rows) {
    for (const FieldOf<Item>& row : rows_) {
      Text name(row.widget);
      if (const auto mark = name.find(u'?'); mark != Text::npos) name.replace(mark, 1, page);
      Add(dialog.Get<Widget>(name), row.kind);
    }
  }

  void Show(const Item& item) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i].show(item, *widgets_[i].first);
  }
  void Store(Item& item) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i].store(*widgets_[i].first, item);
  }

 private:
  Rows rows_;
};

}  // namespace ORXKMPrintProp
