#pragma once

#include <array>
#include <optional>
#include <string>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "support/transcript.h"
#include "support/user_step.h"

namespace ORXKMPrintProp::test {

/// A control with a user in front of it and a host behind it, who has another control besides.
///
/// What is told is what changes in the dialog and the model, and what host and user hear; of the first load nothing is
/// told. The steps are those of user_step.h and the host's:
///
///     dimension ROW, the same for general, attribute and member, characteristics a bQ c-, load (these rows)
///     and CELLS (of the row before)
///     readonly on, read TABLE (what the host gets), read (all four), tables (of the last load)
///     layout BUTTON='4' NAME='a' LAYOUT='text' (as cells)
///     texts KEY (only a table that has this key, and no captions), texts (none)
///     at order STEP, STEP (what the host does from then on when the order changes), at message STEP, fail
///     other (whatever follows is done to the other control, or to the first one again)
///
/// The state: "general" and "frame 1" to "frame 3", fields in the order of the layout, "(...)" the disabled and "{...}"
/// the hidden ones; "lists 1" to "lists 3"; "breaks", the three selectors; "pointer"; "model", items with position, "-"
/// where hidden, the letters of breaks and what they own: `a1Q(p2 q-)`; and aside "tab" and "error", the shared text.
class Stage : public Player, private ORXQueryPrnPropEvents, private View {
 public:
  /// Before a load.
  explicit Stage(const Platform& platform = Platform::Plain());
  ~Stage() override;

  ORXQueryPrnProp& Control() { return controls_[current_]; }

 protected:
  Lines State() override;
  virtual Refusal Use(const UserStep& step) { return step.Do(); }

 private:
  void ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) override;
  void ORXOrderChanged() override;
  void MsgBox(const Text& text, const Text& title) override;

  void DoStep(const std::string& line) override;
  /// @return whether the host has such a step.
  bool DoAsHost(const std::string& verb, const std::string& rest);
  void DoAt(const std::string& event);
  void Load();
  void Read(const std::string& table);
  void SetLayout(const std::string& cells);
  void SetTexts(const std::string& key);
  void TellRows(const std::string& rows, const std::string& head);

  std::array<ORXQueryPrnProp, 2> controls_;
  std::size_t current_ = 0;
  std::array<bool, 2> hasLoaded_{};
  std::optional<Settings> tables_;  ///< of the last load
  Shown otherShown_;                ///< of the control that is not the current one
  Lines rows_;                      ///< of the next load, by table
  std::string lastRows_;
  Lines atEvents_;  ///< what the host does, by event
};

/// Dimension rows of print characteristics, in their order: `a b c` with the flags of each behind it, Q, P, A for
/// the breaks, - for a hidden one.
std::string Characteristics(const std::string& words);

}  // namespace ORXKMPrintProp::test
