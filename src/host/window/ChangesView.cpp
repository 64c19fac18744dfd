#include "host/window/ChangesView.h"

#include <QTextCursor>

#include "host/Differences.h"
#include "host/window/Translation.h"
#include "views/Translation.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {

ChangesView::ChangesView(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  document()->setIndentWidth(fontMetrics().height());
}

void ChangesView::Show(const Snapshot& before, const Snapshot& after) {
  const auto differences = DifferencesOf(before, after, DifferenceWordsIn(views::CurrentLanguage().code));
  clear();
  QTextCursor cursor(document());
  const auto add = [&](const QString& text, QFont::Weight weight, int indent) {
    QTextBlockFormat block;
    block.setIndent(indent);
    QTextCharFormat characters;
    characters.setFontWeight(weight);
    if (cursor.position() > 0) cursor.insertBlock();
    cursor.setBlockFormat(block);
    cursor.insertText(text, characters);
  };
  if (differences.empty()) add(Tr("Nothing has changed."), QFont::Normal, 0);
  for (const PageDifferences& page : differences) {
    add(qt::ToQString(page.caption), QFont::Bold, 0);
    for (const Text& line : page.lines) add(qt::ToQString(line), QFont::Normal, 1);
  }
  moveCursor(QTextCursor::Start);
}

}  // namespace ORXKMPrintProp::host
