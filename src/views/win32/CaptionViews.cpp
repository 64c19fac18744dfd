#include "views/win32/CaptionViews.h"

namespace ORXKMPrintProp::win32 {
namespace {

/// At both ends of a frame's caption, in pixels.
constexpr int kFrameIndent = 10;
/// Between a button's edge and its caption.
constexpr int kButtonEdge = 4;
/// Between the box of a check box and its caption.
constexpr int kBoxBlank = 6;

}  // namespace

void FrameView::Refresh() {
  WidgetView::Refresh();
  ShowCaption();
}

int FrameView::CaptionRoom() const { return Size().cx - 2 * kFrameIndent; }

void LabelView::Refresh() {
  WidgetView::Refresh();
  ShowCaption(true);
}

void ButtonView::Refresh() {
  WidgetView::Refresh();
  ShowCaption();
}

int ButtonView::CaptionRoom() const { return Size().cx - 2 * kButtonEdge; }

void CheckBoxView::Refresh() {
  WidgetView::Refresh();
  ShowCaption();
  const WPARAM shown = widget_.Value() != 0 ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(Send(BM_GETCHECK)) != shown) Send(BM_SETCHECK, shown);
}

int CheckBoxView::CaptionRoom() const { return Size().cx - surface_.MetricOf(SM_CXMENUCHECK) - kBoxBlank; }

}  // namespace ORXKMPrintProp::win32
