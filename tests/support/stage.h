#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "support/widget_text.h"

namespace ORXKMPrintProp::test {

/// A control with settings in it, a user in front of it and a host behind it.
///
/// What they do is played from a transcript: a line holds steps, and the lines behind it, indented by two blanks, say
/// all that these change in the dialog and the model, and what host and user hear; of the first load nothing is said.
/// Steps stand apart by "; " and name widgets as the layout does, `lstPrint(1)`:
///
///     tab 1, pick COMBO 2, toggle CHECK, press BUTTON, key BOX x, edit BOX new text
///     click LIST 0 (with more entries a drag), down LIST 0, move LIST 1, up LIST
///     dimension ROW, the same for general, attribute and member, characteristics a bQ c-, load (these rows)
///     readonly on, read TABLE (what the host gets), see LINE (of the state)
class Stage : private ORXQueryPrnPropEvents, private View {
 public:
  /// Before a load.
  Stage();
  explicit Stage(const Settings& settings);
  ~Stage() override;

  /// Carries the steps out. @return the transcript with what happens now behind each step.
  std::string Play(const std::string& transcript);

  /// The same without the transcript. @return these lines of the state then, without item numbers and with 0 for the
  /// entry <None>.
  std::string After(const std::string& steps, const std::vector<std::string>& lines);

  /// By name: "general" and "frame 1" to "frame 3", fields in the order of the layout, "(...)" the disabled and "{...}"
  /// the hidden ones; "lists 1" to "lists 3"; "breaks", the three selectors; "pointer"; "model", items with position,
  /// "-" where hidden, the letters of breaks and what they own: `a1Q(p2 q-)`.
  std::map<std::string, std::string> State();

  ORXQueryPrnProp control;
  std::function<void()> onOrderChanged = [] {};
  std::function<void()> onMessage = [] {};

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;
  void MsgBox(const Text& text, const Text& title) override;

  void DoAll(const std::string& steps);
  void Do(const std::string& step);
  void Load();
  void Read(const std::string& table);
  Refusal DoTo(Widget& widget, const std::string& verb, const std::string& rest);
  void Tell(std::string line);

  /// The rows of the next load, by table.
  std::map<std::string, std::string> rows_;
  bool hasLoaded_ = false;
  std::string told_;
};

/// Dimension rows of print characteristics, in their order: `a b c` with the flags of each behind it, Q, P, A for
/// the breaks, - for a hidden one.
std::string Characteristics(const std::string& words);

}  // namespace ORXKMPrintProp::test
