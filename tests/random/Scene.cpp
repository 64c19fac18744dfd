#include "Scene.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

#include "Invariants.h"
#include "Transitions.h"
#include "tables/Conversions.h"

namespace ORXKMPrintProp::test {
namespace {

using Act = Action::Kind;

const char* const kRefusals[] = {"none", "not on top", "hidden", "disabled", "no such entry"};

template <class Items>
std::vector<ItemView> Views(const Items& items) {
  std::vector<ItemView> views;
  for (const auto& item : items) {
    ItemView& view = views.emplace_back(ItemView{item});
    if constexpr (requires { item->Presentation; }) view.columns = item.get();
    if constexpr (requires { item->NoSums; }) view.characteristic = item.get();
    if constexpr (requires { item->ColWidth; }) view.element = item.get();
  }
  return views;
}

const PrnStructureCls& StructureOf(const PrnPropCls& root, int number) {
  return number == 1 ? root.Structure1() : root.Structure2();
}

/// Whether a user can do it, and why not.
Refusal RefusalOf(const Action& action, const Desk& desk) {
  const auto has = [](std::int16_t entry, int count) { return entry >= 0 && entry < count; };
  if (action.kind == Act::Tab) return has(action.entries[0], 4) ? Refusal::None : Refusal::NoSuchEntry;
  const Widget& widget = *desk.GetDialog().Controls()[action.widget];
  if (widget.Row().page != desk.Tab()) return Refusal::NotOnTop;
  if (!widget.Visible()) return Refusal::Hidden;
  if (!widget.Enabled()) return Refusal::Disabled;
  if (const auto* const entries = dynamic_cast<const EntryWidget*>(&widget)) {
    const auto lacks = [&](std::int16_t entry) { return !has(entry, entries->ListCount()); };
    if (std::any_of(action.entries.begin(), action.entries.end(), lacks)) return Refusal::NoSuchEntry;
    if (action.kind == Act::ToggleCaret && lacks(entries->ListIndex())) return Refusal::NoSuchEntry;
  }
  return Refusal::None;
}

/// The bytes as they are, which is quick; `Difference` makes them readable.
void AppendText(std::string& dump, TextView text) {
  dump += '"';
  dump.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
  dump += '"';
}

void AppendNumber(std::string& dump, std::int64_t number) { dump += ' ' + std::to_string(number); }

void AppendTable(std::string& dump, Table& table) {
  auto& memory = dynamic_cast<MemoryTable&>(table);
  for (std::int32_t row = 1; row <= memory.RowCount(); ++row) {
    const RowRef cells = memory.Rows(row);
    for (const Text& column : memory.ColumnNames()) {
      dump += ' ';
      const Variant value = cells->Value(column);
      AppendNumber(dump, static_cast<std::int64_t>(value.index()));
      AppendText(dump, ToText(Variant(value)));
    }
    dump += '\n';
  }
}

std::string TablesOf(const Settings& settings) {
  std::string dump;
  for (const TableRef& table : {settings.gen, settings.dim, settings.mem, settings.atr}) AppendTable(dump, *table);
  return dump;
}

void AppendWidget(std::string& dump, const Widget& widget) {
  dump += NameOf(widget.Row()) + (widget.Visible() ? " visible" : "") + (widget.Enabled() ? " enabled " : " ");
  AppendText(dump, widget.Caption());
  AppendText(dump, widget.ToolTipText());
  if (const auto* const box = dynamic_cast<const TextBox*>(&widget)) AppendText(dump, box->GetText());
  if (const auto* const check = dynamic_cast<const CheckBox*>(&widget)) AppendNumber(dump, check->Value());
  if (const auto* const strip = dynamic_cast<const SSTab*>(&widget)) AppendNumber(dump, strip->Tab());
  const auto* const list = dynamic_cast<const ListBox*>(&widget);
  if (const auto* const entries = dynamic_cast<const EntryWidget*>(&widget)) {
    AppendNumber(dump, entries->ListIndex());
    for (std::int16_t i = 0; i < entries->ListCount(); ++i) {
      AppendText(dump, entries->List(i));
      AppendNumber(dump, entries->ItemData(i));
      if (list && list->Selected(i)) dump += '*';
    }
  }
  dump += '\n';
}

void AppendModel(std::string& dump, const PrnPropCls& root) {
  const GeneralProps general = GeneralPropsOf(root);
  AppendText(dump, general.title);
  for (const int number : general.numbers) AppendNumber(dump, number);
  for (const int code : general.codes) AppendNumber(dump, code);
  for (const bool flag : general.flags) AppendNumber(dump, flag);
  for (std::int16_t i = 0; i < 4; ++i) AppendText(dump, root.FBLayout(i));
  dump += '\n';
  for (int page = 1; page <= 3; ++page) {
    for (const int owner : OwnersOf(root, page)) {
      for (const auto& item : ItemsOf(root, page, owner)) {
        const ItemProps props = PropsOf(item);
        for (const int number :
             {props.presentation, props.align1, props.align2, int{props.width1}, int{props.width2}, int{props.level},
              props.noSums, int{item->Position()}, int{item->Hidden()}, int{props.autoWidth}, int{props.eachPage1},
              int{props.eachPage2}, int{props.hierarchy}}) {
          AppendNumber(dump, number);
        }
        AppendText(dump, props.title);
        if (const auto* const characteristic = item.characteristic) {
          AppendText(dump, characteristic->FBLayout());
          AppendNumber(
              dump, characteristic->QueryBreak() + 2 * characteristic->PageBreak() + 4 * characteristic->BreakArea());
        }
        dump += '\n';
      }
    }
  }
}

/// The first lines that differ.
std::string Difference(const std::string& before, const std::string& after) {
  if (before == after) return "";
  const auto [x, y] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto line = [](const std::string& text, auto at) {
    const auto place = static_cast<std::size_t>(at - text.begin());
    const std::size_t begin = place == 0 ? 0 : text.rfind('\n', place - 1) + 1;
    std::string readable = text.substr(begin, text.find('\n', place) - begin);
    std::erase(readable, '\0');
    return readable;
  };
  return "\n  before: " + line(before, x) + "\n  after:  " + line(after, y);
}

/// What a layout for that button fails with.
std::optional<ErrorKind> LayoutFails(const Variant& button) {
  if (const auto* const text = std::get_if<Text>(&button)) {
    const auto number = WholeByRule(*text);
    if (!number) return ErrorKind::Type;
    return *number >= 0 && *number <= 3 ? std::nullopt : std::optional(ErrorKind::Index);
  }
  double number = 0;
  if (const auto* const flag = std::get_if<bool>(&button)) number = *flag ? -1 : 0;
  if (const auto* const small = std::get_if<std::int16_t>(&button)) number = *small;
  if (const auto* const large = std::get_if<std::int32_t>(&button)) number = *large;
  if (const auto* const real = std::get_if<double>(&button)) number = *real;
  if (number == 4) return {};
  number = std::nearbyint(number);
  return number >= 0 && number <= 3 ? std::nullopt : std::optional(ErrorKind::Index);
}

template <class Names>
std::optional<std::size_t> PlaceOf(const Names& names, const LayoutRow& row) {
  const auto found = std::find(names.begin(), names.end(), row.name.name);
  if (found == names.end()) return {};
  return static_cast<std::size_t>(found - names.begin());
}

/// What typing makes of a text.
Text Typed(Text text, TextView keys, bool digitsOnly) {
  for (const char16_t key : keys) {
    if (key == 8) {
      const std::size_t last = text.size() - 1;
      const bool isPair = text.size() > 1 && (text[last] & 0xFC00) == 0xDC00 && (text[last - 1] & 0xFC00) == 0xD800;
      if (!text.empty()) text.resize(text.size() - (isPair ? 2 : 1));
    } else if (digitsOnly ? key >= u'0' && key <= u'9' : key >= u' ') {
      text += key;
    }
  }
  return text;
}

}  // namespace

std::vector<ItemView> ItemsOf(const PrnPropCls& root, int page, int owner) {
  if (page == 1) return Views(root.Characteristics());
  if (owner < 1) return {};
  if (page == 2) return Views(root.Characteristics().Item(std::int32_t{owner})->Attributes());
  return Views(StructureOf(root, owner).Elements());
}

std::vector<int> OwnersOf(const PrnPropCls& root, int page) {
  if (page == 1) return {0};
  std::vector<int> owners;
  for (int number = 1; number <= (page == 2 ? root.Characteristics().Count() : 2); ++number) {
    // A structure without a name is not there: no page offers it, and it is not written back.
    if (page == 2 || !StructureOf(root, number).Name().empty()) owners.push_back(number);
  }
  return owners;
}

Desk::Desk() {
  control.Connect(*this);
  GetDialog().SetView(this);
}

Desk::~Desk() { GetDialog().SetView(nullptr); }

int Desk::OwnerOn(int page) const {
  if (page == 2) {
    const ComboBox& combo = Combo(u"cmbAttrChar");
    return combo.ListIndex() >= 0 ? combo.ItemData(combo.ListIndex()) : attrOwner_;
  }
  if (page == 3) {
    const auto& structures = Find<ListBox>(GetDialog(), u"lstStrStructures");
    for (std::int16_t i = 0; i < structures.ListCount(); ++i) {
      if (structures.Selected(i)) return structures.ItemData(i);
    }
  }
  return 0;
}

ItemId Desk::ShownOn(int page) const {
  const ListBox& print = List(u"lstPrint", page);
  if (print.SelCount() != 1) return {OwnerOn(page), 0};
  std::int16_t selected = 0;
  while (!print.Selected(selected)) ++selected;
  return {OwnerOn(page), print.ItemData(selected)};
}

std::vector<int> Desk::NumbersIn(const EntryWidget& widget) {
  std::vector<int> numbers;
  for (std::int16_t i = 0; i < widget.ListCount(); ++i) numbers.push_back(widget.ItemData(i));
  return numbers;
}

std::vector<ItemView> Desk::Items(int page) const { return ItemsOf(*gPrnProp, page, OwnerOn(page)); }

bool Desk::IsOrdered() const {
  const auto items = Items(1);
  int last = -40000;
  for (const int number : NumbersIn(List(u"lstPrint", 1))) {
    const int position = items.at(static_cast<std::size_t>(number) - 1)->Position();
    if (position <= last) return false;
    last = position;
  }
  return true;
}

void Desk::EntriesCleared(EntryWidget& widget) {
  for (int page = 1; page <= 3; ++page) {
    if (&widget != &List(u"lstAvail", page)) continue;
    ++clears[static_cast<std::size_t>(page)];
    if (page == 1) filledFrom = gPrnProp;
    if (page == 2) attrOwner_ = Combo(u"cmbAttrChar").ListIndex() >= 0 ? OwnerOn(2) : 0;
  }
}

void Desk::MsgBox(const Text&, const Text&) {
  ++messages;
  onEvent();
}
void Desk::ORXPrintLayoutGet(std::int16_t, const Text&) {
  ++events;
  onEvent();
}
void Desk::ORXOrderChanged() {
  ++events;
  onEvent();
}

Scene::Scene() {
  gPrnProp.reset();
  gTextTable.reset();
  gErrorText.clear();
  gCurChar = gCurAttrChar = gCurAttr = gCurStr = gCurStrElem = 0;
  for (auto& desk : desks_) desk = std::make_unique<Desk>();
}

void Scene::NoteFill(Desk& desk) {
  if (WasFilled(desk.noted, desk)) {
    desk.typed = ShownGeneral(general_);
    desk.mixed = false;
  }
  desk.noted = desk.clears;
}

void Scene::Fail(const std::string& words) {
  if (failure_.empty()) failure_ = words;
}

template <class Operation>
void Scene::Expect(std::optional<ErrorKind> kind, const std::string& words, Operation operation) {
  try {
    operation();
    if (kind) Fail("failures: " + words + " does not fail");
  } catch (const RunTimeError& error) {
    if (kind != error.Kind()) Fail("failures: " + words + " fails: " + error.what());
  } catch (const std::exception& error) {
    Fail("failures: " + words + " throws: " + error.what());
  }
}

std::string Scene::Dump(bool withTables) const {
  std::string dump;
  for (const auto& desk : desks_) {
    for (const auto& widget : desk->GetDialog().Controls()) AppendWidget(dump, *widget);
    AppendNumber(dump, desk->GetDialog().MousePointer());
    dump += '\n';
    if (withTables && desk->tables) dump += TablesOf(*desk->tables);
  }
  if (gPrnProp) AppendModel(dump, *gPrnProp);
  return dump;
}

std::string Scene::Do(const Action& action) {
  failure_.clear();
  Desk& desk = At(action.desk);
  for (const auto& each : desks_) {
    each->onEvent = [this, &action] {
      for (const Action& call : action.inEvents) Perform(call);
    };
  }
  const std::array<Seen, 2> before{Seen(*desks_[0]), Seen(*desks_[1])};
  const bool done = Perform(action);
  for (const auto& each : desks_) each->onEvent = [] {};
  for (std::size_t i = 0; i < desks_.size(); ++i) {
    NoteChanges(before[i], *desks_[i], done && &desk == desks_[i].get() ? &action : nullptr);
  }
  if (failure_.empty() && done) failure_ = CheckTransition(before[static_cast<std::size_t>(action.desk)], desk, action);
  for (const auto& each : desks_) {
    if (failure_.empty()) failure_ = CheckInvariants(*this, *each);
  }
  return failure_;
}

bool Scene::Perform(const Action& action) {
  Desk& desk = At(action.desk);
  Desk& other = At(1 - action.desk);
  bool done = true;
  NoteFill(desk);
  NoteFill(other);
  switch (action.kind) {
    case Act::Layout:
      PerformLayout(action, desk);
      break;
    case Act::ReadOnly:
      if (action.on != desk.readOnly) ++desk.switches;
      desk.readOnly = action.on;
      Expect({}, "readonly", [&] { desk.control.ORXSetReadOnly(action.on); });
      break;
    case Act::Texts:
      Expect({}, "texts", [&] {
        if (desk.control.ORXControlTexts(RandomTexts(action.load.seed))) Fail("failures: texts gives True");
      });
      break;
    case Act::Load:
      PerformLoad(action, desk);
      break;
    case Act::Read:
      PerformRead(desk, action.table);
      break;
    case Act::ReadThrice:
      PerformReadThrice(desk);
      break;
    default:
      done = PerformUser(action, desk);
      break;
  }
  NoteFill(desk);
  if (desk.IsFresh() && other.IsFresh()) other.mixed = true;
  return done;
}

bool Scene::PerformUser(const Action& action, Desk& desk) {
  const Refusal expected = RefusalOf(action, desk);
  // The tables take most of the time, and only a read can change them.
  const bool withTables = expected != Refusal::None && ++refusals_ % 8 == 0;
  const std::string dump = expected == Refusal::None ? "" : Dump(withTables);
  const int tab = desk.Tab();
  const bool wasFresh = desk.IsFresh();
  Widget& widget = *desk.GetDialog().Controls()[action.widget];
  Refusal refusal = Refusal::None;
  const auto mouse = [&](std::int16_t button) {
    auto& list = dynamic_cast<ListBox&>(widget);
    refusal = list.UserMouseDown(action.entries[0], button);
    if (refusal != Refusal::None) return;
    for (std::size_t i = 1; i < action.entries.size(); ++i) {
      list.UserMouseMove(action.entries[i]);
      for (std::size_t call = 0; i == 1 && call < action.midway.size(); ++call) Perform(action.midway[call]);
    }
    list.UserMouseUp(button);
  };
  Expect({}, "what a user does", [&] {
    switch (action.kind) {
      case Act::Tab:
        refusal = desk.GetDialog().TabStrip().UserPick(action.entries[0]);
        break;
      case Act::Click:
        return mouse(ListBox::kLeftButton);
      case Act::RightClick:
        return mouse(ListBox::kRightButton);
      case Act::Drag:
        // The script refuses a drag whole when one of its entries is not there.
        if (expected != Refusal::None) {
          refusal = expected;
          return;
        }
        return mouse(ListBox::kLeftButton);
      case Act::Caret:
        refusal = dynamic_cast<ListBox&>(widget).UserMoveCaret(action.entries[0]);
        break;
      case Act::ToggleCaret:
        refusal = dynamic_cast<ListBox&>(widget).UserToggle();
        break;
      case Act::Pick:
        refusal = dynamic_cast<ComboBox&>(widget).UserPick(action.entries[0]);
        break;
      case Act::Toggle:
        refusal = dynamic_cast<CheckBox&>(widget).UserToggle();
        break;
      case Act::Keys:
        for (const char16_t key : action.text) {
          refusal = dynamic_cast<TextBox&>(widget).UserKey(key);
          if (refusal != Refusal::None) break;
        }
        break;
      case Act::Paste:
        refusal = dynamic_cast<TextBox&>(widget).UserEdit(action.text);
        break;
      default:
        refusal = dynamic_cast<CommandButton&>(widget).UserPress();
        break;
    }
  });
  if (refusal != expected && !(action.kind == Act::Keys && action.text.empty())) {
    Fail(std::string("refusals: refused for ") + kRefusals[static_cast<int>(refusal)] + ", not for " +
         kRefusals[static_cast<int>(expected)]);
  }
  if (expected != Refusal::None) {
    if (const std::string difference = Difference(dump, Dump(withTables)); !difference.empty()) {
      Fail("refusals: what was refused changes" + difference);
    }
    return false;
  }
  NoteUser(action, desk, tab, wasFresh);
  return true;
}

void Scene::NoteUser(const Action& action, Desk& desk, int tabBefore, bool wasFresh) {
  if (action.kind == Act::Tab) {
    if (desk.Tab() == tabBefore || !desk.loaded) return;
    if (wasFresh && tabBefore == 0) general_ = AfterStore(general_, desk.typed);
    if (desk.Tab() == 0) desk.typed = ShownGeneral(general_);
    return;
  }
  const LayoutRow& row = DialogLayout()[action.widget];
  if (const auto box = PlaceOf(kGeneralBoxes, row)) {
    Text& text = desk.typed.boxes[*box];
    text = action.kind == Act::Paste ? action.text : Typed(text, action.text, *box > 0);
  }
  if (const auto combo = PlaceOf(kGeneralCombos, row)) desk.typed.combos[*combo] = action.entries[0];
  if (const auto check = PlaceOf(kGeneralChecks, row)) desk.typed.checks[*check] = !desk.typed.checks[*check];
}

void Scene::PerformLoad(const Action& action, Desk& desk) {
  const bool same = action.load.kind == LoadKind::Same;
  if (same && !desk.tables) return;
  PlannedSettings planned = same ? PlannedSettings{*desk.tables} : SettingsOf(action.load);
  if (same) planned.loads = desk.tables->gen->RowCount() == 1;
  Expect(planned.fails, "load", [&] {
    const bool result = planned.tables.LoadInto(desk.control);
    desk.tables = planned.tables;
    desk.loaded = true;
    if (result != planned.loads) Fail("failures: the load gives the wrong result");
    if (desk.tables->gen->RowCount() != 0) Fail("load: the general table is not empty");
  });
  general_ = planned.fails || planned.loads ? GeneralPropsOf(*gPrnProp) : GeneralProps{};
  if (!planned.fails && planned.loads != desk.IsFresh()) Fail("load: the pages are not those of the load");
  if (planned.loads && !planned.fails) desk.typed = ShownGeneral(general_);
}

void Scene::PerformRead(Desk& desk, int table) {
  const bool wasFresh = desk.IsFresh();
  Expect({}, "read", [&] {
    static constexpr TableRef (ORXQueryPrnProp::*kTables[])() = {
        &ORXQueryPrnProp::ORXGenPropTable, &ORXQueryPrnProp::ORXDimTable, &ORXQueryPrnProp::ORXMemTable,
        &ORXQueryPrnProp::ORXAtrTable};
    const TableRef read = (desk.control.*kTables[table])();
    TableRef held;
    if (desk.tables) {
      const TableRef tables[] = {desk.tables->gen, desk.tables->dim, desk.tables->mem, desk.tables->atr};
      held = tables[table];
    }
    if (read != held) Fail("read: not the table that the host handed in");
  });
  if (!desk.loaded) return;
  if (wasFresh && desk.Tab() == 0) general_ = AfterStore(general_, desk.typed);
  NoteFill(desk);
}

void Scene::PerformReadThrice(Desk& desk) {
  std::string first;
  for (int round = 0; round < 3; ++round) {
    for (int table = 0; table < 4; ++table) PerformRead(desk, table);
    if (!desk.tables) return;
    const std::string tables = TablesOf(*desk.tables);
    if (round == 0) first = tables;
    if (const std::string difference = Difference(first, tables); !difference.empty()) {
      Fail("read: reading again gives other tables" + difference);
    }
  }
}

void Scene::PerformLayout(const Action& action, Desk& desk) {
  const auto fails = desk.loaded ? LayoutFails(action.button) : std::optional(ErrorKind::Index);
  Expect(fails, "layout", [&] {
    const Variant result = desk.control.ORXSetPrintLayout(action.text, action.button, action.name);
    if (!std::holds_alternative<std::monostate>(result)) Fail("layout: the result is not empty");
  });
}

}  // namespace ORXKMPrintProp::test
