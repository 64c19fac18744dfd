#include "views/SpokenName.h"

#include <algorithm>
#include <cstddef>

namespace ORXKMPrintProp::views {
namespace {

constexpr std::size_t kPrefix = 3;  // "txt", "cmb", "lst" ...

/// What a field is about: "CharColAlign1" of `cmbCharColAlign1`, "AttrPrint" of `lstPrint(2)`.
Text TopicOf(const WidgetName& name) {
  static constexpr TextView kListPages[] = {u"", u"Char", u"Attr", u"Str"};
  const Text topic(name.name.substr(kPrefix));
  if (name.index == WidgetName::kNoIndex) return topic;
  return Text(kListPages[name.index]) + topic;
}

bool IsTransferButton(const Widget& widget) { return widget.Caption() == u">>" || widget.Caption() == u"<<"; }

}  // namespace

SpokenName::SpokenName(const Dialog& dialog, const Widget& widget) {
  const LayoutRow& row = widget.Row();
  const bool isField = row.kind == WidgetKind::TextBox || row.kind == WidgetKind::ComboBox ||
                       row.kind == WidgetKind::ListBox || (row.kind == WidgetKind::CheckBox && row.caption.empty());
  if (!isField) {
    sources_.push_back(&widget);
    return;
  }
  const auto add = [&](const Text& label) {
    const Widget* const found = dialog.Find({label});
    if (found) sources_.push_back(found);
    return found != nullptr;
  };
  Text topic = u"lbl" + TopicOf(row.name);
  if (add(topic)) return;
  const char16_t column = topic.back();
  topic.pop_back();
  add(topic);
  // The heading of the column: "lblCharCol1" for "lblCharColAlign1".
  const std::size_t heading = topic.find(u"Col");
  if (heading != Text::npos) add(topic.substr(0, heading + kPrefix) + column);
}

bool SpokenName::DependsOn(const Widget& widget) const {
  return std::find(sources_.begin(), sources_.end(), &widget) != sources_.end();
}

Text SpokenName::Spoken() const {
  Text name;
  for (const Widget* const source : sources_) {
    if (!name.empty()) name += u", ";
    name += IsTransferButton(*source) ? source->ToolTipText() : source->Caption();
  }
  return name;
}

std::vector<const Label*> SpokenName::Labels() const {
  std::vector<const Label*> labels;
  for (const Widget* const source : sources_) {
    if (const auto* const label = dynamic_cast<const Label*>(source)) labels.push_back(label);
  }
  return labels;
}

}  // namespace ORXKMPrintProp::views
