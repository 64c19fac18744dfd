#include "views/TabOrder.h"

#include <algorithm>

namespace ORXKMPrintProp::views {
namespace {

bool TakesFocus(const Widget& widget) {
  return widget.Row().kind != WidgetKind::Frame && widget.Row().kind != WidgetKind::Label;
}

}  // namespace

std::vector<Widget*> TabOrder(const Dialog& dialog) {
  std::vector<Widget*> order;
  for (const auto& widget : dialog.Controls()) {
    if (TakesFocus(*widget)) order.push_back(widget.get());
  }
  std::sort(order.begin(), order.end(),
            [](const Widget* a, const Widget* b) { return a->Row().tabIndex < b->Row().tabIndex; });
  return order;
}

Widget* NextInTabOrder(const Dialog& dialog, const Widget* from, int step) {
  auto order = TabOrder(dialog);
  if (step < 0) std::reverse(order.begin(), order.end());
  auto next = order.begin();
  if (from) next = std::find(order.begin(), order.end(), from);
  if (from && next != order.end()) ++next;
  next = std::find_if(next, order.end(), [](const Widget* widget) { return widget->Refuses() == Refusal::None; });
  return next == order.end() ? nullptr : *next;
}

}  // namespace ORXKMPrintProp::views
