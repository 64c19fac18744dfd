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
};

class LabelView : public ViewOf<Label> {
 public:
  using ViewOf::ViewOf;
  void Refresh() override;

 protected:
  WindowKind Kind() const override { return {L"STATIC", SS_LEFTNOWORDWRAP | SS_NOPREFIX}; }
};

class ButtonView : public ViewOf<CommandButton> {
 public:
  using ViewOf::ViewOf;
  void Refresh() override;
  void OnNotify(UINT notification) override;
  void Use(WPARAM what) override;

 protected:
  WindowKind Kind() const override { return {L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP}; }
};

class CheckBoxView : public ViewOf<CheckBox> {
 public:
  using ViewOf::ViewOf;
  void Refresh() override;
  void OnNotify(UINT notification) override;
  void Use(WPARAM what) override;

 protected:
  WindowKind Kind() const override { return {L"BUTTON", BS_CHECKBOX | WS_TABSTOP}; }
};

}  // namespace ORXKMPrintProp::win32
