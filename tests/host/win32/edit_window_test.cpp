// The editor's whole window, under keys as the system sends them.

#include "host/win32/EditWindow.h"

#include <gtest/gtest.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "host/SettingsDocument.h"
#include "host/Utf8.h"
#include "views/win32/WindowsPlatform.h"
#include "views/win32/WindowsText.h"
#include "views/win32/windows_of.h"

namespace ORXKMPrintProp::host::test {
namespace {

constexpr int kApply = 3;

class EditWindowTest : public testing::Test {
 protected:
  EditWindowTest() {
    gPrnProp.reset();
    gTextTable.reset();
    SaveFile(file, before);
    test_ = this;
    timer = ::SetTimer(nullptr, 0, 10, OnTimer);
  }
  ~EditWindowTest() override {
    ::KillTimer(nullptr, timer);
    test_ = nullptr;
    EXPECT_TRUE(answers.empty()) << "a question was expected that did not come";
    window.reset();
    std::filesystem::remove(std::filesystem::path(FromUtf8(file)));
  }

  void Open(bool readOnly = false) {
    window.reset();
    settings = std::make_unique<EditedSettings>(EditOptions{.file = file, .readOnly = readOnly},
                                                win32::WindowsPlatform::Instance());
    window = std::make_unique<EditWindow>(*settings);
    window->Show();
    window->HandleMessages();
  }
  const Dialog& GetDialog() const { return settings->Control().GetDialog(); }
  HWND Find(const char* name) const {
    for (const auto& widget : GetDialog().Controls()) {
      if (ToUtf8(widget->Row().name.Spelled()) == name) {
        return win32::test::WindowsOf(window->DialogWindow(), GetDialog()).at(widget.get());
      }
    }
    throw std::runtime_error(name);
  }
  void Focus(const char* name) const { ::SetFocus(Find(name)); }
  /// To what has the focus.
  void Key(WPARAM key, int modifier = 0) {
    std::array<BYTE, 256> state{};
    if (modifier) state[static_cast<std::size_t>(modifier)] = 0x80;
    ::SetKeyboardState(state.data());
    ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
    window->HandleMessages();
    state.fill(0);
    ::SetKeyboardState(state.data());
  }
  void Press(int button) {
    ::PostMessageW(::GetDlgItem(window->Window(), button), BM_CLICK, 0, 0);
    window->HandleMessages();
  }
  void TypeTitle() {
    Focus("txtGenPrnTitle");
    Key(VK_HOME);
    Key('7');
  }
  void Answer(int button, const std::string& question) {
    answers.push_back([=](HWND box) {
      EXPECT_EQ(TextIn(box), question);
      End(box, button);
    });
  }
  static std::string TextIn(HWND box) { return ToUtf8(win32::TextOf(::FindWindowExW(box, nullptr, L"EDIT", nullptr))); }
  static void End(HWND box, int button) {
    EXPECT_TRUE(::GetDlgItem(box, button));
    ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
  }

  std::string State() const {
    if (!window->Window()) return "closed";
    const bool isModified = win32::TextOf(window->Window()).find(u'*') != Text::npos;
    const bool canApply = ::IsWindowEnabled(::GetDlgItem(window->Window(), kApply));
    return std::string("open") + (isModified ? " modified" : "") + (canApply ? " apply" : "");
  }
  std::string Title() const { return ToUtf8(std::get<Text>(ReadSettings(file).general->Rows(1)->Value(u"TITLE"))); }
  /// What has the focus, from the title on, until the key leads back to what has had it.
  std::vector<std::string> Round(int modifier) {
    std::vector<std::string> names;
    Focus("txtGenPrnTitle");
    do {
      const Widget* const widget = win32::test::WidgetOf(window->DialogWindow(), GetDialog(), ::GetFocus());
      names.push_back(ToUtf8(widget ? widget->Row().name.Spelled() : win32::TextOf(::GetFocus())));
      Key(VK_TAB, modifier);
    } while (::GetFocus() != Find("txtGenPrnTitle") && names.size() < 100);
    return names;
  }

  const std::string file = ToUtf8((std::filesystem::temp_directory_path() / u"edited-\u00fc.json").u16string());
  const std::string before = ReadFile(PRNPROP_EXAMPLES "/sales.json");
  const std::string sales = "Sales by region and customer, fiscal year 2025";
  std::unique_ptr<EditedSettings> settings;
  std::unique_ptr<EditWindow> window;
  /// What is done with the windows that wait for an answer, one after the other.
  std::deque<std::function<void(HWND)>> answers;

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    HWND box = nullptr;
    const auto look = [](HWND found, LPARAM place) -> BOOL {
      wchar_t kind[16]{};
      ::GetClassNameW(found, kind, 16);
      const bool isAsking = std::wstring(kind) == L"#32770" && ::IsWindowVisible(found) && ::IsWindowEnabled(found);
      if (isAsking) *reinterpret_cast<HWND*>(place) = found;
      return !isAsking;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&box));
    if (!box || !test_) return;
    if (test_->answers.empty()) {
      ADD_FAILURE() << "a question that was not expected: " << TextIn(box);
      ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
      return;
    }
    const auto answer = test_->answers.front();
    test_->answers.pop_front();
    answer(box);
  }

  static inline EditWindowTest* test_ = nullptr;
  UINT_PTR timer = 0;
};

TEST_F(EditWindowTest, WhatIsTypedIsSaved) {
  const struct {
    const char* how;
    std::function<void()> save;
    const char* state;
  } rows[] = {{"Apply", [this] { Press(kApply); }, "open"},
              {"Control and S", [this] { Key('S', VK_CONTROL); }, "open"},
              {"Enter", [this] { Key(VK_RETURN); }, "closed"}};
  for (const auto& row : rows) {
    SaveFile(file, before);
    Open();
    TypeTitle();
    EXPECT_EQ(State() + Title(), "open modified apply" + sales) << row.how;
    EXPECT_EQ(win32::TextOf(window->Window()), u"edited-\u00fc.json* - Print settings");
    row.save();
    EXPECT_EQ(State() + Title(), row.state + ("7" + sales)) << row.how;
  }
}

TEST_F(EditWindowTest, EscapeAsksAndEachAnswerDoesWhatItSays) {
  const struct {
    int button;
    std::string state;
  } rows[] = {{IDCANCEL, "open modified apply" + sales}, {IDNO, "closed" + sales}, {IDYES, "closed7" + sales}};
  for (const auto& row : rows) {
    Open();
    TypeTitle();
    Answer(row.button, "The settings have changed.\r\n\r\nSave them in " + file +
                           "?\r\n\r\nWhat has changed:\r\nGeneral\r\n  Print title: '" + sales + "' is now '7" + sales +
                           "'");
    Key(VK_ESCAPE);
    EXPECT_EQ(State() + Title(), row.state);
  }
}

TEST_F(EditWindowTest, AnOvertakenFileIsComparedReloadedOrReplaced) {
  const std::string question =
      "The file has changed since it was opened.\r\n\r\nA save would replace what now stands in " + file + ".";
  Open();
  TypeTitle();
  SaveFile(file, before + "\n");
  Answer(IDHELP, question);
  Answer(IDOK,
         "A save changes this in the file:\r\n\r\nGeneral\r\n  Print title: '" + sales + "' is now '7" + sales + "'");
  Answer(IDRETRY, question);
  Press(IDOK);
  EXPECT_EQ(State() + ToUtf8(win32::TextOf(Find("txtGenPrnTitle"))), "open" + sales);
  Key('Z', VK_CONTROL);
  SaveFile(file, before);
  Answer(IDIGNORE, question);
  Press(IDOK);
  EXPECT_EQ(State() + Title(), "closed7" + sales);
}

TEST_F(EditWindowTest, AnotherDocumentIsOpenedByKeyAndByDrop) {
  Open();
  Key('N', VK_CONTROL);
  const auto title = [this] { return ToUtf8(win32::TextOf(window->Window())); };
  EXPECT_EQ(title() + " " + ToUtf8(win32::TextOf(Find("txtGenPrnTitle"))),
            "Untitled - Print settings Orders by region");
  const Text path = FromUtf8(file);
  const std::size_t size = (path.size() + 2) * sizeof(char16_t);
  const HGLOBAL files = ::GlobalAlloc(GHND, sizeof(DROPFILES) + size);
  auto* const head = static_cast<DROPFILES*>(::GlobalLock(files));
  head->pFiles = sizeof(DROPFILES);
  head->fWide = TRUE;
  std::copy(path.begin(), path.end(), reinterpret_cast<char16_t*>(head + 1));
  ::GlobalUnlock(files);
  ::PostMessageW(window->Window(), WM_DROPFILES, reinterpret_cast<WPARAM>(files), 0);
  window->HandleMessages();
  EXPECT_EQ(title() + " " + ToUtf8(win32::TextOf(Find("txtGenPrnTitle"))),
            "edited-\u00fc.json - Print settings " + sales);
}

TEST_F(EditWindowTest, TheTabKeyGoesRoundTheWholeWindow) {
  Open();
  const std::vector<std::string> round = Round(0);
  std::vector<std::string> back = Round(VK_SHIFT);
  std::reverse(back.begin() + 1, back.end());
  EXPECT_EQ(back, round);
  std::string behind;
  for (auto at = std::find(round.begin(), round.end(), "cmdPrintLayout(3)"); at != round.end(); ++at)
    behind += *at + " ";
  EXPECT_EQ(behind, "cmdPrintLayout(3) &OK &Cancel tstPrint ");
}

TEST_F(EditWindowTest, ALayoutIsEditedAsPlainText) {
  Open();
  answers.push_back([](HWND box) {
    ::SendMessageW(::FindWindowExW(box, nullptr, L"EDIT", nullptr), EM_REPLACESEL, TRUE,
                   reinterpret_cast<LPARAM>(L"<b>\r\n&\u00fc"));
    End(box, IDCANCEL);
  });
  Answer(IDCANCEL, "The layout has changed.\r\n\r\nThrow away what was typed?");
  answers.push_back([](HWND box) { End(box, IDOK); });
  Focus("cmdPrintLayout(1)");
  Key(VK_RETURN);
  EXPECT_EQ(State(), "open modified apply");
  Press(kApply);
  EXPECT_EQ(std::get<Text>(ReadSettings(file).general->Rows(1)->Value(u"HEADER_LAYOUT")), u"<b>\n&\u00fc");
  EXPECT_EQ(win32::TextOf(::FindWindowExW(window->Window(), nullptr, L"STATIC", nullptr)), u"Saved");
}

TEST_F(EditWindowTest, AKeyShowsAllKeys) {
  Open();
  answers.push_back([](HWND box) {
    std::string text;
    for (HWND child = nullptr; (child = ::FindWindowExW(box, child, L"STATIC", nullptr));) {
      text += ToUtf8(win32::TextOf(child));
    }
    EXPECT_NE(text.find("Ctrl+S: saves, as Apply does"), std::string::npos) << text;
    EXPECT_EQ(text.find("Ctrl+F"), std::string::npos) << "there is no such field";
    ::PostMessageW(box, WM_COMMAND, IDOK, 0);
  });
  Key(VK_F1);
  EXPECT_TRUE(answers.empty());
}

TEST_F(EditWindowTest, NothingIsSavedThatIsReadOnly) {
  Open(true);
  TypeTitle();
  Key('S', VK_CONTROL);
  EXPECT_EQ(State(), "open");
  Key(VK_ESCAPE);
  EXPECT_EQ(State(), "closed");
  EXPECT_EQ(ReadFile(file), before);
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
