#include "Rules.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <unordered_map>

#include "support/table_text.h"

namespace ORXKMPrintProp::test {
namespace {

/// The number that the text begins with, as written: sign, digits with a period, exponent.
std::string Head(TextView text) {
  std::string head;
  std::size_t at = 0;
  const auto take = [&](auto isWanted) {
    const std::size_t before = head.size();
    while (at < text.size() && isWanted(text[at])) head += static_cast<char>(text[at++]);
    return head.size() - before;
  };
  const auto isDigit = [](char16_t c) { return c >= u'0' && c <= u'9'; };
  const auto takeOne = [&](auto... characters) {
    if (at >= text.size() || ((text[at] != characters) && ...)) return false;
    head += static_cast<char>(text[at++]);
    return true;
  };
  takeOne(u'+', u'-');
  std::size_t digits = take(isDigit);
  if (takeOne(u'.')) digits += take(isDigit);
  if (digits == 0) return "";
  const std::string mantissa = head;
  if (takeOne(u'e', u'E')) {
    takeOne(u'+', u'-');
    if (take(isDigit) == 0) return mantissa;
  }
  return head;
}

std::optional<std::int16_t> Fitting(const std::string& number) {
  const double rounded = std::nearbyint(std::strtod(number.c_str(), nullptr));
  if (!(rounded >= -32768 && rounded <= 32767)) return {};
  return static_cast<std::int16_t>(rounded);
}

Text Decimal(std::int16_t number) { return Wide(std::to_string(number)); }

template <class W>
W& Get(const Dialog& dialog, const char16_t* kind, int page, const char16_t* name) {
  static const char16_t* const pages[] = {u"Gen", u"Char", u"Attr", u"Str"};
  return Find<W>(dialog, Text(kind) + pages[page] + name);
}

void StoreNumber(std::optional<std::int16_t> number, std::int16_t& property) {
  if (number) property = *number;
}

void StoreCode(int index, int& property) {
  if (index >= 0) property = index;
}

}  // namespace

Widget& Find(const Dialog& dialog, TextView name, int index) {
  const auto keyOf = [](TextView widget, int number) {
    return Text(widget).append(1, static_cast<char16_t>(number + 2));
  };
  static const auto places = [&] {
    std::unordered_map<Text, std::size_t> all;
    for (const LayoutRow& row : DialogLayout()) all.emplace(keyOf(row.name.name, row.name.index), all.size());
    return all;
  }();
  return *dialog.Controls()[places.at(keyOf(name, index))];
}

std::optional<std::int16_t> WholeByRule(TextView text) {
  while (!text.empty() && text.front() == u' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == u' ') text.remove_suffix(1);
  const std::string head = Head(text);
  if (head.empty() || head.size() != text.size()) return {};
  return Fitting(head);
}

std::optional<std::int16_t> LeadingByRule(TextView text) {
  Text dense;
  for (const char16_t c : text) {
    if (c != u' ') dense += c;
  }
  return Fitting(Head(dense));
}

Frame FrameIn(const Dialog& dialog, int page) {
  Frame frame;
  frame.title = Get<TextBox>(dialog, u"txt", page, u"ColTitle").GetText();
  frame.autoWidth = Get<CheckBox>(dialog, u"chk", page, u"ColAutoWidth").Value() != 0;
  if (page == 3) {
    frame.align1 = Get<ComboBox>(dialog, u"cmb", page, u"ColAlign").ListIndex();
    frame.width1 = Get<TextBox>(dialog, u"txt", page, u"ColWidth").GetText();
    return frame;
  }
  frame.presentation = Get<ComboBox>(dialog, u"cmb", page, u"Presentation").ListIndex();
  frame.align1 = Get<ComboBox>(dialog, u"cmb", page, u"ColAlign1").ListIndex();
  frame.align2 = Get<ComboBox>(dialog, u"cmb", page, u"ColAlign2").ListIndex();
  frame.width1 = Get<TextBox>(dialog, u"txt", page, u"ColWidth1").GetText();
  frame.width2 = Get<TextBox>(dialog, u"txt", page, u"ColWidth2").GetText();
  frame.eachPage1 = Get<CheckBox>(dialog, u"chk", page, u"ColEachPage1").Value() != 0;
  frame.eachPage2 = Get<CheckBox>(dialog, u"chk", page, u"ColEachPage2").Value() != 0;
  if (page == 2) return frame;
  frame.hierarchy = Get<CheckBox>(dialog, u"chk", page, u"HierDisplay").Value() != 0;
  frame.level = Get<TextBox>(dialog, u"txt", page, u"HierLevel").GetText();
  frame.noSums = Get<ComboBox>(dialog, u"cmb", page, u"NoSums").ListIndex();
  return frame;
}

ItemProps PropsOf(const ItemView& item) {
  ItemProps props;
  if (const auto* const columns = item.columns) {
    props.presentation = columns->Presentation();
    props.title = columns->ColTitle();
    props.align1 = columns->ColAlign1();
    props.align2 = columns->ColAlign2();
    props.autoWidth = columns->ColAutoWidth();
    props.width1 = columns->ColWidth1();
    props.width2 = columns->ColWidth2();
    props.eachPage1 = columns->ColFix1();
    props.eachPage2 = columns->ColFix2();
  }
  if (const auto* const characteristic = item.characteristic) {
    props.hierarchy = characteristic->HryActive();
    props.level = characteristic->HryLevel();
    props.noSums = characteristic->NoSums();
  }
  if (const auto* const element = item.element) {
    props.title = element->ColTitle();
    props.align1 = element->ColAlign();
    props.autoWidth = element->ColAutoWidth();
    props.width1 = element->ColWidth();
  }
  return props;
}

Frame FrameOf(const ItemProps& props, int page) {
  Frame frame;
  frame.title = props.title;
  frame.align1 = props.align1;
  frame.autoWidth = props.autoWidth;
  if (!props.autoWidth) frame.width1 = Decimal(props.width1);
  if (page == 3) return frame;
  frame.presentation = props.presentation;
  frame.align2 = props.align2;
  if (!props.autoWidth) frame.width2 = Decimal(props.width2);
  frame.eachPage1 = props.eachPage1;
  frame.eachPage2 = props.eachPage2;
  if (page == 2) return frame;
  frame.hierarchy = props.hierarchy;
  if (props.hierarchy) frame.level = Decimal(props.level);
  frame.noSums = props.noSums;
  return frame;
}

ItemProps AfterStore(ItemProps props, const Frame& frame, int page) {
  props.title = frame.title;
  StoreCode(frame.align1, props.align1);
  props.autoWidth = frame.autoWidth;
  StoreNumber(LeadingByRule(frame.width1), props.width1);
  if (page == 3) return props;
  StoreCode(frame.presentation, props.presentation);
  StoreCode(frame.align2, props.align2);
  StoreNumber(LeadingByRule(frame.width2), props.width2);
  props.eachPage1 = frame.eachPage1;
  props.eachPage2 = frame.eachPage2;
  if (page == 2) return props;
  props.hierarchy = frame.hierarchy;
  StoreNumber(LeadingByRule(frame.level), props.level);
  StoreCode(frame.noSums, props.noSums);
  return props;
}

GeneralWidgets GeneralWidgetsIn(const Dialog& dialog) {
  GeneralWidgets widgets;
  for (std::size_t i = 0; i < 6; ++i) widgets.boxes[i] = Find<TextBox>(dialog, kGeneralBoxes[i]).GetText();
  for (std::size_t i = 0; i < 4; ++i) widgets.combos[i] = Find<ComboBox>(dialog, kGeneralCombos[i]).ListIndex();
  for (std::size_t i = 0; i < 4; ++i) widgets.checks[i] = Find<CheckBox>(dialog, kGeneralChecks[i]).Value() != 0;
  return widgets;
}

GeneralProps GeneralPropsOf(const PrnPropCls& root) {
  return {root.Title(),
          {root.MaxPages(), root.MarginTop(), root.MarginBottom(), root.MarginLeft(), root.MarginRight()},
          {root.Direction(), root.SumPosit(), root.SignPrsnt(), root.CurUnitPosition()},
          {root.ShowNoZeros(), root.UseColors(), root.NoMultTxt(), root.NoLines()}};
}

GeneralWidgets ShownGeneral(const GeneralProps& props) {
  GeneralWidgets widgets{{props.title}, props.codes, props.flags};
  for (std::size_t i = 0; i < 5; ++i) widgets.boxes[i + 1] = Decimal(props.numbers[i]);
  // "Not displayed" is the third entry and the fourth value; the third value has no entry.
  int& position = widgets.combos[3];
  position = position == PP_PRN_CUPOS_NONE ? 2 : position == PP_PRN_CUPOS_HEAD ? -1 : position;
  return widgets;
}

GeneralProps AfterStore(GeneralProps props, const GeneralWidgets& widgets) {
  props.title = widgets.boxes[0];
  StoreNumber(LeadingByRule(widgets.boxes[1]), props.numbers[0]);
  for (std::size_t i = 1; i < 5; ++i) StoreNumber(WholeByRule(widgets.boxes[i + 1]), props.numbers[i]);
  for (std::size_t i = 0; i < 4; ++i) StoreCode(widgets.combos[i], props.codes[i]);
  if (props.codes[3] == 2 && widgets.combos[3] == 2) props.codes[3] = PP_PRN_CUPOS_NONE;
  props.flags = widgets.checks;
  return props;
}

}  // namespace ORXKMPrintProp::test
