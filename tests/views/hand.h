#pragma once

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "dialog/Dialog.h"

namespace ORXKMPrintProp::test {

/// A view in a window of its own, with a user's hand on it and his eye: each toolkit brings one, which does what it is
/// told by input to the window and sees what that shows. Entries below 0 are above a list, those behind the last one
/// below it.
class Hand {
 public:
  enum class Mouse { Press, PressAgain, Move, Release };
  enum class Button { Left, Right, Middle };
  using Json = nlohmann::ordered_json;

  virtual ~Hand() = default;

  /// `PressAgain` is the second press of a double click. An entry out of sight is scrolled to first.
  virtual void Use(Mouse mouse, const Widget& list, int entry, Button button) = 0;
  /// On a check box or a button.
  virtual void Click(const Widget& widget) = 0;
  virtual void ClickTab(int tab) = 0;
  /// Opens the list of a combo box, if it opens, and clicks the entry.
  virtual void PickEntry(const Widget& combo, int entry) = 0;
  /// A key with its modifiers: "Alt+Up", "PgDown", "Ctrl+Shift+Backtab", "Num+9".
  virtual void Key(const Widget& widget, const std::string& key) = 0;
  /// Presses a key for each character, at the end of the field; `\b` is Backspace.
  virtual void Type(const Widget& box, const std::string& text) = 0;
  virtual void PutIntoClipboard(const std::string& text) = 0;
  /// The next message box is closed by its button. @param read gets what it says.
  virtual void CloseMessage(std::function<void(const std::string& title, const std::string& text)> read) = 0;

  virtual void Focus(const Widget& widget) = 0;
  /// The widget that has the focus, null when none of the dialog has it.
  virtual const Widget* Focused() const = 0;

  /// Puts what is seen of the widget in the place of what it holds: "visible", "enabled", "items" with "selected",
  /// "listIndex", "text", "value", "tab".
  virtual void See(const Widget& widget, Json& state) const = 0;
  virtual bool IsInSight(const Widget& list, int entry) const = 0;
  /// `Dialog::kDefaultPointer` or `Dialog::kDragPointer`, of the pointer over the dialog.
  virtual std::int16_t Pointer() const = 0;

  /// Lets time go by until it is so. @return False when it is not after some seconds.
  virtual bool WaitUntil(const std::function<bool()>& isSo) = 0;
  /// What the view has put off until its events are dealt with is done.
  virtual void Settle() = 0;
};

/// The view under test. @param failed hears what the view reports, while the exception is handled.
std::unique_ptr<Hand> MakeHand(Dialog& dialog, std::function<void(const std::string& why)> failed);
/// The platform that a host of such a view makes its control with.
const Platform& PlatformUnderTest();

}  // namespace ORXKMPrintProp::test
