#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "Scene.h"

namespace ORXKMPrintProp::test {

/// What there is to see of a desk before an action, for a comparison with what is there behind it.
struct Seen {
  explicit Seen(const Desk& desk);

  struct Item {
    ItemProps props;
    bool hidden;
    int position;
  };
  struct Page {
    ItemId shown;
    std::vector<int> print;
    Frame frame;
    bool dragged = false, touched = false;
    std::vector<std::vector<Item>> items;  ///< by owner
  };

  std::array<int, 4> clears;
  int tab, switches, messages;
  bool readOnly, fresh, mixed;
  std::shared_ptr<PrnPropCls> root;
  std::array<Page, 4> pages;
  bool ordered = false;
  std::array<int, 3> breaks{};  ///< the item numbers that the group-change selectors show
};

/// All pages of the desk have been filled since.
bool WasFilled(const std::array<int, 4>& clearsBefore, const Desk& desk);

/// Keeps the desk's notes. @param action what its user or host has done, null for nothing.
void NoteChanges(const Seen& before, Desk& desk, const Action* action);

/// What an action may change and what it must.
std::string CheckTransition(const Seen& before, const Desk& desk, const Action& action);

}  // namespace ORXKMPrintProp::test
