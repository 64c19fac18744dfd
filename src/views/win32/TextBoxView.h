#pragma once

#include "views/win32/WidgetView.h"

namespace ORXKMPrintProp::win32 {

class TextBoxView : public ViewOf<TextBox> {
 public:
  using ViewOf::ViewOf;
  void Make(HWND parent, int id) override;
  void Refresh() override;
  void OnNotify(UINT notification) override;
  void Use(WPARAM what) override;

 protected:
  WindowKind Kind() const override { return {L"EDIT", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE}; }
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void SelectPairAhead();
  LRESULT TakeCharacter(wchar_t character, LPARAM lParam);

  bool isShowing_ = false;  ///< what changes now is not what the user has typed
  bool isTyping_ = false;
};

}  // namespace ORXKMPrintProp::win32
