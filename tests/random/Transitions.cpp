#include "Transitions.h"

#include <algorithm>
#include <iterator>

namespace ORXKMPrintProp::test {
namespace {

using Act = Action::Kind;

constexpr TextView kBreaks[] = {u"cmbCharQueryBreak", u"cmbCharPageBreak", u"cmbCharBreakArea"};
constexpr FlagProperty PrnCharCls::*kFlags[] = {&PrnCharCls::QueryBreak, &PrnCharCls::PageBreak,
                                                &PrnCharCls::BreakArea};

std::size_t Place(int number) { return static_cast<std::size_t>(number); }

/// Nothing is selected by -1.
int SelectedIn(const ComboBox& combo) { return combo.ListIndex() < 0 ? -2 : combo.ItemData(combo.ListIndex()); }

bool IsIn(const LayoutRow& row, int page) { return row.page == page; }

bool IsFrameEdit(const Action& action, int page) {
  const LayoutRow& row = DialogLayout()[action.widget];
  const bool isEdit =
      action.kind == Act::Pick || action.kind == Act::Toggle || action.kind == Act::Keys || action.kind == Act::Paste;
  return isEdit && IsIn(row, page) && row.parent.ends_with(u"PrintProp");
}

bool Toggles(const Action& action, int page, TextView name) {
  const LayoutRow& row = DialogLayout()[action.widget];
  return action.kind == Act::Toggle && IsIn(row, page) && row.name.name.ends_with(name);
}

/// The page that an action commits as the lists and frame stood before it, 0 for none.
int PageCommitted(const Seen& before, const Desk& desk, const Action& action) {
  if (action.kind == Act::Read || action.kind == Act::ReadThrice) return before.tab;
  return action.kind == Act::Tab && desk.Tab() != before.tab ? before.tab : 0;
}

/// The page whose order an action stores as the lists stand behind it, 0 for none.
int PageOrdered(const Seen& before, const Desk& desk, const Action& action) {
  const WidgetName& name = DialogLayout()[action.widget].name;
  if (action.kind == Act::Press && name.name != u"cmdPrintLayout" && desk.messages == before.messages)
    return name.index;
  const bool isRelease = (action.kind == Act::Click || action.kind == Act::Drag) && name.name == u"lstPrint";
  const bool mayDrag = !before.readOnly && desk.switches == before.switches;
  return isRelease && name.index == 1 && mayDrag ? 1 : 0;
}

std::string CheckOrder(int page, int owner, const std::vector<int>& print) {
  const auto items = ItemsOf(*gPrnProp, page, owner);
  for (std::size_t i = 0; i < items.size(); ++i) {
    const auto found = std::find(print.begin(), print.end(), static_cast<int>(i) + 1);
    const int expected = found == print.end() ? 0 : static_cast<int>(found - print.begin()) + 1;
    if (items[i]->Position() != expected || items[i]->Hidden() != (expected == 0)) {
      return "commit: item " + std::to_string(i + 1) + " of page " + std::to_string(page) + " holds position " +
             std::to_string(items[i]->Position()) + ", not " + std::to_string(expected);
    }
  }
  return "";
}

std::string CheckFlags(const Seen& before) {
  const auto items = ItemsOf(*gPrnProp, 1, 0);
  for (std::size_t s = 0; s < 3; ++s) {
    int holder = -1;
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (!(items[i].characteristic->*kFlags[s])()) continue;
      if (holder != -1) return "flags: two characteristics hold flag " + std::to_string(s);
      if (items[i]->Hidden()) return "flags: a hidden characteristic holds flag " + std::to_string(s);
      holder = static_cast<int>(i) + 1;
    }
    if (before.ordered && holder != before.breaks[s]) {
      return "flags: flag " + std::to_string(s) + " is held by " + std::to_string(holder) + ", not by " +
             std::to_string(before.breaks[s]);
    }
    if (before.ordered && holder != -1 && holder == before.pages[1].print.back()) {
      return "flags: the last print characteristic holds flag " + std::to_string(s);
    }
  }
  return "";
}

/// The printed items in the order of their positions, equal ones in item order.
std::vector<int> PrintedOf(const std::vector<ItemView>& items) {
  std::vector<int> printed;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (!items[i]->Hidden()) printed.push_back(static_cast<int>(i) + 1);
  }
  std::stable_sort(printed.begin(), printed.end(),
                   [&](int a, int b) { return items[Place(a) - 1]->Position() < items[Place(b) - 1]->Position(); });
  return printed;
}

std::string CheckFilledBreaks(const Desk& desk, const std::vector<int>& printed) {
  const auto items = desk.Items(1);
  std::size_t from = 0;
  for (std::size_t s = 0; s < 3; ++s) {
    int saved = -1;
    for (std::size_t i = 0; i < items.size(); ++i) {
      const PrnCharCls& characteristic = *items[i].characteristic;
      if (!characteristic.Hidden() && (characteristic.*kFlags[s])()) saved = static_cast<int>(i) + 1;
    }
    const auto found = std::find(printed.begin() + static_cast<std::ptrdiff_t>(from), printed.end(), saved);
    int expected = -1;
    if (found != printed.end()) {
      from = static_cast<std::size_t>(found - printed.begin()) + 1;
      if (from < printed.size()) expected = saved;
    }
    if (const int selected = SelectedIn(desk.Combo(kBreaks[s])); selected != expected) {
      return "fill: selector " + std::to_string(s) + " shows " + std::to_string(selected) + ", not " +
             std::to_string(expected);
    }
  }
  return "";
}

/// A page that has just been entered.
std::string CheckFilled(const Desk& desk, int page) {
  const std::string name = "fill: page " + std::to_string(page);
  const auto characteristics = desk.Items(1);
  if (page == 2) {
    std::vector<int> offered;
    for (const int number : PrintedOf(characteristics)) {
      const auto positionOf = [&](int n) { return characteristics[Place(n) - 1]->Position(); };
      if (offered.empty() || positionOf(offered.back()) != positionOf(number)) offered.push_back(number);
    }
    const ComboBox& combo = desk.Combo(u"cmbAttrChar");
    if (Desk::NumbersIn(combo) != offered) return name + " offers other characteristics";
    if (combo.ListIndex() != (offered.empty() ? -1 : 0)) return name + " does not begin with the first characteristic";
    if (offered.empty()) return "";
  }
  const auto items = desk.Items(page);
  const auto printed = PrintedOf(items);
  std::vector<int> hidden;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i]->Hidden()) hidden.push_back(static_cast<int>(i) + 1);
  }
  if (desk.ShowsOwner(page)) {
    if (Desk::NumbersIn(desk.List(u"lstPrint", page)) != printed) return name + " has another print order";
    if (Desk::NumbersIn(desk.List(u"lstAvail", page)) != hidden) return name + " has other available items";
    if (desk.ShownOn(page).number != (printed.empty() ? 0 : printed[0])) return name + " does not show the first item";
  }
  return page == 1 && desk.IsOrdered() ? CheckFilledBreaks(desk, printed) : "";
}

std::string CheckItems(const Seen& before, const Action& action, int page) {
  const Seen::Page& then = before.pages[Place(page)];
  const auto owners = OwnersOf(*before.root, page);
  for (std::size_t o = 0; o < owners.size(); ++o) {
    const auto items = ItemsOf(*before.root, page, owners[o]);
    for (std::size_t i = 0; i < items.size(); ++i) {
      const ItemId id{page == 1 ? 0 : owners[o], static_cast<int>(i) + 1};
      const ItemProps& was = then.items[o][i].props;
      const ItemProps is = PropsOf(items[i]);
      const auto again = [&](const ItemProps& props) { return AfterStore(props, FrameOf(props, page), page); };
      const bool mayStore = id == then.shown;
      const ItemProps once = mayStore ? AfterStore(was, then.frame, page) : was;
      const bool isEdit = IsFrameEdit(action, page);
      if (is == once || is == again(once) || is == was || (!isEdit && is == again(was))) continue;
      return "items: the settings of item " + std::to_string(id.number) + " of owner " + std::to_string(id.owner) +
             " on page " + std::to_string(page) + " are neither the former ones nor those shown";
    }
  }
  return "";
}

/// What was shown and is no longer, or was committed, has been stored.
std::string CheckStored(const Seen& before, const Desk& desk, const Action& action, int page, bool committed) {
  const Seen::Page& then = before.pages[Place(page)];
  if (then.shown.number < 1) return "";
  // A page that is entered begins anew: what was shown on it has been stored when it was left.
  if (!committed && (action.kind == Act::Tab || desk.ShownOn(page) == then.shown)) return "";
  const auto items = ItemsOf(*before.root, page, then.shown.owner);
  const auto owners = OwnersOf(*before.root, page);
  const auto owner =
      static_cast<std::size_t>(std::find(owners.begin(), owners.end(), then.shown.owner) - owners.begin());
  const ItemProps once = AfterStore(then.items[owner][Place(then.shown.number) - 1].props, then.frame, page);
  const ItemProps is = PropsOf(items[Place(then.shown.number) - 1]);
  if (is == once || is == AfterStore(once, FrameOf(once, page), page)) return "";
  return "store: item " + std::to_string(then.shown.number) + " on page " + std::to_string(page) +
         " does not hold what was shown";
}

/// The order of items that no commit was about.
std::string CheckOtherOrders(const Seen& before, const Desk& desk, int page, int ordered) {
  const Seen::Page& then = before.pages[Place(page)];
  const auto owners = OwnersOf(*before.root, page);
  for (std::size_t o = 0; o < owners.size(); ++o) {
    const bool isOwner = page == 1 || owners[o] == then.shown.owner;
    if (isOwner && page == ordered) continue;
    if (isOwner && then.touched && desk.OwnerOn(page) != then.shown.owner) {
      const std::string wrong = CheckOrder(page, owners[o], then.print);
      if (wrong.empty()) continue;
      if (then.dragged) return "dragged " + wrong;
    }
    const auto items = ItemsOf(*before.root, page, owners[o]);
    for (std::size_t i = 0; i < items.size(); ++i) {
      const Seen::Item& was = then.items[o][i];
      if (items[i]->Hidden() == was.hidden && items[i]->Position() == was.position) continue;
      return "order: item " + std::to_string(i + 1) + " of owner " + std::to_string(owners[o]) + " on page " +
             std::to_string(page) + " has moved in the model";
    }
  }
  return "";
}

}  // namespace

Seen::Seen(const Desk& desk)
    : clears(desk.clears),
      tab(desk.Tab()),
      switches(desk.switches),
      messages(desk.messages),
      readOnly(desk.readOnly),
      fresh(desk.IsFresh()),
      mixed(desk.mixed),
      root(gPrnProp) {
  if (!fresh) return;
  for (int page = 1; page <= 3; ++page) {
    Page& seen = pages[Place(page)];
    seen.shown = desk.ShownOn(page);
    seen.print = Desk::NumbersIn(desk.List(u"lstPrint", page));
    seen.frame = FrameIn(desk.GetDialog(), page);
    seen.dragged = desk.notes[Place(page)].dragged;
    seen.touched = desk.notes[Place(page)].touched;
    for (const int owner : OwnersOf(*root, page)) {
      auto& items = seen.items.emplace_back();
      for (const auto& item : ItemsOf(*root, page, owner))
        items.push_back({PropsOf(item), item->Hidden(), item->Position()});
    }
  }
  ordered = desk.IsOrdered();
  for (std::size_t s = 0; s < 3; ++s) breaks[s] = SelectedIn(desk.Combo(kBreaks[s]));
}

bool WasFilled(const std::array<int, 4>& clearsBefore, const Desk& desk) {
  return desk.clears[1] > clearsBefore[1] && desk.clears[3] > clearsBefore[3];
}

void NoteChanges(const Seen& before, Desk& desk, const Action* action) {
  for (int page = 1; page <= 3; ++page) {
    Desk::Notes& notes = desk.notes[Place(page)];
    const bool cleared = desk.clears[Place(page)] != before.clears[Place(page)];
    // A page that shows no owner keeps in its frame what it had.
    if (cleared && (WasFilled(before.clears, desk) || desk.ShowsOwner(page))) notes = {};
    if (before.fresh && desk.IsFresh() && desk.ShownOn(page) != before.pages[Place(page)].shown) {
      notes.edited = notes.widthSwitched = notes.levelSwitched = false;
    }
    if (desk.switches != before.switches) notes.widthSwitched = notes.levelSwitched = true;
    if (!action || !desk.IsFresh()) continue;
    if (IsFrameEdit(*action, page)) notes.edited = true;
    if (Toggles(*action, page, u"AutoWidth")) notes.widthSwitched = false;
    if (Toggles(*action, page, u"HierDisplay")) notes.levelSwitched = false;
    if (action->kind == Act::Drag && before.fresh && !cleared && before.tab == page) {
      notes.touched = true;
      if (Desk::NumbersIn(desk.List(u"lstPrint", page)) != before.pages[Place(page)].print) notes.dragged = true;
    }
    const bool stored = PageCommitted(before, desk, *action) == page || PageOrdered(before, desk, *action) == page;
    if (stored && before.fresh) notes.dragged = notes.touched = false;
  }
}

std::string CheckTransition(const Seen& before, const Desk& desk, const Action& action) {
  if (!desk.IsFresh() || desk.mixed) return "";
  const bool filled = WasFilled(before.clears, desk);
  if (filled) {
    // Others go on once the pages are filled anew: they commit a page, or change a selection.
    const bool isOnlyFill = action.kind == Act::Load || action.kind == Act::Read || action.kind == Act::Tab;
    for (int page = 1; isOnlyFill && page <= 3; ++page) {
      if (std::string wrong = CheckFilled(desk, page); !wrong.empty()) return wrong;
    }
    return "";
  }
  if (!before.fresh || before.root != gPrnProp || before.mixed) return "";

  const int committed = PageCommitted(before, desk, action);
  const int ordered = PageOrdered(before, desk, action);
  // A host that reads in an event, or while the button is down, commits the page as it is then.
  const bool hostActs = !action.inEvents.empty() || !action.midway.empty();
  if (committed > 0) {
    const Seen::Page& then = before.pages[Place(committed)];
    if (committed == 1 || then.shown.owner > 0) {
      if (std::string wrong = CheckOrder(committed, then.shown.owner, then.print); !wrong.empty()) return wrong;
    }
    if (committed == 1) {
      if (std::string wrong = CheckFlags(before); !wrong.empty()) return wrong;
    }
  }
  if (ordered == 1 || (ordered > 1 && desk.OwnerOn(ordered) > 0)) {
    const auto print = Desk::NumbersIn(desk.List(u"lstPrint", ordered));
    if (std::string wrong = CheckOrder(ordered, desk.OwnerOn(ordered), print); !wrong.empty()) return wrong;
  }
  for (int page = 1; page <= 3; ++page) {
    if (std::string wrong = CheckItems(before, action, page); !wrong.empty()) return wrong;
    if (std::string wrong = CheckStored(before, desk, action, page, committed == page); !wrong.empty()) return wrong;
    if (hostActs) continue;
    const int about = committed > 0 ? committed : ordered;
    if (std::string wrong = CheckOtherOrders(before, desk, page, about); !wrong.empty()) return wrong;
  }
  if (action.kind == Act::Tab && desk.Tab() != before.tab && desk.Tab() > 0) return CheckFilled(desk, desk.Tab());
  return "";
}

}  // namespace ORXKMPrintProp::test
