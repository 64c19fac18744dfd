#include "host/WidgetState.h"

#include <nlohmann/json.hpp>

#include "host/Utf8.h"

namespace ORXKMPrintProp::host {
namespace {

using Json = nlohmann::ordered_json;

bool HasEnabled(WidgetKind kind) {
  return kind != WidgetKind::SSTab && kind != WidgetKind::Frame && kind != WidgetKind::Label;
}

void AddEntries(Json& state, const EntryWidget& widget, const ListBox* list) {
  Json& items = state["items"] = Json::array();
  for (std::int16_t i = 0; i < widget.ListCount(); ++i) {
    Json item{{"text", ToUtf8(widget.List(i))}, {"data", widget.ItemData(i)}};
    if (list) item["selected"] = list->Selected(i);
    items.push_back(std::move(item));
  }
  state["listIndex"] = widget.ListIndex();
}

void AddTabs(Json& state, const SSTab& strip) {
  state["tab"] = strip.Tab();
  Json& captions = state["captions"] = Json::array();
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) captions.push_back(ToUtf8(strip.TabCaption(tab)));
}

}  // namespace

Json StateOf(const Widget& widget) {
  const WidgetKind kind = widget.Row().kind;
  Json state{{"widget", ToUtf8(widget.Row().name.Spelled())},
             {"kind", NameOf(kind)},
             {"visible", widget.Visible()},
             {"tooltip", ToUtf8(widget.ToolTipText())},
             {"font", ToUtf8(widget.GetFont().Name)}};
  if (HasEnabled(kind)) state["enabled"] = widget.Enabled();
  switch (kind) {
    case WidgetKind::SSTab:
      AddTabs(state, dynamic_cast<const SSTab&>(widget));
      break;
    case WidgetKind::TextBox:
      state["text"] = ToUtf8(dynamic_cast<const TextBox&>(widget).GetText());
      break;
    case WidgetKind::ComboBox:
      AddEntries(state, dynamic_cast<const ComboBox&>(widget), nullptr);
      break;
    case WidgetKind::ListBox: {
      const auto& list = dynamic_cast<const ListBox&>(widget);
      AddEntries(state, list, &list);
      break;
    }
    case WidgetKind::CheckBox:
      state["caption"] = ToUtf8(widget.Caption());
      state["value"] = dynamic_cast<const CheckBox&>(widget).Value();
      break;
    case WidgetKind::Frame:
    case WidgetKind::Label:
    case WidgetKind::CommandButton:
      state["caption"] = ToUtf8(widget.Caption());
      break;
  }
  return state;
}

Json StateOf(ORXQueryPrnProp& control) {
  return {{"widget", "ORXQueryPrnProp"},
          {"kind", "UserControl"},
          {"readOnly", control.IsReadOnly()},
          {"mousePointer", control.GetDialog().MousePointer()}};
}

}  // namespace ORXKMPrintProp::host
