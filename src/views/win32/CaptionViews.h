#pragma once

#include "views/win32/WidgetView.h"

// The widgets that show a caption.

namespace ORXKMPrintProp::win32 {

class FrameView : public ViewOf<Frame> {
 public:
  using ViewOf::ViewOf;
  void Refresh() override;

 protected:
  WindowKind Kind() const override { return {L"BUTTON", BS_GROUPBOX}; }
  int CaptionRoom() const override;
};

class LabelView : public ViewOf<Label> {
 public:
  using ViewOf::ViewOf;
  void Refresh() override;

 protected:
  WindowKind Kind() const override { return {L"STATIC", SS_LEFTNOWORDWRAP | SS_NOPREFIX}; }
  int CaptionRoom() const override { return Size().cx; }
};

/// What is pressed: the two are one class of window.
template <class W, Refusal (W::*kPress)()>
class PressedView : public ViewOf<W> {
 public:
  using ViewOf<W>::ViewOf;
  void OnNotify(UINT notification) override {
    if (notification == BN_CLICKED) this->surface_.PostUse(this->widget_, 0);
  }
  void Use(WPARAM) override {
    this->Perform([this] { (this->widget_.*kPress)(); });
  }
};

class ButtonView : public PressedView<CommandButton, &CommandButton::UserPress> {
 public:
  using PressedView::PressedView;
  void Refresh() override;

 protected:
  WindowKind Kind() const override { return {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP}; }
  int CaptionRoom() const override;
};

class CheckBoxView : public PressedView<CheckBox, &CheckBox::UserToggle> {
 public:
  using PressedView::PressedView;
  void Refresh() override;

 protected:
  WindowKind Kind() const override { return {L"BUTTON", BS_CHECKBOX | WS_TABSTOP}; }
  int CaptionRoom() const override;
};

}  // namespace ORXKMPrintProp::win32
