#include "support/widget_text.h"

#include <sstream>

#include "support/table_text.h"

namespace ORXKMPrintProp::test {
namespace {

template <class W, class Mark>
std::string EntriesOf(const W& widget, Mark mark) {
  std::string text;
  for (std::int16_t i = 0; i < widget.ListCount(); ++i) {
    if (i > 0) text += " ";
    if (i == widget.ListIndex()) text += ">";
    text += mark(i) + ToAscii(widget.List(i));
    if (widget.ItemData(i) != 0) text += ":" + std::to_string(widget.ItemData(i));
  }
  return text;
}

}  // namespace

std::string StateOf(const ListBox& list) {
  return EntriesOf(list, [&](std::int16_t i) { return std::string(list.Selected(i) ? "*" : ""); });
}

std::string StateOf(const ComboBox& combo) {
  return EntriesOf(combo, [](std::int16_t) { return std::string(); });
}

void Fill(EntryWidget& widget, const std::string& words) {
  std::istringstream in(words);
  for (std::string word; in >> word;) widget.AddItem(Wide(word), widget.ListCount());
}

}  // namespace ORXKMPrintProp::test
