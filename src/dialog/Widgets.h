#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <utility>

#include "dialog/DialogLayout.h"
#include "dialog/Platform.h"
#include "dialog/View.h"
#include "tables/Text.h"

/// @file
/// The widgets of the dialog, in memory: the one truth about what the dialog shows. The page logic reads and writes
/// them, a view draws them and hands in what the user does.
///
/// - Entries count from 0, -1 is none. An index out of range throws RunTimeError (Index) and leaves the widget as it
///   was.
/// - A write acts at once. When it raises an event, the handler runs to its end inside the write; a handler may
///   change any widget, the very one whose event it handles too.
/// - The User... operations are the user's side. They do what a user can do, and tell why when he can't; then nothing
///   happens. A failure of a handler leaves them.

namespace ORXKMPrintProp {

/// What the widgets of one dialog share.
struct WidgetContext {
  const Platform& platform;
  View* view;
  std::int16_t tab = 0;  ///< the page on top
};

/// Why a user can't do something; where several apply, the first of them in this order.
enum class Refusal { None, NotOnTop, Hidden, Disabled, NoSuchEntry };

/// The reason in words: "not on top", "hidden", "disabled", "no such entry"; empty for none.
const char* WordsOf(Refusal refusal);

/// The typeface of a widget.
struct Font {
  Text Name;
  double Size;  ///< in points
  int Weight;   ///< 400 is normal, 700 bold
};

/// What all widgets have in common.
class Widget {
 public:
  Widget(WidgetContext& context, const LayoutRow& row);
  virtual ~Widget() = default;
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  /// Geometry, place in the dialog and what else is stored with the form.
  const LayoutRow& Row() const { return row_; }

  const Font& GetFont() const { return font_; }
  void FontName(Text name) { Set(WidgetProperty::Font, font_.Name, std::move(name)); }

  const Text& ToolTipText() const { return toolTipText_; }
  void ToolTipText(Text text) { Set(WidgetProperty::ToolTipText, toolTipText_, std::move(text)); }

  bool Visible() const { return visible_; }
  void Visible(bool visible) { Set(WidgetProperty::Visible, visible_, visible); }

  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled) { Set(WidgetProperty::Enabled, enabled_, enabled); }

  const Text& Caption() const { return caption_; }
  void Caption(Text caption) { Set(WidgetProperty::Caption, caption_, std::move(caption)); }

  /// Whether the user can reach the widget now.
  Refusal Refuses() const;

 protected:
  template <class T>
  void Set(WidgetProperty what, T& field, T value) {
    if (field == value) return;
    field = std::move(value);
    Tell(what);
  }
  void Tell(WidgetProperty what) { context_.view->Changed(*this, what); }
  [[noreturn]] void ThrowIndex(std::int16_t index) const;
  /// Runs the handler, if there is one.
  template <class... Types, class... Args>
  static void Raise(const std::function<void(Types...)>& handler, Args&&... args) {
    if (handler) handler(std::forward<Args>(args)...);
  }

  WidgetContext& context_;

 private:
  const LayoutRow& row_;
  Font font_;
  Text caption_;
  Text toolTipText_;
  bool visible_ = true;
  bool enabled_ = true;
};

/// A line around widgets, with a caption.
class Frame : public Widget {
  using Widget::Widget;
};

/// A caption by itself.
class Label : public Widget {
  using Widget::Widget;
};

/// A button.
class CommandButton : public Widget {
 public:
  using Widget::Widget;
  /// The user has pressed it.
  std::function<void()> Click;

  Refusal UserPress();
};

/// A box that is ticked or not.
class CheckBox : public Widget {
 public:
  using Widget::Widget;
  /// The user or a write has changed `Value`.
  std::function<void()> Click;

  /// 0 unchecked, 1 checked; any other value counts as checked.
  std::int16_t Value() const { return value_; }
  void Value(std::int16_t value);

  Refusal UserToggle();

 private:
  std::int16_t value_ = 0;
};

/// A field of one line that the user types in.
class TextBox : public Widget {
 public:
  using Widget::Widget;
  /// May change the character's code; 0 drops the key.
  std::function<void(std::int16_t& KeyAscii)> KeyPress;

  /// Whether the setting behind the box can take the text; else it keeps its value. Without it any text can be stored.
  std::function<bool(const Text& text)> CanStore;
  /// What that setting held when it was shown or stored last; empty for a box that takes any text.
  Text kept;

  static constexpr char16_t kBackspace = 8;

  const Text& GetText() const { return text_; }
  /// Is told also where the text was the same: it may be another's.
  void SetText(Text text) {
    text_ = std::move(text);
    Tell(WidgetProperty::Text);
  }

  bool IsStorable() const { return !CanStore || CanStore(text_); }

  /// What becomes of a key: its code as `KeyPress` leaves it, 0 for none. The text does not change.
  char16_t FilterKey(char16_t key) const;
  /// What becomes of several; control codes belong to keys with a meaning of their own and stay.
  Text Filter(TextView keys) const;

  /// A key at the end of the text; Backspace takes the last character away, other control codes do nothing.
  Refusal UserKey(char16_t key);
  /// The whole text after an edit that went past the keyboard, or whose keys have been filtered.
  Refusal UserEdit(Text text);

 private:
  Text text_;
};

/// The tab strip, with a page below each tab.
class SSTab : public Widget {
 public:
  SSTab(WidgetContext& context, const LayoutRow& row);

  /// The page on top is another one; `Tab` holds it already.
  std::function<void(std::int16_t PreviousTab)> Click;

  static constexpr std::int16_t kTabs = 4;

  /// The page on top, from 0.
  std::int16_t Tab() const { return context_.tab; }
  void Tab(std::int16_t tab);

  const Text& TabCaption(std::int16_t tab) const;
  void TabCaption(std::int16_t tab, Text caption);

  Refusal UserPick(std::int16_t tab);

 private:
  std::array<Text, kTabs> captions_;
};

}  // namespace ORXKMPrintProp
