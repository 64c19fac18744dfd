#include "host/window/FindField.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "host/window/Spoken.h"
#include "host/window/Translation.h"
#include "views/Search.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {

FindField::FindField(qt::PrnPropView& view, QWidget* over)
    : QFrame(over), view_(view), text_(new QLineEdit(this)), told_(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  text_->setObjectName(QStringLiteral("find"));
  text_->setAccessibleName(Tr("Find an entry"));
  text_->setPlaceholderText(Tr("Find an entry"));
  text_->setToolTip(Tr("Any part of its text; Enter or F3 for the next one, Escape for the list"));
  SpeakAsNotification(*told_);
  told_->setObjectName(QStringLiteral("found"));
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(3, 3, 3, 3);
  column->setSpacing(1);
  column->addWidget(text_);
  column->addWidget(told_);
  connect(text_, &QLineEdit::textEdited, this, [this] { Find(views::SearchFrom::Caret); });
  hide();
}

void FindField::Open() {
  Tell(view_.ListAtHand() ? QString() : Tr("No list on this page"));
  view_.ShowCaretOf(view_.ListAtHand());
  show();
  raise();
  text_->selectAll();
  text_->setFocus(Qt::ShortcutFocusReason);
}

void FindField::FindNext() {
  if (isHidden()) return Open();
  Find(views::SearchFrom::BehindCaret);
}

void FindField::Find(views::SearchFrom from) {
  ListBox* const list = view_.ListAtHand();
  view_.ShowCaretOf(list);
  if (!list) return Tell(Tr("No list on this page"));
  const auto entry = views::FindEntry(*list, qt::ToText(text_->text()), from);
  if (entry && *entry != list->ListIndex()) view_.Perform(*list, [&] { list->UserMoveCaret(*entry); });
  if (entry || text_->text().isEmpty()) return Tell({});
  // There are two lists on a page.
  const auto* const searched = view_.findChild<const QWidget*>(qt::ToQString(list->Row().name.Spelled()));
  Tell(Tr("Not found in: {0}", searched->accessibleName()));
}

void FindField::Tell(const QString& words) {
  told_->setText(words);
  told_->setVisible(!words.isEmpty());
  Arrange();
  Speak(*told_);
}

void FindField::Arrange() {
  layout()->activate();
  resize(sizeHint());
  move(parentWidget()->width() - width(), 0);
}

void FindField::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return FindNext();
    case Qt::Key_Escape:
      return Close();
    default:
      return QFrame::keyPressEvent(event);
  }
}

void FindField::Close() {
  const ListBox* const list = view_.ListAtHand();
  if (list) view_.Focus(*list);
  hide();
  view_.ShowCaretOf(nullptr);
}

}  // namespace ORXKMPrintProp::host
