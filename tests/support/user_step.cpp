#include "support/user_step.h"

#include <sstream>

#include "support/table_text.h"

namespace ORXKMPrintProp::test {

UserStep::UserStep(const Dialog& dialog, const std::string& line) {
  std::istringstream in(line);
  std::string name;
  in >> verb;
  if (verb == "tab") {
    widget = &dialog.TabStrip();
  } else {
    in >> name;
    widget = dialog.FindSpelled(Wide(name));
  }
  in.get();
  std::getline(in, rest);
  std::istringstream words(rest);
  for (std::int16_t number = 0; words >> number;) numbers.push_back(number);
}

Refusal UserStep::Do() const {
  if (auto* const strip = dynamic_cast<SSTab*>(widget)) return strip->UserPick(numbers.at(0));
  if (auto* const combo = dynamic_cast<ComboBox*>(widget)) return combo->UserPick(numbers.at(0));
  if (auto* const check = dynamic_cast<CheckBox*>(widget)) return check->UserToggle();
  if (auto* const button = dynamic_cast<CommandButton*>(widget)) return button->UserPress();
  if (auto* const box = dynamic_cast<TextBox*>(widget)) {
    if (verb == "edit") return box->UserEdit(Wide(rest));
    Refusal refusal = Refusal::None;
    for (const char16_t key : Wide(rest)) refusal = box->UserKey(key);
    return refusal;
  }
  auto& list = dynamic_cast<ListBox&>(*widget);
  if (verb == "caret") return list.UserMoveCaret(numbers.at(0));
  if (verb == "space") return list.UserToggle();
  if (verb == "shift") return list.UserDragStep(numbers.at(0));

  const std::int16_t button = verb == "rclick" ? ListBox::kRightButton : ListBox::kLeftButton;
  const bool presses = verb != "move" && verb != "up";
  Refusal refusal = presses ? list.UserMouseDown(numbers.at(0), button) : Refusal::None;
  if (refusal != Refusal::None) return refusal;
  for (std::size_t i = presses ? 1 : 0; i < numbers.size(); ++i) refusal = list.UserMouseMove(numbers[i]);
  if (verb != "move" && verb != "down") list.UserMouseUp(button);
  return refusal;
}

}  // namespace ORXKMPrintProp::test
