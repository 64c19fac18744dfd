#include "views/hand_drive.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <utility>

#include "host/ExitStatus.h"
#include "host/Program.h"
#include "host/Utf8.h"
#include "host/WidgetState.h"
#include "views/hand.h"

namespace ORXKMPrintProp::test {
namespace {

using host::ToUtf8;

class HandDriver : public host::Driver {
 public:
  explicit HandDriver(std::ostream& out)
      : Driver(out), hand_(MakeHand(control_.GetDialog(), [this](const std::string& why) { Report(why); })) {}

  void Play(const host::ScriptStep& step) override {
    hand_->CloseMessage([this](const std::string& title, const std::string& text) {
      static_cast<View&>(printer_).MsgBox(host::FromUtf8(text), host::FromUtf8(title));
    });
    Driver::Play(step);
    hand_->Settle();
  }

 private:
  Refusal Tab(SSTab&, std::int16_t tab) override {
    const bool exists = tab >= 0 && tab < SSTab::kTabs;
    return Act(exists ? Refusal::None : Refusal::NoSuchEntry, [&] { hand_->ClickTab(tab); });
  }

  Refusal Mouse(ListBox& list, const std::vector<std::int16_t>& entries, std::int16_t number) override {
    return Act(RefusesEntries(list, entries), [&] {
      const auto button = number == ListBox::kRightButton ? Hand::Button::Right : Hand::Button::Left;
      auto mouse = Hand::Mouse::Press;
      for (const std::int16_t entry : entries) {
        hand_->Use(std::exchange(mouse, Hand::Mouse::Move), list, entry, button);
      }
      hand_->Use(Hand::Mouse::Release, list, entries.back(), button);
    });
  }

  Refusal Pick(ComboBox& combo, std::int16_t entry) override {
    return Act(RefusesEntries(combo, {entry}), [&] { hand_->PickEntry(combo, entry); });
  }
  Refusal Toggle(CheckBox& check) override {
    return Act(check.Refuses(), [&] { hand_->Click(check); });
  }
  Refusal Press(CommandButton& button) override {
    return Act(button.Refuses(), [&] { hand_->Click(button); });
  }

  Refusal Keys(TextBox& box, const Text& keys) override {
    return Act(box.Refuses(), [&] {
      hand_->Focus(box);
      hand_->Type(box, ToUtf8(keys));
    });
  }

  Refusal Paste(TextBox& box, const Text& text) override {
    return Act(box.Refuses(), [&] {
      hand_->Focus(box);
      hand_->Key(box, "Ctrl+A");
      hand_->PutIntoClipboard(ToUtf8(text));
      hand_->Key(box, text.empty() ? "Del" : "Ctrl+V");
    });
  }

  /// A hand can try what is disabled, too, which must do nothing then.
  template <class Action>
  static Refusal Act(Refusal refusal, Action action) {
    if (refusal == Refusal::None || refusal == Refusal::Disabled) action();
    return refusal;
  }

  void TellState(const Widget& widget) override {
    const Hand::Json held = host::StateOf(widget);
    Hand::Json seen = held;
    hand_->See(widget, seen);
    // The states have no "enabled" where nothing shows it, and entries have data that is not seen.
    if (!held.contains("enabled")) seen.erase("enabled");
    for (std::size_t i = 0; held.contains("items") && i < std::min(held["items"].size(), seen["items"].size()); ++i) {
      Hand::Json entry = held["items"][i];
      entry.update(seen["items"][i]);
      seen["items"][i] = entry;
    }
    printer_.State(seen);
  }

  void TellState() override {
    Hand::Json state = host::StateOf(control_);
    state["mousePointer"] = hand_->Pointer();
    printer_.State(state);
  }

  /// The kind of the failure, in the words that a person is told.
  void Report(const std::string& why) {
    try {
      throw;
    } catch (const RunTimeError& error) {
      printer_.Failed(RunTimeError(error.Kind(), host::FromUtf8(why)));
    }
  }

  std::unique_ptr<Hand> hand_;
};

}  // namespace

int DriveByHand(int argc, char** argv) {
  CLI::App program("Does to the dialog in a window what a script says");
  host::DriveOptions options;
  host::AddDriveArguments(program, options);
  CLI11_PARSE(program, argc, argv);
  try {
    return host::Drive(options, std::cout, std::cerr, host::MakeDriver<HandDriver>);
  } catch (const host::DocumentError& error) {
    std::cerr << error.what() << "\n";
    return host::kBadFile;
  }
}

}  // namespace ORXKMPrintProp::test
