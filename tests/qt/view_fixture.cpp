#include "view_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <sstream>

#include "control/SharedValues.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt::test {
namespace {

/// As StateOf, without ItemData, but of what is seen.
template <class IsMarked>
std::string RowsOf(const QAbstractItemModel& model, int caret, IsMarked isMarked) {
  std::string text;
  for (int row = 0; row < model.rowCount(); ++row) {
    const QModelIndex index = model.index(row, 0);
    text += std::string(row > 0 ? " " : "") + (row == caret ? ">" : "") + (isMarked(index) ? "*" : "") +
            index.data().toString().toStdString();
  }
  return text;
}

std::string ShownBy(const QWidget& glass) {
  if (const auto* list = qobject_cast<const QListView*>(&glass)) {
    return RowsOf(*list->model(), list->currentIndex().row(),
                  [&](const QModelIndex& index) { return list->selectionModel()->isSelected(index); });
  }
  if (const auto* combo = qobject_cast<const QComboBox*>(&glass)) {
    return RowsOf(*combo->model(), combo->currentIndex(), [](const QModelIndex&) { return false; });
  }
  if (const auto* edit = qobject_cast<const QLineEdit*>(&glass)) return edit->text().toStdString();
  if (const auto* check = qobject_cast<const QCheckBox*>(&glass)) return check->isChecked() ? "checked" : "";
  return "";
}

template <class W, class IsMarked>
std::string EntriesOf(const W& widget, IsMarked isMarked) {
  std::string text;
  for (std::int16_t i = 0; i < widget.ListCount(); ++i) {
    text += std::string(i > 0 ? " " : "") + (i == widget.ListIndex() ? ">" : "") + (isMarked(i) ? "*" : "") +
            ToQString(widget.List(i)).toStdString();
  }
  return text;
}

std::string HeldBy(const Widget& widget) {
  if (const auto* list = dynamic_cast<const ListBox*>(&widget)) {
    return EntriesOf(*list, [&](std::int16_t i) { return list->Selected(i); });
  }
  if (const auto* combo = dynamic_cast<const ComboBox*>(&widget)) {
    return EntriesOf(*combo, [](std::int16_t) { return false; });
  }
  if (const auto* box = dynamic_cast<const TextBox*>(&widget)) return ToQString(box->GetText()).toStdString();
  if (const auto* check = dynamic_cast<const CheckBox*>(&widget)) return check->Value() != 0 ? "checked" : "";
  return "";
}

}  // namespace

ViewTest::ViewTest()
    : control((gPrnProp.reset(), gTextTable.reset(), gDefaultFontName.clear(), platform)),
      view(control),
      orderChanged(&view, &PrnPropView::ORXOrderChanged),
      failures(&view, &PrnPropView::failed) {
  view.show();
  QApplication::setActiveWindow(&view);
  static_cast<void>(QTest::qWaitForWindowExposed(&view));
}

void ViewTest::TearDown() {
  EXPECT_EQ(view.findChild<QTabBar*>()->currentIndex(), dialog.TabStrip().Tab());
  for (const auto& widget : dialog.Controls()) {
    const WidgetName& name = widget->Row().name;
    QString text = ToQString(name.name);
    if (name.index != WidgetName::kNoIndex) text += QStringLiteral("(%1)").arg(name.index);
    const QWidget& glass = *view.findChild<QWidget*>(text);
    EXPECT_EQ(ShownBy(glass), HeldBy(*widget)) << text.toStdString();
    EXPECT_EQ(!glass.isHidden(), widget->Visible()) << text.toStdString();
    EXPECT_EQ(glass.isEnabled(), widget->Enabled()) << text.toStdString();
  }
}

void ViewTest::Load(const std::string& printed, const std::string& available, std::int16_t tab) {
  std::string rows;
  int position = 0;
  const auto add = [&](const std::string& words, const std::string& cells) {
    std::istringstream in(words);
    for (std::string word; in >> word;) {
      rows += "IOBJNM='" + word + "' IOBJTXT='" + word + "' POSIT=" + std::to_string(++position) + cells + "\n";
    }
  };
  add(printed, " AXIS='Y'");
  add(available, " AXIS=' '");
  ASSERT_TRUE(Settings(rows).LoadInto(control));
  dialog.TabStrip().Tab(tab);
  QApplication::processEvents();
}

QPoint ViewTest::PointOf(QListView& list, int entry) { return list.visualRect(list.model()->index(entry, 0)).center(); }

void ViewTest::Press(QListView& list, int entry, Qt::MouseButton button) {
  QTest::mousePress(list.viewport(), button, {}, PointOf(list, entry));
}

void ViewTest::Move(QListView& list, int entry) { QTest::mouseMove(list.viewport(), PointOf(list, entry)); }

void ViewTest::Release(QListView& list, int entry, Qt::MouseButton button) {
  QTest::mouseRelease(list.viewport(), button, {}, PointOf(list, entry));
}

void ViewTest::Click(QListView& list, int entry, Qt::MouseButton button) {
  Press(list, entry, button);
  Release(list, entry, button);
}

}  // namespace ORXKMPrintProp::qt::test
