#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "RandomSettings.h"
#include "pages/DialogLayout.h"
#include "tables/Variant.h"

namespace ORXKMPrintProp::test {

/// What a user or a host does, as data: it can be done again, with others left out.
struct Action {
  enum class Kind {
    Tab,
    Click,
    RightClick,
    Drag,
    Caret,        ///< by keyboard: the caret goes to the entry
    ToggleCaret,  ///< by keyboard: the entry at the caret
    Pick,
    Toggle,
    Keys,
    Paste,
    Press,
    Layout,
    ReadOnly,
    Texts,
    Load,
    Read,
    ReadThrice,  ///< all four tables, three times over
  };

  Kind kind = Kind::Tab;
  int desk = 0;                       ///< which of the controls
  std::size_t widget = 0;             ///< its row in the layout
  std::vector<std::int16_t> entries;  ///< of a list or combo box; the number of a tab
  Text text;
  Text name;
  Variant button;
  bool on = false;
  LoadPlan load;
  int table = 0;
  std::vector<Action> inEvents = {};  ///< what the host does in each event and while a message is shown
  std::vector<Action> midway = {};    ///< what the host does while the mouse button is down
};

/// In the notation of scripts for the dialog; what has no word there stands as a comment.
std::string WordsOf(const Action& action);

std::string NameOf(const LayoutRow& row);

}  // namespace ORXKMPrintProp::test
