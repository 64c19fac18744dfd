#include "dialog/Widgets.h"

#include <cstddef>
#include <utility>

#include "tables/Conversions.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp {

const char* WordsOf(Refusal refusal) {
  static constexpr const char* kWords[] = {"", "not on top", "hidden", "disabled", "no such entry"};
  return kWords[static_cast<std::size_t>(refusal)];
}

Widget::Widget(WidgetContext& context, const LayoutRow& row)
    : context_(context),
      row_(row),
      font_{Text(kStoredFontName), kStoredFontSize, kStoredFontWeight},
      caption_(row.caption) {}

void Widget::ThrowIndex(std::int16_t index) const {
  throw RunTimeError(ErrorKind::Index, Text(row_.name.name) + u" has no entry " + ToText(std::int32_t{index}) + u".");
}

Refusal Widget::Refuses() const {
  if (row_.kind != WidgetKind::SSTab && row_.page != context_.tab) return Refusal::NotOnTop;
  if (!visible_) return Refusal::Hidden;
  return enabled_ ? Refusal::None : Refusal::Disabled;
}

Refusal CommandButton::UserPress() {
  const Refusal refusal = Refuses();
  if (refusal == Refusal::None) Raise(Click);
  return refusal;
}

void CheckBox::Value(std::int16_t value) {
  if (value == value_) return;
  Set(WidgetProperty::Value, value_, value);
  Raise(Click);
}

Refusal CheckBox::UserToggle() {
  const Refusal refusal = Refuses();
  if (refusal == Refusal::None) Value(value_ == 0 ? 1 : 0);
  return refusal;
}

char16_t TextBox::FilterKey(char16_t key) const {
  auto code = static_cast<std::int16_t>(key);
  Raise(KeyPress, code);
  return static_cast<char16_t>(code);
}

Text TextBox::Filter(TextView keys) const {
  Text left;
  for (char16_t key : keys) {
    if (key >= u' ' && key != u'\x7f') key = FilterKey(key);
    if (key != 0) left += key;
  }
  return left;
}

Refusal TextBox::UserKey(char16_t key) {
  if (const Refusal refusal = Refuses(); refusal != Refusal::None) return refusal;
  key = FilterKey(key);
  Text text = text_;
  if (key == kBackspace) {
    const auto isLow = [&] { return !text.empty() && text.back() >= 0xDC00 && text.back() < 0xE000; };
    const bool isPair = isLow() && text.size() > 1;
    if (!text.empty()) text.pop_back();
    if (isPair && text.back() >= 0xD800 && text.back() < 0xDC00) text.pop_back();
  } else if (key >= u' ') {
    text += key;
  }
  SetText(std::move(text));
  return Refusal::None;
}

Refusal TextBox::UserEdit(Text text) {
  const Refusal refusal = Refuses();
  if (refusal == Refusal::None) SetText(std::move(text));
  return refusal;
}

SSTab::SSTab(WidgetContext& context, const LayoutRow& row) : Widget(context, row) {
  for (std::size_t tab = 0; tab < captions_.size(); ++tab) captions_[tab] = kStoredTabCaptions[tab];
}

void SSTab::Tab(std::int16_t tab) {
  if (tab < 0 || tab >= kTabs) ThrowIndex(tab);
  if (tab == context_.tab) return;
  const std::int16_t previous = context_.tab;
  Set(WidgetProperty::Tab, context_.tab, tab);
  Raise(Click, previous);
}

const Text& SSTab::TabCaption(std::int16_t tab) const {
  if (tab < 0 || tab >= kTabs) ThrowIndex(tab);
  return captions_[static_cast<std::size_t>(tab)];
}

void SSTab::TabCaption(std::int16_t tab, Text caption) {
  if (tab < 0 || tab >= kTabs) ThrowIndex(tab);
  Set(WidgetProperty::TabCaption, captions_[static_cast<std::size_t>(tab)], std::move(caption));
}

Refusal SSTab::UserPick(std::int16_t tab) {
  if (tab < 0 || tab >= kTabs) return Refusal::NoSuchEntry;
  Tab(tab);
  return Refusal::None;
}

}  // namespace ORXKMPrintProp
