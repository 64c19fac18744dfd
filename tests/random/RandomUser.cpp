#include "RandomUser.h"

#include <algorithm>
#include <exception>

#include "support/user_step.h"
#include "support/widget_text.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

std::string NameOf(const LayoutRow& row) { return ToAscii(row.name.Spelled()); }

/// What a user may still do in read-only mode: look around, and have a layout shown.
bool IsForReading(const LayoutRow& row) {
  const TextView name = row.name.name;
  return row.kind == WidgetKind::SSTab || name == u"lstPrint" || name == u"lstStrStructures" ||
         name == u"cmbAttrChar" || name == u"cmdPrintLayout";
}

std::string TextOf(const Settings& settings) {
  std::string text;
  for (const TableOfControl& each : kTables) text += ToString(*(settings.*each.table)) + "\n";
  return text;
}

std::string DumpOf(const Widget& widget) {
  return NameOf(widget.Row()) + (widget.Enabled() ? " " : " disabled ") + (widget.Visible() ? "" : "hidden ") +
         ToAscii(widget.Caption()) + StateOf(widget) + "\n";
}

/// The first lines that differ.
std::string Difference(const std::string& before, const std::string& after) {
  const auto [x, y] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto line = [](const std::string& text, auto at) {
    const std::size_t begin = text.substr(0, static_cast<std::size_t>(at - text.begin())).rfind('\n') + 1;
    return text.substr(begin, text.find('\n', begin) - begin);
  };
  return "\n  before: " + line(before, x) + "\n  after:  " + line(after, y);
}

std::vector<int> NumbersIn(const EntryWidget& widget) {
  std::vector<int> numbers;
  for (std::int16_t i = 0; i < widget.ListCount(); ++i) numbers.push_back(widget.ItemData(i));
  return numbers;
}

Settings Written() {
  Settings written("", "", "", "");
  gPrnProp->ToTable(*written.gen, *written.dim, *written.mem, *written.atr);
  return written;
}

/// What a commit sets for all items of its page.
bool IsOfOrder(TextView column) {
  return column == u"POSIT" || column == u"AXIS" || column == u"HIDDEN" || column.ends_with(u"_BREAK") ||
         column == u"PR_BREAK_AREA";
}

const PrnStructureCls& StructureOf(int number) { return number == 1 ? gPrnProp->Structure1() : gPrnProp->Structure2(); }

std::size_t Place(int number) { return static_cast<std::size_t>(number) - 1; }

}  // namespace

RandomUser::RandomUser(std::uint64_t seed) : random_(seed) {
  gPrnProp.reset();
  gTextTable.reset();
  control_.Connect(*this);
  GetDialog().SetView(this);
}

RandomUser::~RandomUser() { GetDialog().SetView(nullptr); }

std::string RandomUser::Act() {
  failure_.clear();
  const Order before = IsFresh() ? OrderOnTop() : Order();
  const std::string lists = readOnly_ && before.page > 0 ? StateOf(List(u"lstPrint", before.page)) : "";
  const int hostCalls = hostCalls_;
  if (random_.OneIn(tables_ ? 6 : 2)) {
    HostActs("");
  } else {
    UserActs();
  }
  const bool isUserAlone = hostCalls_ == hostCalls;
  if (isUserAlone && before.page > 0) {
    if (GetDialog().TabStrip().Tab() != before.page) CheckStored(before);
    if (readOnly_ && NumbersIn(List(u"lstPrint", before.page)) != before.print &&
        OwnerOn(before.page) == before.owner) {
      Fail("read-only: the print list changes from " + lists);
    }
  }
  Check();
  return failure_;
}

void RandomUser::UserActs() {
  using Kind = WidgetKind;
  const Kind kind = random_.Of({Kind::ListBox, Kind::ListBox, Kind::ListBox, Kind::ComboBox, Kind::CheckBox,
                                Kind::TextBox, Kind::CommandButton, Kind::SSTab});
  const bool anywhere = random_.OneIn(15) || kind == Kind::SSTab;
  std::vector<Widget*> widgets;
  for (const auto& widget : GetDialog().Controls()) {
    const LayoutRow& row = widget->Row();
    if (row.kind == kind && (anywhere || row.page == GetDialog().TabStrip().Tab())) widgets.push_back(widget.get());
  }
  if (!widgets.empty()) ActOn(*random_.Of(widgets));
}

void RandomUser::ActOn(Widget& widget) {
  const LayoutRow& row = widget.Row();
  const bool isOnTop = row.kind == WidgetKind::SSTab || row.page == GetDialog().TabStrip().Tab();
  const bool mayAct = isOnTop && widget.Visible() && widget.Enabled();
  const bool mayWrite = !readOnly_ || IsForReading(row);
  const std::string before = mayAct ? "" : Dump();
  try {
    const Refusal refusal = Use(widget, NameOf(row));
    const Refusal expected = !isOnTop            ? Refusal::NotOnTop
                             : !widget.Visible() ? Refusal::Hidden
                             : !widget.Enabled() ? Refusal::Disabled
                                                 : Refusal::None;
    if (!mayAct && refusal != expected) Fail(std::string("refusals: ") + WordsOf(refusal));
    if (mayAct && refusal != Refusal::None && refusal != Refusal::NoSuchEntry) Fail("refusals: refused");
    if (!mayWrite && refusal == Refusal::None) Fail("read-only: takes input");
  } catch (const std::exception& error) {
    Fail(std::string("errors: ") + error.what());
  }
  if (!mayAct && Dump() != before) Fail("refusals: what was refused changes" + Difference(before, Dump()));
}

Refusal RandomUser::Do(const std::string& step) {
  Log(step);
  return UserStep(GetDialog(), step).Do();
}

Refusal RandomUser::Use(Widget& widget, const std::string& name) {
  switch (widget.Row().kind) {
    case WidgetKind::SSTab:
      return Do("tab " + std::to_string(random_.Below(random_.OneIn(20) ? 5 : 4)));
    case WidgetKind::ComboBox:
      return Do("pick " + name + Entry(dynamic_cast<ComboBox&>(widget)));
    case WidgetKind::CheckBox:
      return Do("toggle " + name);
    case WidgetKind::CommandButton:
      return Do("press " + name);
    case WidgetKind::TextBox:
      return UseBox(dynamic_cast<TextBox&>(widget), name);
    default:
      return UseList(dynamic_cast<ListBox&>(widget), name);
  }
}

Refusal RandomUser::UseBox(TextBox& box, const std::string& name) {
  if (random_.OneIn(2)) {
    const char16_t key = random_.Of({u'0', u'1', u'7', u'9', u'\b', u'-', u'.', u'a', u' ', u'\u00c4', u'\xd800'});
    Log("# key " + name + " " + std::to_string(key));
    return box.UserKey(key);
  }
  return Do("edit " + name + " " +
            random_.Of<std::string>({"", " ", "0", "7", "42", "-5", "1e3", "2.5", "12abc", "abc", "1 2", " 12 ",
                                     "32767", "32768", "-32769", "1e999", "0x10", "1,5"}));
}

Refusal RandomUser::UseList(ListBox& list, const std::string& name) {
  if (random_.OneIn(8)) {
    const Refusal refusal = Do("caret " + name + Entry(list));
    return refusal == Refusal::None ? Do("space " + name) : refusal;
  }
  if (random_.OneIn(8)) return Do("shift " + name + (random_.OneIn(2) ? " -1" : " 1"));
  if (random_.OneIn(9)) return Do("rclick " + name + Entry(list));
  const Refusal refusal = Do("down " + name + Entry(list));
  if (refusal != Refusal::None) return refusal;
  for (int moves = random_.OneIn(3) ? random_.Below(4) : 0; moves > 0; --moves) {
    Do("move " + name + Entry(list));
    if (random_.OneIn(12)) HostActs("# button down: ");
  }
  return Do("up " + name);
}

void RandomUser::MaybeHostActs(const std::string& when) {
  if (depth_ > 0) return;
  ++depth_;
  while (random_.OneIn(4)) HostActs(when);
  --depth_;
}

void RandomUser::HostActs(const std::string& when) {
  when_ = when;
  ++hostCalls_;
  try {
    const int choice = tables_ ? random_.Below(20) : 0;
    if (choice < 3) {
      Load();
    } else if (choice < 11) {
      Read(!when.empty());
    } else if (choice < 15) {
      readOnly_ = random_.OneIn(3);
      Log(readOnly_ ? "readonly on" : "readonly off");
      control_.ORXSetReadOnly(readOnly_);
    } else if (choice < 18) {
      SetLayout();
    } else {
      const std::uint64_t seed = random_.Next() % 100000;
      Log("# texts " + std::to_string(seed));
      if (control_.ORXControlTexts(TextsFrom(seed))) Fail("texts: they give True");
    }
  } catch (const std::exception& error) {
    Fail(std::string("errors: ") + error.what());
  }
  when_.clear();
}

void RandomUser::Load() {
  if (tables_ && tables_->gen->RowCount() == 1 && random_.OneIn(3)) {
    Log("# load the tables that it has");
    if (!tables_->LoadInto(control_)) Fail("load: refused");
    return;
  }
  const std::uint64_t seed = random_.Next() % 1000000;
  Log("# load " + std::to_string(seed));
  const RandomSettings settings = SettingsFrom(seed);
  try {
    const bool loads = settings.tables.LoadInto(control_);
    tables_ = settings.tables;
    if (settings.end == LoadEnd::Fails) Fail("load: it does not fail");
    if (loads != (settings.end == LoadEnd::Done)) Fail("load: it gives the wrong result");
    if (loads && !IsFresh()) Fail("load: the pages are not those of the load");
    if (tables_->gen->RowCount() != 0) Fail("load: the general table is not empty");
  } catch (const RunTimeError&) {
    if (settings.end != LoadEnd::Fails) throw;
  }
}

/// Commits the page on top. Reading again changes nothing, unless it is in the middle of what a user does: the
/// selectors are then still to follow the order.
void RandomUser::Read(bool isMidway) {
  const bool wasFresh = IsFresh();
  const Order order = wasFresh ? OrderOnTop() : Order();
  const std::string others = wasFresh ? Unshown() : "";
  const TableOfControl& table = random_.Of(kTables);
  Log(std::string("read ") + table.name);
  const TableRef read = (control_.*table.read)();
  if (read != (tables_ ? (*tables_).*table.table : nullptr)) Fail("read: not the table that was handed in");
  if (!tables_) return;
  CheckStored(order);
  if (wasFresh && Unshown() != others) Fail("commit: items that are not shown change" + Difference(others, Unshown()));
  if (!IsFresh() || isMidway || !random_.OneIn(4)) return;
  const std::string first = TextOf(*tables_) + Dump();
  for (const TableOfControl& again : kTables) (control_.*again.read)();
  const std::string second = TextOf(*tables_) + Dump();
  if (first != second) Fail("read: reading again changes" + Difference(first, second));
}

void RandomUser::SetLayout() {
  const std::int32_t button = random_.Below(5);
  const Text layout = random_.Of<Text>({u"", u"L1"});
  const Text characteristic = random_.Of<Text>({u"C1", u"c2", u""});
  Log("# layout " + std::to_string(button) + " \"" + ToAscii(characteristic) + "\" \"" + ToAscii(layout) + "\"");
  control_.ORXSetPrintLayout(layout, button, characteristic);
}

void RandomUser::Check() {
  if (GetDialog().MousePointer() != 0) Fail("pointer: the drag pointer shows without a drag");
  if (control_.IsReadOnly() != readOnly_) Fail("read-only: not as the host has set it");
  for (const auto& widget : GetDialog().Controls()) {
    const auto* const entries = dynamic_cast<const EntryWidget*>(widget.get());
    if (entries && (entries->ListIndex() < -1 || entries->ListIndex() >= entries->ListCount())) {
      Fail("widgets: the index of " + NameOf(widget->Row()) + " is out of range");
    }
  }
  if (!IsFresh()) return;
  for (int page = 1; page <= 3; ++page) CheckLists(page);
  CheckSelectors();
}

/// Each item stands in one of the lists of its page, once.
void RandomUser::CheckLists(int page) {
  const auto items = Items(page, OwnerOn(page));
  std::vector<int> found(items.size());
  for (const auto* name : {u"lstAvail", u"lstPrint"}) {
    const ListBox& list = List(name, page);
    for (std::int16_t i = 0; i < list.ListCount(); ++i) {
      const std::int32_t number = list.ItemData(i);
      if (number < 1 || Place(number) >= items.size() || list.List(i) != items[Place(number)]->Text()) {
        return Fail("lists: an entry stands for no item: " + StateOf(list));
      }
      ++found[Place(number)];
    }
  }
  if (std::count(found.begin(), found.end(), 1) != static_cast<std::ptrdiff_t>(found.size())) {
    Fail("lists: an item does not stand in exactly one list of page " + std::to_string(page));
  }
}

/// Each offers nothing at all, and of the print characteristics those behind the one that the selector above shows,
/// but not the last.
void RandomUser::CheckSelectors() {
  if (!IsOrdered()) return;
  std::vector<int> offered = NumbersIn(List(u"lstPrint", 1));
  if (!offered.empty()) offered.pop_back();
  for (const auto* name : {u"cmbCharQueryBreak", u"cmbCharPageBreak", u"cmbCharBreakArea"}) {
    const ComboBox& combo = GetDialog().Get<ComboBox>(name);
    offered.insert(offered.begin(), -1);
    if (combo.ListIndex() < 0 || NumbersIn(combo) != offered) {
      return Fail("selectors: " + ToAscii(name) + " offers " + StateOf(combo));
    }
    offered.erase(offered.begin(), offered.begin() + combo.ListIndex() + 1);
  }
}

/// The printed items hold 1, 2, 3 ... in the order of the list, the others 0; and a break is held by the print
/// characteristic that its selector shows alone.
void RandomUser::CheckStored(const Order& order) {
  if (order.page == 0 || (order.page > 1 && order.owner == 0) || !gPrnProp) return;
  const auto items = Items(order.page, order.owner);
  for (std::size_t i = 0; i < items.size(); ++i) {
    const auto found = std::find(order.print.begin(), order.print.end(), static_cast<int>(i) + 1);
    const int expected = found == order.print.end() ? 0 : static_cast<int>(found - order.print.begin()) + 1;
    if (items[i]->Position() != expected || items[i]->Hidden() != (expected == 0)) {
      Fail("commit: item " + std::to_string(i + 1) + " of page " + std::to_string(order.page) + " has position " +
           std::to_string(items[i]->Position()) + ", not " + std::to_string(expected));
    }
  }
}

void RandomUser::Fail(const std::string& words) {
  if (failure_.empty()) failure_ = words;
}

int RandomUser::OwnerOn(int page) {
  if (page == 2) {
    const ComboBox& combo = GetDialog().Get<ComboBox>(u"cmbAttrChar");
    return combo.ListIndex() < 0 ? attrOwner_ : combo.ItemData(combo.ListIndex());
  }
  if (page == 3) {
    const auto& structures = GetDialog().Get<ListBox>(u"lstStrStructures");
    for (std::int16_t i = 0; i < structures.ListCount(); ++i) {
      if (structures.Selected(i)) return structures.ItemData(i);
    }
  }
  return 0;
}

std::vector<std::shared_ptr<const PrnItemCls>> RandomUser::Items(int page, int owner) {
  std::vector<std::shared_ptr<const PrnItemCls>> items;
  const auto add = [&](const auto& all) {
    for (const auto& item : all) items.push_back(item);
  };
  if (page == 1) add(gPrnProp->Characteristics());
  if (page == 2 && owner > 0) add(gPrnProp->Characteristics().Item(std::int32_t{owner})->Attributes());
  if (page == 3 && owner > 0) add(StructureOf(owner).Elements());
  return items;
}

RandomUser::Order RandomUser::OrderOnTop() {
  const int page = GetDialog().TabStrip().Tab();
  if (page == 0) return {};
  return {page, OwnerOn(page), NumbersIn(List(u"lstPrint", page))};
}

/// The positions ascend in the order of the print characteristics: they may not until that page has been committed.
bool RandomUser::IsOrdered() {
  const auto items = Items(1, 0);
  const auto print = NumbersIn(List(u"lstPrint", 1));
  return std::adjacent_find(print.begin(), print.end(), [&](int a, int b) {
           return items[Place(a)]->Position() >= items[Place(b)]->Position();
         }) == print.end();
}

std::string RandomUser::Entry(const EntryWidget& widget) {
  const int entry = random_.OneIn(25) ? random_.Of<int>({-1, widget.ListCount()}) : random_.Below(widget.ListCount());
  return " " + std::to_string(entry);
}

std::string RandomUser::Dump() {
  std::string dump;
  for (const auto& widget : GetDialog().Controls()) dump += DumpOf(*widget);
  return gPrnProp ? dump + TextOf(Written()) : dump;
}

std::string RandomUser::Unshown() {
  const Settings written = Written();
  const TableRef tables[] = {written.dim, written.atr, written.mem};
  constexpr TextView kNameColumns[] = {u"IOBJNM", u"ATTRINM", u"CHAVL"};
  for (int page = 1; page <= 3; ++page) {
    const int owner = OwnerOn(page);
    const Text ownerName = page == 1 || owner == 0 ? Text()
                           : page == 2             ? Text(gPrnProp->Characteristics().Item(std::int32_t{owner})->Name())
                                                   : Text(StructureOf(owner).Name());
    const ListBox& print = List(u"lstPrint", page);
    std::int16_t entry = 0;
    while (entry < print.ListCount() && !print.Selected(entry)) ++entry;
    const Text shown = entry < print.ListCount() ? Items(page, owner)[Place(print.ItemData(entry))]->Name() : Text();
    auto& table = dynamic_cast<MemoryTable&>(*tables[page - 1]);
    for (std::int32_t number = 1; number <= table.RowCount(); ++number) {
      Row& row = *RowAt(table, number);
      const bool isShown = ToText(row.Value(kNameColumns[page - 1])) == shown &&
                           (page == 1 || ToText(row.Value(u"IOBJNM")) == ownerName);
      for (const Text& column : table.ColumnNames()) {
        if (isShown || IsOfOrder(column)) row.Value(column, Variant());
      }
    }
  }
  const std::string general = GetDialog().TabStrip().Tab() == 0 ? "" : ToString(*written.gen);
  return general + ToString(*written.dim) + ToString(*written.atr) + ToString(*written.mem);
}

void RandomUser::EntriesCleared(EntryWidget& widget) {
  if (&widget == &List(u"lstAvail", 1)) filledFrom_ = gPrnProp;
  // Without a characteristic to offer the page keeps the lists of the last one.
  if (&widget == &List(u"lstAvail", 2)) {
    attrOwner_ = 0;
    attrOwner_ = OwnerOn(2);
  }
}

void RandomUser::MsgBox(const Text&, const Text&) { MaybeHostActs("# at the message: "); }
void RandomUser::ORXPrintLayoutGet(std::int16_t, const Text&) { MaybeHostActs("# in the event: "); }
void RandomUser::ORXOrderChanged() { MaybeHostActs("# in the event: "); }

}  // namespace ORXKMPrintProp::test
