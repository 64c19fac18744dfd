#include "host/window/OrderButtons.h"

#include <QHBoxLayout>
#include <utility>

#include "host/window/SignButton.h"
#include "host/window/Translation.h"
#include "views/Keys.h"
#include "views/qt/PrnPropView.h"

namespace ORXKMPrintProp::host {
namespace {

/// Null on the page without one.
ListBox* PrintListOf(Dialog& dialog) {
  const std::int16_t page = dialog.TabStrip().Tab();
  return page == kGeneralTab ? nullptr : &dialog.Get<ListBox>(u"lstPrint", page);
}

}  // namespace

OrderButtons::OrderButtons(Dialog& dialog, qt::PrnPropView& view, std::function<bool()> isReadOnly, QWidget* parent)
    : QWidget(parent),
      dialog_(dialog),
      view_(view),
      isReadOnly_(std::move(isReadOnly)),
      up_(MakeSignButton(QStringLiteral("up"), Tr("Up"), u'\u25B2', this)),
      down_(MakeSignButton(QStringLiteral("down"), Tr("Down"), u'\u25BC', this)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  up_->setToolTip(Tr("Moves the entry up in the print order (Alt+Up)"));
  down_->setToolTip(Tr("Moves the entry down in the print order (Alt+Down)"));
  for (const auto& [button, step] : {std::pair(up_, std::int16_t{-1}), {down_, std::int16_t{1}}}) {
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, step = step] {
      if (const auto action = ActionOf(step)) view_.Perform(*PrintListOf(dialog_), action);
    });
  }
  connect(&view, &qt::PrnPropView::used, this, &OrderButtons::Update);
  Update();
}

void OrderButtons::Update() {
  for (const auto& [button, step] : {std::pair(up_, std::int16_t{-1}), {down_, std::int16_t{1}}}) {
    const bool isOfUse = static_cast<bool>(ActionOf(step));
    // Whoever has pressed it by keyboard goes on in the list.
    if (!isOfUse && button->hasFocus()) view_.Focus(*PrintListOf(dialog_));
    button->setEnabled(isOfUse);
  }
}

std::function<void()> OrderButtons::ActionOf(std::int16_t step) const {
  ListBox* const list = PrintListOf(dialog_);
  if (!list || isReadOnly_()) return {};
  return views::ReorderOf(*list, step);
}

}  // namespace ORXKMPrintProp::host
