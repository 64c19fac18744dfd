#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "dialog/GapVector.h"
#include "dialog/Widgets.h"

/// @file
/// The widgets that hold entries. The rules of Widgets.h hold here too.

namespace ORXKMPrintProp {

/// What lists and combo boxes have in common.
class EntryWidget : public Widget {
 public:
  EntryWidget(WidgetContext& context, const LayoutRow& row);
  ~EntryWidget() override;

  /// A write has changed `ListIndex` or a selection, or the user has clicked an entry of a list, the selected one too,
  /// or picked another one in a combo box. No other operation raises it.
  std::function<void()> Click;

  /// Places an entry; its ItemData is 0 and it is not selected. `NewIndex` is then where it went.
  /// @param text in a list shown on one line, whatever it holds.
  /// @param index 0 to `ListCount`, where the entry goes, also in a sorted list. Without it the entry goes to the
  /// end, in a sorted list ahead of the first entry that sorts behind it.
  /// @throws RunTimeError (Overflow) when there are 32,767 entries.
  void AddItem(Text text, std::optional<std::int16_t> index = {});
  void RemoveItem(std::int16_t index);
  /// What `RemoveItem` does, and then `AddItem` of the same entry with its ItemData; never runs out of memory.
  /// @param index the entry.
  /// @param to 0 to `ListCount` - 1, where the entry then stands.
  void MoveItem(std::int16_t index, std::int16_t to);
  void Clear();

  const Text& List(std::int16_t index) const;
  /// Changes the text of an entry where it stands.
  void List(std::int16_t index, Text text);
  std::int16_t ListCount() const { return static_cast<std::int16_t>(entries_.size()); }

  /// A number that goes with the entry, of which the user sees nothing.
  std::int32_t ItemData(std::int16_t index) const;
  void ItemData(std::int16_t index, std::int32_t data);
  /// Where the last entry that was added or moved went, whatever has come and gone since; -1 before the first.
  std::int16_t NewIndex() const { return newIndex_; }

  /// The entry that is shown in a combo box, or that has the caret in a list. It stays with its entry when others
  /// come and go, and becomes -1 when that one goes. Writing what it is raises no Click.
  virtual std::int16_t ListIndex() const { return listIndex_; }
  void ListIndex(std::int16_t index);

 protected:
  struct Entry;

  Entry& At(std::int16_t index) const;
  void TellEntry(std::int16_t index, EntryProperty what) { context_.view->EntryChanged(*this, index, what); }
  bool Has(std::int16_t index) const { return index >= 0 && index < ListCount(); }
  /// Moves the index without an event.
  void Place(std::int16_t index) { Set(WidgetProperty::ListIndex, listIndex_, index); }

  virtual bool IndexFollowsEntry() const { return true; }
  /// The index is to be the one that has been written.
  virtual void OnListIndex(std::int16_t index) { Place(index); }
  virtual void OnRemove(Entry&) {}
  virtual void OnClear() {}

 private:
  std::size_t SortedPlace(TextView text);
  std::unique_ptr<Entry> Take(std::int16_t index);
  void Put(std::size_t place, std::unique_ptr<Entry>&& entry);

  GapVector<std::unique_ptr<Entry>> entries_;
  std::size_t ranked_ = 0;  ///< how many entries, from the first, know the greatest one up to them
  std::int16_t listIndex_ = -1;
  std::int16_t newIndex_ = -1;
};

/// A field that shows one of its entries, or none; the user can pick another, but not type.
class ComboBox : public EntryWidget {
 public:
  using EntryWidget::EntryWidget;

  /// Picks the entry. The one that is shown already raises no Click.
  Refusal UserPick(std::int16_t index);
};

/// A list of which one entry or several are selected, as the layout has it, and one has the caret.
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

  /// The left button is held over the list.
  bool IsHeld() const { return held_; }

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
  void OnRemove(Entry& entry) override;
  void OnClear() override {
    selCount_ = 0;
    held_ = false;  // what was under the pointer is gone
  }

 private:
  bool IsMulti() const { return Row().multiSelect; }
  void Select(std::int16_t index, bool selected);
  void Mark(std::int16_t index, bool selected);
  void SelectOnly(std::int16_t index);
  Refusal RefusesEntry(std::int16_t entry) const;

  std::int16_t selCount_ = 0;
  bool held_ = false;
};

}  // namespace ORXKMPrintProp
