#pragma once

#include <windows.h>

#include <shellapi.h>

#include <memory>

#include "host/editor/Editor.h"
#include "host/win32/ButtonRow.h"
#include "host/win32/FilePicker.h"
#include "host/win32/Metrics.h"
#include "host/win32/Viewport.h"
#include "views/win32/PrnPropView.h"

namespace ORXKMPrintProp::host {

/// The dialog with what a host adds to it: OK, Cancel and Apply, the editor of layouts, and a line beside the buttons
/// that tells what has come of what the user does.
class EditWindow : private EditorWindow {
 public:
  /// @param settings must outlive the window.
  /// @throws std::system_error where the system makes no window.
  explicit EditWindow(EditedSettings& settings);
  EditWindow(const EditWindow&) = delete;
  EditWindow& operator=(const EditWindow&) = delete;
  ~EditWindow() override;

  /// Null once it is closed.
  HWND Window() const { return window_; }
  /// The dialog in it.
  HWND DialogWindow() const { return view_->Window(); }
  void Show();
  /// Handles the thread's messages until the window is closed.
  void Run();
  /// Handles those that have come already.
  void HandleMessages();

 private:
  void ShowMeaning(const Snapshot&, const Snapshot&) override {}
  void ShowState(const EditorState& state) override;
  Choice Ask(const Question& question) override;
  std::optional<Text> EditLayout(const Text& name, const Text& layout, bool readOnly) override;
  std::optional<std::string> PickFile(FileUse use, const std::string& proposed) override {
    return PickFileIn(window_, use, proposed);
  }
  RecentFiles Remembered() override { return {}; }
  void Remember(const RecentFiles&) override {}
  void Focus(const Widget& widget) override { view_->Focus(widget); }

  static LRESULT CALLBACK OnMessageOf(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void MakeWindows(Dialog& dialog);
  /// What is inside where the dialog is seen whole.
  SIZE WholeSize() const;
  void FitFonts();
  void Place();
  /// The first of them.
  void OpenDropped(HDROP files);
  void DrawStatus(const DRAWITEMSTRUCT& item) const;
  /// Does what a key does to the window as a whole, ahead of the widget that it was pressed in. @return false for all
  /// other messages.
  bool TakeKey(const MSG& message);
  bool TakePlainKey(const MSG& message);
  void PassFocus(int step);
  void RestoreFocus();
  void OnButton(int id);
  void Accept();
  /// Whether a message stands in the middle of something.
  bool IsWaiting() const { return !::IsWindowEnabled(window_); }

  Editor editor_;
  HWND window_ = nullptr;
  HWND status_ = nullptr;
  HWND lastFocus_ = nullptr;
  std::unique_ptr<Viewport> dialog_;
  std::unique_ptr<win32::PrnPropView> view_;
  ButtonRow buttons_;
  UINT dpi_ = 96;
  OwnedFont font_;
};

}  // namespace ORXKMPrintProp::host
