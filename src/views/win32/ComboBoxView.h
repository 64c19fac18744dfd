#pragma once

#include "dialog/Lists.h"
#include "views/Keys.h"
#include "views/win32/WidgetView.h"

namespace ORXKMPrintProp::win32 {

/// The window's own entries are brought in line once for all of a change, ahead of anything that is asked of them.
class ComboBoxView : public ViewOf<ComboBox> {
 public:
  using ViewOf::ViewOf;
  void MoveTo(const views::Place& place) override;
  void Refresh() override;
  void Show(WidgetProperty what) override;
  void EntryChanged(int index, EntryProperty what) override;
  void EntryAdded(int index) override;
  void EntryRemoved(int index) override;
  void EntriesCleared() override;
  void OnNotify(UINT notification) override;
  void Use(WPARAM what) override;
  std::optional<views::TextRoom> RoomOf(TextView text, int tab) const override;

 protected:
  WindowKind Kind() const override {
    return {L"COMBOBOX", CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP};
  }
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  bool IsOpen() const { return Send(CB_GETDROPPEDSTATE) != 0; }
  std::optional<LRESULT> TakeKeyPress(const views::KeyPress& press);
  void ShowEntriesLater();
  /// What lies beside the text in the field, with the button.
  int FieldEdge() const;
  void ShowEntries();
  void ShowPicked();

  bool areEntriesBehind_ = false;
  bool isTold_ = false;        ///< that an entry has been picked, by the first of two notifications
  std::optional<Text> shown_;  ///< in the field, and told in the tooltip where it is cut
  views::TypeAhead search_;
};

}  // namespace ORXKMPrintProp::win32
