#include "Invariants.h"

#include <algorithm>
#include <vector>

namespace ORXKMPrintProp::test {
namespace {

std::string PageName(int page) { return "page " + std::to_string(page); }

template <class Check>
std::string OnListPages(Check check) {
  for (int page = 1; page <= 3; ++page) {
    if (std::string wrong = check(page); !wrong.empty()) return wrong + " on " + PageName(page);
  }
  return "";
}

std::string Widgets(const Scene&, const Desk& desk) {
  for (const auto& widget : desk.GetDialog().Controls()) {
    const auto* const entries = dynamic_cast<const EntryWidget*>(widget.get());
    if (!entries) continue;
    if (entries->ListIndex() < -1 || entries->ListIndex() >= entries->ListCount()) {
      return NameOf(widget->Row()) + " has its index out of range";
    }
    const auto* const list = dynamic_cast<const ListBox*>(entries);
    if (!list) continue;
    int selected = 0;
    for (std::int16_t i = 0; i < list->ListCount(); ++i) selected += list->Selected(i);
    if (selected != list->SelCount()) return NameOf(widget->Row()) + " counts its selected entries wrong";
    if (!list->Row().multiSelect && selected > 1) return NameOf(widget->Row()) + " has two selected entries";
  }
  return "";
}

std::string Pointer(const Scene&, const Desk& desk) {
  return desk.GetDialog().MousePointer() == 0 ? "" : "the drag pointer shows without a drag";
}

std::string ReadOnly(const Scene&, const Desk& desk) {
  return const_cast<Desk&>(desk).control.IsReadOnly() == desk.readOnly ? "" : "not as the host has set it";
}

std::string Lists(const Scene&, const Desk& desk) {
  return OnListPages([&](int page) -> std::string {
    const auto items = desk.Items(page);
    std::vector<int> found(items.size());
    for (const auto* name : {u"lstAvail", u"lstPrint"}) {
      const ListBox& list = desk.List(name, page);
      for (std::int16_t i = 0; i < list.ListCount(); ++i) {
        const std::int32_t number = list.ItemData(i);
        if (number < 1 || static_cast<std::size_t>(number) > items.size()) return "an entry stands for no item";
        ++found[static_cast<std::size_t>(number) - 1];
        if (list.List(i) != items[static_cast<std::size_t>(number) - 1]->Text()) return "an entry has another text";
      }
    }
    if (std::any_of(found.begin(), found.end(), [](int count) { return count != 1; })) {
      return "an item does not stand in exactly one list";
    }
    return "";
  });
}

std::string Selectors(const Scene&, const Desk& desk) {
  if (desk.mixed || !desk.IsOrdered()) return "";
  std::vector<int> offered = Desk::NumbersIn(desk.List(u"lstPrint", 1));
  if (!offered.empty()) offered.pop_back();
  const auto items = desk.Items(1);
  for (const auto* name : {u"cmbCharQueryBreak", u"cmbCharPageBreak", u"cmbCharBreakArea"}) {
    const ComboBox& combo = desk.Combo(name);
    offered.insert(offered.begin(), -1);
    if (combo.ListIndex() < 0) return ToAscii(name) + " shows nothing";
    if (Desk::NumbersIn(combo) != offered) return ToAscii(name) + " offers other entries";
    for (std::int16_t i = 1; i < combo.ListCount(); ++i) {
      if (combo.List(i) != items[static_cast<std::size_t>(combo.ItemData(i)) - 1]->Text()) {
        return ToAscii(name) + " has another text";
      }
    }
    offered.erase(offered.begin(), offered.begin() + combo.ListIndex() + 1);
  }
  return "";
}

std::string Frames(const Scene&, const Desk& desk) {
  if (desk.mixed) return "";
  return OnListPages([&](int page) -> std::string {
    if (desk.notes[static_cast<std::size_t>(page)].edited) return "";
    const ItemId shown = desk.ShownOn(page);
    const Frame frame = FrameIn(desk.GetDialog(), page);
    if (shown.number == 0) return frame == Frame{} ? "" : "the frame is not blank";
    const auto item = desk.Items(page)[static_cast<std::size_t>(shown.number) - 1];
    return frame == FrameOf(PropsOf(item), page) ? "" : "the frame does not show the selected item";
  });
}

std::string SecondColumn(const Scene&, const Desk& desk) {
  int presentations[] = {-1, -1, -1, -1};
  for (const int page : {1, 2}) presentations[page] = FrameIn(desk.GetDialog(), page).presentation;
  for (const auto& widget : desk.GetDialog().Controls()) {
    const LayoutRow& row = widget->Row();
    const bool isSecond = row.parent.ends_with(u"PrintProp") && row.name.name.ends_with(u"2");
    const int presentation = isSecond ? presentations[row.page] : -1;
    if (widget->Visible() != (presentation != PP_VALP_TEXT && presentation != PP_VALP_KEY)) {
      return NameOf(row) + (widget->Visible() ? " is visible" : " is hidden");
    }
  }
  return "";
}

/// Whether the widget has to be enabled, or may be as it likes.
enum class Want { Off, On, Any };

Want WantOf(const Desk& desk, const LayoutRow& row, const ItemId& shown, const Frame& frame) {
  const TextView name = row.name.name;
  const Want unlessReadOnly = desk.readOnly ? Want::Off : Want::On;
  if (row.kind == WidgetKind::SSTab || row.kind == WidgetKind::Frame || row.kind == WidgetKind::Label) return Want::On;
  if (name == u"cmdPrintLayout") {
    return row.name.index < 4 || shown.number > 0 ? Want::On : Want::Off;
  }
  if (name == u"lstPrint" || name == u"lstStrStructures" || name == u"cmbAttrChar") return Want::On;
  if (!row.parent.ends_with(u"PrintProp")) return unlessReadOnly;

  if (shown.number == 0) return desk.ShowsOwner(row.page) || desk.readOnly ? Want::Off : Want::Any;
  const Desk::Notes& notes = desk.notes[static_cast<std::size_t>(row.page)];
  const bool isLevel = name == u"txtCharHierLevel";
  if (isLevel || name == u"chkCharHierDisplay") {
    const auto item = desk.Items(1)[static_cast<std::size_t>(shown.number) - 1];
    if (item.characteristic->HieNm().empty()) return Want::Off;
  }
  const bool isWidth = name.find(u"ColWidth") != TextView::npos;
  const bool off = (isLevel && !frame.hierarchy) || (isWidth && frame.autoWidth);
  if (!off || desk.readOnly) return unlessReadOnly;
  return (isLevel && notes.levelSwitched) || (isWidth && notes.widthSwitched) ? Want::Any : Want::Off;
}

std::string Enabled(const Scene&, const Desk& desk) {
  ItemId shown[4];
  Frame frames[4];
  for (const int page : {1, 2, 3}) {
    shown[page] = desk.ShownOn(page);
    frames[page] = FrameIn(desk.GetDialog(), page);
  }
  for (const auto& widget : desk.GetDialog().Controls()) {
    const LayoutRow& row = widget->Row();
    const int page = std::max<int>(row.page, 0);
    const Want want = WantOf(desk, row, shown[page], frames[page]);
    if (want != Want::Any && widget->Enabled() != (want == Want::On)) {
      return NameOf(widget->Row()) + (widget->Enabled() ? " is enabled" : " is disabled");
    }
  }
  return "";
}

std::string General(const Scene& scene, const Desk& desk) {
  if (GeneralPropsOf(*gPrnProp) != scene.General()) return "the model does not hold what was typed";
  if (GeneralWidgetsIn(desk.GetDialog()) != desk.typed) return "the page does not show what was typed";
  return "";
}

struct Check {
  const char* name;
  bool whenFresh;  ///< only while the pages show the model
  std::string (*run)(const Scene&, const Desk&);
};

constexpr Check kChecks[] = {
    {"widgets", false, Widgets},
    {"pointer", false, Pointer},
    {"read-only", false, ReadOnly},
    {"lists", true, Lists},
    {"selectors", true, Selectors},
    {"frames", true, Frames},
    {"second column", true, SecondColumn},
    {"enabled", true, Enabled},
    {"general", true, General},
};

}  // namespace

std::string CheckInvariants(const Scene& scene, const Desk& desk) {
  for (const Check& check : kChecks) {
    if (check.whenFresh && !desk.IsFresh()) continue;
    if (std::string wrong = check.run(scene, desk); !wrong.empty()) return std::string(check.name) + ": " + wrong;
  }
  return "";
}

}  // namespace ORXKMPrintProp::test
