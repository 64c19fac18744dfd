#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "pages/DialogLayout.h"
#include "pages/GapVector.h"
#include "tables/Text.h"

// The widgets of the dialog, in memory: the one truth about what the dialog shows. The page logic reads and writes
// them, a view draws them and hands in what the user does.
//
// - Entries count from 0, -1 is none. An index out of range throws RunTimeError (Index) and leaves the widget as it
//   was.
// - A write acts at once. When it raises an event, the handler runs to its end inside the write; a handler may
//   change any widget, the very one whose event it handles too.
// - The User... operations are the user's side. They do what a user can do, and tell why when he can't; then nothing
//   happens. A failure of a handler leaves them.

namespace ORXKMPrintProp {

class Dialog;

/// Why a user can't do something; where several apply, the first of them in this order.
enum class Refusal { None, NotOnTop, Hidden, Disabled, NoSuchEntry };

struct Font {
  Text Name;
  double Size;  ///< in points
  int Weight;
};

class Widget {
 public:
  Widget(Dialog& dialog, const LayoutRow& row);
  virtual ~Widget() = default;
  Widget(const Widget&) = delete;
  Widget& operator=(const Widget&) = delete;

  /// Geometry, place in the dialog and what else is stored with the form.
  const LayoutRow& Row() const { return row_; }

  const Font& GetFont() const { return font_; }
  void FontName(Text name) { Set(font_.Name, std::move(name)); }

  const Text& ToolTipText() const { return toolTipText_; }
  void ToolTipText(Text text) { Set(toolTipText_, std::move(text)); }

  bool Visible() const { return visible_; }
  void Visible(bool visible) { Set(visible_, visible); }

  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled) { Set(enabled_, enabled); }

  const Text& Caption() const { return caption_; }
  void Caption(Text caption) { Set(caption_, std::move(caption)); }

  /// Whether the user can reach the widget now.
  Refusal Refuses() const;

 protected:
  template <class T>
  void Set(T& field, T value) {
    if (field == value) return;
    field = std::move(value);
    NotifyChanged();
  }
  void NotifyChanged();
  /// Runs the handler, if there is one.
  template <class... Types, class... Args>
  static void Raise(const std::function<void(Types...)>& handler, Args&&... args) {
    if (handler) handler(std::forward<Args>(args)...);
  }

  Dialog& dialog_;

 private:
  const LayoutRow& row_;
  Font font_;
  Text caption_;
  Text toolTipText_;
  bool visible_ = true;
  bool enabled_ = true;
};

class Frame : public Widget {
  using Widget::Widget;
};

class Label : public Widget {
  using Widget::Widget;
};

class CommandButton : public Widget {
 public:
  using Widget::Widget;
  std::function<void()> Click;

  Refusal UserPress();
};

class CheckBox : public Widget {
 public:
  using Widget::Widget;
  std::function<void()> Click;

  /// 0 unchecked, 1 checked; any other value counts as checked.
  std::int16_t Value() const { return value_; }
  void Value(std::int16_t value);

  Refusal UserToggle();

 private:
  std::int16_t value_ = 0;
};

class TextBox : public Widget {
 public:
  using Widget::Widget;
  /// May change the character's code; 0 drops the key.
  std::function<void(std::int16_t& KeyAscii)> KeyPress;

  static constexpr char16_t kBackspace = 8;

  const Text& GetText() const { return text_; }
  /// Is told also where the text was the same: it may be another's.
  void SetText(Text text) {
    text_ = std::move(text);
    NotifyChanged();
  }

  /// What becomes of a key: its code as `KeyPress` leaves it, 0 for none. The text does not change.
  char16_t FilterKey(char16_t key) const;

  /// A key at the end of the text; Backspace takes the last character away, other control codes do nothing.
  Refusal UserKey(char16_t key);
  /// The whole text after an edit that went past the keyboard, or whose keys have been through `FilterKey`.
  Refusal UserEdit(Text text);

 private:
  Text text_;
};

/// What lists and combo boxes have in common.
class EntryWidget : public Widget {
 public:
  EntryWidget(Dialog& dialog, const LayoutRow& row);
  ~EntryWidget() override;

  /// The user's action or a write has changed `ListIndex` or a selection. No other operation raises it.
  std::function<void()> Click;

  /// Places an entry; its ItemData is 0 and it is not selected. `NewIndex` then tells where it went.
  /// @param index 0 to `ListCount`, where the entry goes, also in a sorted list. Without it the entry goes to the
  /// end, in a sorted list ahead of the first entry that sorts behind it.
  /// @throws RunTimeError (Overflow) when there are 32,767 entries.
  void AddItem(Text text, std::optional<std::int16_t> index = {});
  void RemoveItem(std::int16_t index);
  void Clear();

  const Text& List(std::int16_t index) const;
  /// Changes the text of an entry where it stands.
  void List(std::int16_t index, Text text);
  std::int16_t ListCount() const { return static_cast<std::int16_t>(entries_.size()); }

  std::int32_t ItemData(std::int16_t index) const;
  void ItemData(std::int16_t index, std::int32_t data);
  std::int16_t NewIndex() const { return newIndex_; }

  /// The entry that is shown in a combo box, or that has the caret in a list. It stays with its entry when others
  /// come and go, and becomes -1 when that one goes. Writing what it is raises no Click.
  virtual std::int16_t ListIndex() const { return listIndex_; }
  void ListIndex(std::int16_t index);

  /// The view's text order is another one now.
  void ForgetOrder();

 protected:
  struct Entry;

  Entry& At(std::int16_t index) const;
  bool Has(std::int16_t index) const { return index >= 0 && index < ListCount(); }
  /// Moves the index without an event.
  void Place(std::int16_t index) { Set(listIndex_, index); }

  virtual bool IndexFollowsEntry() const { return true; }
  /// The index is to be the one that has been written.
  virtual void OnListIndex(std::int16_t index) { Place(index); }
  virtual void OnRemove(const Entry&) {}
  virtual void OnClear() {}

 private:
  std::size_t SortedPlace(TextView text);

  GapVector<std::unique_ptr<Entry>> entries_;
  std::size_t ranked_ = 0;  ///< how many entries, from the first, know the greatest one up to them
  std::int16_t listIndex_ = -1;
  std::int16_t newIndex_ = -1;
};

class ComboBox : public EntryWidget {
 public:
  using EntryWidget::EntryWidget;

  Refusal UserPick(std::int16_t index);
};

class ListBox : public EntryWidget {
 public:
  using EntryWidget::EntryWidget;

  /// `Button` 1 is the left one, 2 the right one.
  using MouseHandler = std::function<void(std::int16_t Button)>;
  MouseHandler MouseDown;
  MouseHandler MouseMove;
  MouseHandler MouseUp;

  static constexpr std::int16_t kLeftButton = 1;
  static constexpr std::int16_t kRightButton = 2;

  bool Sorted() const { return Row().sorted; }

  std::int16_t SelCount() const { return selCount_; }
  bool Selected(std::int16_t index) const;
  void Selected(std::int16_t index, bool selected);

  /// While the left button is held, this is the entry under the pointer, whatever entries come and go.
  std::int16_t ListIndex() const override;
  using EntryWidget::ListIndex;

  Refusal UserMouseDown(std::int16_t entry, std::int16_t button);
  /// The pointer is over another entry, with the left button held.
  Refusal UserMouseMove(std::int16_t entry);
  /// Never refused: what has begun also ends.
  void UserMouseUp(std::int16_t button);
  /// By keyboard: the caret goes to the entry, which a list without multiple selection then selects.
  Refusal UserMoveCaret(std::int16_t entry);
  /// By keyboard: toggles the entry at the caret of a list with multiple selection.
  Refusal UserToggle();
  /// By keyboard: what a drag of the entry at the caret to its neighbour does, without the click that begins it. In a
  /// list that can't be reordered nothing happens.
  /// @param direction -1 up, 1 down
  Refusal UserDragStep(std::int16_t direction);

 protected:
  bool IndexFollowsEntry() const override { return !held_; }
  void OnListIndex(std::int16_t index) override;
  void OnRemove(const Entry& entry) override;
  void OnClear() override {
    selCount_ = 0;
    held_ = false;  // what was under the pointer is gone
  }

 private:
  bool IsMulti() const { return Row().multiSelect; }
  void Mark(std::int16_t index, bool selected);
  void SelectOnly(std::int16_t index);
  Refusal RefusesEntry(std::int16_t entry) const;

  std::int16_t selCount_ = 0;
  bool held_ = false;
};

class SSTab : public Widget {
 public:
  SSTab(Dialog& dialog, const LayoutRow& row);

  /// The page on top is another one; `Tab` holds it already.
  std::function<void(std::int16_t PreviousTab)> Click;

  static constexpr std::int16_t kTabs = 4;

  std::int16_t Tab() const { return tab_; }
  void Tab(std::int16_t tab);

  const Text& TabCaption(std::int16_t tab) const;
  void TabCaption(std::int16_t tab, Text caption);

  Refusal UserPick(std::int16_t tab);

 private:
  std::int16_t tab_ = 0;
  std::array<Text, kTabs> captions_;
};

}  // namespace ORXKMPrintProp
