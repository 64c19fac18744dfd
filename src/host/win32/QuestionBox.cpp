#include "host/win32/QuestionBox.h"

#include <algorithm>

#include "host/Utf8.h"
#include "host/editor/LayoutText.h"
#include "host/win32/Form.h"
#include "views/win32/WindowsText.h"

namespace ORXKMPrintProp::host {
namespace {

struct ChoiceButton {
  Choice choice;
  ButtonText text;
};
constexpr ChoiceButton kChoices[] = {
    {Choice::Ok, {IDOK, L"&OK"}},
    {Choice::Save, {IDYES, L"&Save"}},
    {Choice::Discard, {IDNO, L"&Discard"}},
    {Choice::Reload, {IDRETRY, L"&Reload"}},
    {Choice::SaveAs, {IDCONTINUE, L"Save &as..."}},
    {Choice::ShowDifferences, {IDHELP, L"Show &what differs"}},
    {Choice::SaveAllTheSame, {IDIGNORE, L"&Save all the same"}},
    {Choice::Cancel, {IDCANCEL, L"&Cancel"}},
};

const ButtonText& ButtonOf(Choice choice) {
  return std::find_if(std::begin(kChoices), std::end(kChoices),
                      [&](const ChoiceButton& row) { return row.choice == choice; })
      ->text;
}

struct KindRow {
  Question::Kind kind;
  const wchar_t* icon;
  UINT sound;
};
// As numbers, which is what the system's names of icons are.
const KindRow kKinds[] = {
    {Question::Kind::Failure, MAKEINTRESOURCEW(32513), MB_ICONERROR},
    {Question::Kind::Warning, MAKEINTRESOURCEW(32515), MB_ICONWARNING},
    {Question::Kind::Question, MAKEINTRESOURCEW(32514), MB_ICONQUESTION},
    {Question::Kind::Information, MAKEINTRESOURCEW(32516), MB_ICONINFORMATION},
};

/// As a text field has it.
std::wstring Shown(const std::string& utf8) { return win32::ToWide(WithLineEnds(FromUtf8(utf8), u"\r\n")); }

class QuestionBox : public Form {
 public:
  explicit QuestionBox(const Question& question)
      : Form(L"Print settings", ButtonsOf(question), ButtonOf(question.preset).id, false),
        kind_(*std::find_if(std::begin(kKinds), std::end(kKinds),
                            [&](const KindRow& row) { return row.kind == question.kind; })),
        text_(Shown(question.text + (question.further.empty() ? "" : "\n\n") + question.further)),
        details_(Shown(question.details)) {}

 private:
  static std::vector<ButtonText> ButtonsOf(const Question& question) {
    std::vector<ButtonText> buttons;
    for (const Choice choice : question.choices) buttons.push_back(ButtonOf(choice));
    return buttons;
  }

  void Make() override {
    constexpr DWORD kStyle = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_TABSTOP;
    textField_ = MakeChild(Window(), L"EDIT", text_, kStyle | WS_VSCROLL);
    ::MessageBeep(kind_.sound);
    if (details_.empty()) return;
    detailsField_ = MakeChild(Window(), L"EDIT", L"", kStyle | WS_VSCROLL, 0, WS_EX_CLIENTEDGE);
    ::SendMessageW(detailsField_, EM_SETLIMITTEXT, 0, 0);
    ::SetWindowTextW(detailsField_, details_.c_str());
  }

  SIZE Fit(HFONT font) override {
    for (const HWND field : {textField_, detailsField_}) {
      if (field) ::SendMessageW(field, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    }
    const int width = Pixels(400, Dpi());
    const LONG line = SizeOf(font, L"X").cy;
    const SIZE text = SizeOf(font, text_, width);
    // The field keeps a little room at its sides for itself.
    const LONG left = ::GetSystemMetrics(SM_CXICON) + Margin();
    constexpr int kMostLines = 20, kDetailLines = 8;
    textHeight_ = std::min(text.cy + line / 2, kMostLines * line);
    ::ShowScrollBar(textField_, SB_VERT, text.cy > textHeight_);
    const LONG textWidth = detailsField_ ? width : std::max<LONG>(text.cx, width / 2);
    const LONG details = detailsField_ ? kDetailLines * line + Margin() : 0;
    return {left + textWidth + Pixels(12, Dpi()), std::max<LONG>(textHeight_, ::GetSystemMetrics(SM_CYICON)) + details};
  }

  void MoveTo(const RECT& content) override {
    const LONG left = content.left + ::GetSystemMetrics(SM_CXICON) + Margin();
    const LONG height = std::min(textHeight_, content.bottom - content.top);
    ::MoveWindow(textField_, left, content.top, content.right - left, height, TRUE);
    if (!detailsField_) return;
    const LONG top = content.top + std::max<LONG>(height, ::GetSystemMetrics(SM_CYICON)) + Margin();
    ::MoveWindow(detailsField_, left, top, content.right - left, content.bottom - top, TRUE);
  }

  void Paint(HDC context) override { ::DrawIcon(context, Margin(), Margin(), ::LoadIconW(nullptr, kind_.icon)); }

  const KindRow& kind_;
  const std::wstring text_, details_;
  HWND textField_ = nullptr;
  HWND detailsField_ = nullptr;  ///< null without details
  LONG textHeight_ = 0;
};

}  // namespace

Choice AskIn(HWND owner, const Question& question) {
  const int pressed = QuestionBox(question).Run(owner);
  const auto chosen = std::find_if(question.choices.begin(), question.choices.end(),
                                   [&](Choice choice) { return ButtonOf(choice).id == pressed; });
  return chosen == question.choices.end() ? Choice::Cancel : *chosen;
}

}  // namespace ORXKMPrintProp::host
