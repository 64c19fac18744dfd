#include "support/widget_text.h"

#include <sstream>

#include "support/table_text.h"

namespace ORXKMPrintProp::test {

std::string StateOf(const Widget& widget) {
  if (const auto* const box = dynamic_cast<const TextBox*>(&widget)) return ToAscii(box->GetText());
  if (const auto* const check = dynamic_cast<const CheckBox*>(&widget)) return std::to_string(check->Value());
  if (const auto* const tabs = dynamic_cast<const SSTab*>(&widget)) return std::to_string(tabs->Tab());
  const auto* const entries = dynamic_cast<const EntryWidget*>(&widget);
  const auto* const list = dynamic_cast<const ListBox*>(&widget);
  std::string text;
  for (std::int16_t i = 0; entries && i < entries->ListCount(); ++i) {
    text += std::string(i > 0 ? " " : "") + (i == entries->ListIndex() ? ">" : "") +
            (list && list->Selected(i) ? "*" : "") + ToAscii(entries->List(i));
    if (entries->ItemData(i) != 0) text += ":" + std::to_string(entries->ItemData(i));
  }
  return text;
}

void Fill(EntryWidget& widget, const std::string& words) {
  std::istringstream in(words);
  for (std::string word; in >> word;) widget.AddItem(Wide(word), widget.ListCount());
}

}  // namespace ORXKMPrintProp::test
