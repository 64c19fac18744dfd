#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <tuple>

#include "dialog/Widgets.h"
#include "views/Fitting.h"
#include "views/Places.h"
#include "views/win32/PrnPropView.h"

namespace ORXKMPrintProp::win32 {

/// What the windows of one dialog share.
class Surface {
 public:
  explicit Surface(Reports reports) : reports_(std::move(reports)) {}
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  virtual ~Surface();

  /// Holds the windows, and what their owner wants to be held, until it goes.
  struct Held {
    std::shared_ptr<Surface> surface;
    std::shared_ptr<void> owner;
  };
  Held Hold();
  /// Whether the dialog is still there; nothing is to be done with it else.
  bool IsOpen() const { return isOpen_; }

  const Reports& GetReports() const { return reports_; }
  const views::Resolution& Resolution() const { return resolution_; }
  /// Of the system, at that resolution. @param metric SM_...
  int MetricOf(int metric) const;

  /// The font in these letters; lives as long as the windows.
  HFONT FontOf(const Font& font, const views::Letters& letters = {});
  views::Measure MeasureOf(const Font& font);
  int HeightOf(const Font& font);

  /// Those of the widget's caption.
  virtual views::Letters LettersOf(const Widget& widget) = 0;

  /// The pointer that is seen now, null for that of each window.
  HCURSOR Pointer() const { return pointer_; }

  /// Calls the widget's view back, behind the message that is handled now.
  virtual void PostUse(Widget& widget, WPARAM what) = 0;
  /// Does what is done by keys in the whole dialog. @return false for what belongs to the widget alone.
  virtual bool TakeKey(Widget& widget, WPARAM virtualKey, LPARAM flags) = 0;
  virtual void GotFocus(const Widget& widget) = 0;
  /// A widget no longer has it, but that window or none.
  virtual void LostFocus(HWND to) = 0;
  /// The widget can't have the focus any longer.
  virtual void PassFocus(const Widget& widget) = 0;
  /// The text that the pointer finds over the widget.
  virtual void SetToolTip(const Widget& widget, const Text& text) = 0;
  virtual void RelayToToolTip(HWND window, UINT message, WPARAM wParam, LPARAM lParam) = 0;

 protected:
  virtual std::shared_ptr<Surface> Shared() = 0;
  void Resolution(const views::Resolution& resolution) { resolution_ = resolution; }
  void Close() { isOpen_ = false; }

  HCURSOR pointer_ = nullptr;

 private:
  Reports reports_;
  views::Resolution resolution_{96, 96};
  std::map<std::tuple<Text, long, int, int>, HFONT> fonts_;
  bool isOpen_ = true;
};

}  // namespace ORXKMPrintProp::win32
