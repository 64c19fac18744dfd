#include "RandomUser.h"

#include <iterator>
#include <utility>
#include <vector>

namespace ORXKMPrintProp::test {
namespace {

using Act = Action::Kind;

struct Weighted {
  Act kind;
  int weight;
};

constexpr Weighted kUser[] = {{Act::Tab, 9},   {Act::Click, 16}, {Act::RightClick, 2},  {Act::Drag, 9},
                              {Act::Caret, 1}, {Act::Toggle, 8}, {Act::ToggleCaret, 2}, {Act::Pick, 11},
                              {Act::Keys, 8},  {Act::Paste, 6},  {Act::Press, 12}};
constexpr Weighted kHost[] = {{Act::Read, 10},  {Act::ReadThrice, 2}, {Act::ReadOnly, 5},
                              {Act::Layout, 4}, {Act::Load, 3},       {Act::Texts, 1}};

template <std::size_t N>
Act Choose(Random& random, const Weighted (&choices)[N]) {
  int total = 0;
  for (const Weighted& each : choices) total += each.weight;
  int at = random.Below(total);
  for (const Weighted& each : choices) {
    if ((at -= each.weight) < 0) return each.kind;
  }
  return choices[0].kind;
}

WidgetKind WidgetFor(Act kind) {
  switch (kind) {
    case Act::Pick:
      return WidgetKind::ComboBox;
    case Act::Toggle:
      return WidgetKind::CheckBox;
    case Act::Keys:
    case Act::Paste:
      return WidgetKind::TextBox;
    case Act::Press:
      return WidgetKind::CommandButton;
    default:
      return WidgetKind::ListBox;
  }
}

}  // namespace

Action RandomUser::Next(const Scene& scene) {
  const int desk = random_.OneIn(12) ? 1 : 0;
  const Desk& at = scene.At(desk);
  if (!at.loaded ? random_.OneIn(2) : random_.OneIn(6)) return HostCall(scene, desk);

  Action action;
  action.desk = desk;
  action.kind = Choose(random_, kUser);
  if (action.kind == Act::Tab) {
    action.entries = {static_cast<std::int16_t>(random_.OneIn(40) ? 4 : random_.Below(4))};
    return action;
  }
  action.widget = WidgetOf(at, WidgetFor(action.kind));
  if (const auto* const entries = dynamic_cast<const EntryWidget*>(at.GetDialog().Controls()[action.widget].get())) {
    const int count = action.kind == Act::ToggleCaret ? 0 : action.kind == Act::Drag ? 2 + random_.Below(3) : 1;
    for (int i = 0; i < count; ++i) action.entries.push_back(Entry(*entries));
  }
  if (action.kind == Act::Keys) action.text = Keys();
  if (action.kind == Act::Paste) action.text = Pasted();
  if ((action.kind == Act::Press || action.kind == Act::Drag) && random_.OneIn(3)) {
    AddHostCalls(scene, desk, action.inEvents);
  }
  if (action.kind == Act::Drag && random_.OneIn(8)) AddHostCalls(scene, desk, action.midway);
  return action;
}

void RandomUser::AddHostCalls(const Scene& scene, int desk, std::vector<Action>& calls) {
  do {
    calls.push_back(HostCall(scene, random_.OneIn(6) ? 1 - desk : desk));
  } while (random_.OneIn(3));
}

Action RandomUser::HostCall(const Scene& scene, int desk) {
  Action action;
  action.desk = desk;
  action.kind = scene.At(desk).loaded ? Choose(random_, kHost) : random_.OneIn(3) ? Choose(random_, kHost) : Act::Load;
  switch (action.kind) {
    case Act::Read:
      action.table = random_.Below(4);
      break;
    case Act::ReadOnly:
      action.on = random_.OneIn(3);
      break;
    case Act::Texts:
      action.load.seed = random_.Next() % 100000;
      break;
    case Act::Load:
      action.load.seed = random_.Next() % 1000000;
      action.load.kind = random_.OneIn(3)
                             ? random_.Of({LoadKind::NoGeneralRow, LoadKind::TwoGeneralRows, LoadKind::BadCell,
                                           LoadKind::SecondRun, LoadKind::Same, LoadKind::Same})
                             : LoadKind::Good;
      break;
    case Act::Layout:
      action.button =
          random_.Of<Variant>({std::int16_t{4}, std::int32_t{4}, 4.0, std::int32_t{0}, 1.4, std::int16_t{2}, Text(u"3"),
                               Text(u" 1 "), Variant(), false, true, std::int32_t{5}, std::int32_t{-1}, Text(u"4"),
                               Text(u"x"), Text(), 1e9, std::int32_t{100000}});
      action.name = random_.Of({u"C0", u"C1", u"C5", u"c1", u""});
      action.text = random_.Of({u"", u"L1", u"<a b=\"c\"/>"});
      break;
    default:
      break;
  }
  return action;
}

std::int16_t RandomUser::Entry(const EntryWidget& widget) {
  if (random_.OneIn(25)) return random_.Of({std::int16_t{-1}, widget.ListCount()});
  return static_cast<std::int16_t>(random_.Below(widget.ListCount()));
}

std::size_t RandomUser::WidgetOf(const Desk& desk, WidgetKind kind) {
  const bool anywhere = random_.OneIn(15);
  std::vector<std::size_t> fitting;
  const auto rows = DialogLayout();
  for (const bool onTop : {!anywhere, false}) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].kind == kind && (!onTop || rows[i].page == desk.Tab())) fitting.push_back(i);
    }
    if (!fitting.empty()) break;
  }
  return random_.Of(fitting);
}

Text RandomUser::Keys() {
  Text keys;
  do {
    keys += random_.Of({u'0', u'1', u'7', u'9', u'5', u'\b', u'\b', u'-', u'.', u'a', u' ', u'\r', u'\u00c4',
                        char16_t{0xD800}, char16_t{0xDC00}, char16_t{0xFFFF}});
  } while (!random_.OneIn(4));
  return keys;
}

Text RandomUser::Pasted() {
  return random_.Of({u"",        u" ",
                     u"0",       u"7",
                     u"42",      u"007",
                     u"-5",      u"+8",
                     u"1e5",     u"1e3",
                     u"1e-3",    u"2.5",
                     u"3.5",     u".5",
                     u"5.",      u".",
                     u"12abc",   u"abc",
                     u"1 2",     u" 12 ",
                     u"32767",   u"32768",
                     u"32767.5", u"-32768",
                     u"-32769",  u"99999999999999999999",
                     u"1e999",   u"1e-999",
                     u"0x10",    u"1,5",
                     u"- 3",     u"1e",
                     u"\t4",     u"\u0663",
                     u"4\u00a0", u"inf",
                     u"nan",     u"1e+2x",
                     u"--1",     u"1.2.3"});
}

}  // namespace ORXKMPrintProp::test
