#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QWheelEvent>

#include "tables/RunTimeError.h"
#include "view_fixture.h"

namespace ORXKMPrintProp::qt::test {
namespace {

class FieldTest : public ViewTest {
 protected:
  FieldTest() { Load("a b", "", 0); }

  static void Fail() { throw std::runtime_error("refused by the host"); }

  QLineEdit& digits = Glass<QLineEdit>("txtGenMaxPages");
  TextBox& box = dialog.Get<TextBox>(u"txtGenMaxPages");
};

TEST_F(FieldTest, TypedKeysPassTheFilterAndLandAtTheCursor) {
  digits.clear();
  digits.setFocus();
  QTest::keyClicks(&digits, "1a2 b3");
  EXPECT_EQ(box.GetText(), u"123");
  QTest::keyClick(&digits, Qt::Key_Home);
  QTest::keyClick(&digits, Qt::Key_9, Qt::KeypadModifier);
  QTest::keyClick(&digits, Qt::Key_X);
  EXPECT_EQ(box.GetText(), u"9123");
  QTest::keyClick(&digits, Qt::Key_Right);
  QTest::keyClick(&digits, Qt::Key_Backspace);
  EXPECT_EQ(box.GetText(), u"923");
  QTest::keyClick(&digits, Qt::Key_Delete);
  EXPECT_EQ(box.GetText(), u"93");
  QTest::keySequence(&digits, QKeySequence::Undo);
  EXPECT_EQ(box.GetText(), u"923");
  QTest::keySequence(&digits, QKeySequence::SelectAll);
  QTest::keyClick(&digits, Qt::Key_5);
  EXPECT_EQ(box.GetText(), u"5");
}

TEST_F(FieldTest, AFilterMayChangeKeysAndDropBackspace) {
  box.KeyPress = [](std::int16_t& key) { key = key == TextBox::kBackspace ? 0 : key == u'a' ? u'B' : key; };
  digits.setText(QStringLiteral("x"));
  QTest::keyClick(&digits, Qt::Key_A, Qt::NoModifier);
  QTest::keyClick(&digits, Qt::Key_Backspace);
  EXPECT_EQ(box.GetText(), u"xB");
}

TEST_F(FieldTest, EveryCharacterOfAnInputMethodPassesTheFilter) {
  digits.setText(QStringLiteral("70"));
  digits.setCursorPosition(1);
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("4x2"));
  QApplication::sendEvent(&digits, &commit);
  EXPECT_EQ(box.GetText(), u"7420");
}

TEST_F(FieldTest, ClipboardAndDroppedTextGoPastTheFilter) {
  digits.setText(QStringLiteral("7"));
  QApplication::clipboard()->setText(QStringLiteral("a1"));
  QTest::keySequence(&digits, QKeySequence::Paste);
  EXPECT_EQ(box.GetText(), u"7a1");
  QMimeData dropped;
  dropped.setText(QStringLiteral("-z"));
  const QPoint end(digits.width() - 3, digits.height() / 2);
  QDragEnterEvent enter(end, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(&digits, &enter);
  QDropEvent drop(end, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(&digits, &drop);
  EXPECT_EQ(box.GetText(), u"7a1-z");
}

TEST_F(FieldTest, TextHasNoLimitAndStaysAsItIs) {
  auto& title = Glass<QLineEdit>("txtGenPrnTitle");
  auto& held = dialog.Get<TextBox>(u"txtGenPrnTitle");
  const Text text = Text(40000, u'x') + u"&\u00fc\U0001F600";
  held.SetText(text);
  title.setCursorPosition(0);
  QTest::keyClicks(&title, "<b>");
  EXPECT_EQ(held.GetText(), u"<b>" + text);
}

TEST_F(FieldTest, ACheckBoxShowsWhatItsHandlerLeaves) {
  auto& check = dialog.Get<CheckBox>(u"chkGenUseColors");
  auto& shown = Glass<QCheckBox>("chkGenUseColors");
  QTest::mouseClick(&shown, Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(check.Value(), 1);
  check.Click = [&] {
    if (check.Value() == 0) check.Value(1);
  };
  QTest::keyClick(&shown, Qt::Key_Space);
  EXPECT_EQ(check.Value(), 1);
  EXPECT_TRUE(shown.isChecked());
  check.Click = Fail;
  QTest::keyClick(&shown, Qt::Key_Space);
  EXPECT_EQ(check.Value(), 0);
  ASSERT_EQ(failures.count(), 1);
  EXPECT_EQ(failures.front().front().toString(), QStringLiteral("refused by the host"));
}

TEST_F(FieldTest, AnEntryOfAComboBoxIsPickedByMouseAndKeyboard) {
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSignPrsnt");
  auto& shown = Glass<QComboBox>("cmbGenSignPrsnt");
  std::string clicks;
  combo.Click = [&] { clicks += std::to_string(combo.ListIndex()); };
  combo.ListIndex(-1);
  clicks.clear();

  QTest::mouseClick(&shown, Qt::LeftButton);
  QTest::qWait(QApplication::doubleClickInterval() + 50);  // the list takes no release that belongs to its opening
  const QModelIndex second = shown.model()->index(1, 0);
  QTest::mouseClick(shown.view()->viewport(), Qt::LeftButton, {}, shown.view()->visualRect(second).center());
  EXPECT_EQ(StateOf(combo), "-X >X- (X)");
  shown.setFocus();
  QTest::keyClick(&shown, Qt::Key_Down);
  EXPECT_EQ(StateOf(combo), "-X X- >(X)");
  EXPECT_EQ(clicks, "12") << "what a page writes is no user's pick";

  combo.Click = Fail;
  QTest::keyClick(&shown, Qt::Key_Up);
  EXPECT_EQ(failures.count(), 1);
  combo.Click = [&] { combo.Clear(); };
  QTest::keyClick(&shown, Qt::Key_Up);
  EXPECT_EQ(StateOf(combo), "");
}

TEST_F(FieldTest, TheWheelChangesNoComboBoxInPassing) {
  auto& shown = Glass<QComboBox>("cmbGenSignPrsnt");
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSignPrsnt");
  combo.ListIndex(0);
  const auto turn = [&] {
    const QPointF at(10, 10);
    QWheelEvent wheel(at, shown.mapToGlobal(at), {}, QPoint(0, -120), {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&shown, &wheel);
  };
  digits.setFocus();
  turn();
  EXPECT_EQ(combo.ListIndex(), 0);
  shown.setFocus();
  turn();
  EXPECT_EQ(combo.ListIndex(), 1);
}

TEST_F(FieldTest, DisabledWidgetsTakeNothing) {
  control.ORXSetReadOnly(true);
  const auto before = dialog.Get<ComboBox>(u"cmbGenSignPrsnt").ListIndex();
  QTest::keyClicks(&digits, "55");
  digits.setText(QStringLiteral("66"));
  QTest::mouseClick(&Glass<QCheckBox>("chkGenUseColors"), Qt::LeftButton, {}, QPoint(8, 8));
  QTest::keyClick(&Glass<QComboBox>("cmbGenSignPrsnt"), Qt::Key_Down);
  EXPECT_EQ(box.GetText(), u"0");
  EXPECT_EQ(dialog.Get<CheckBox>(u"chkGenUseColors").Value(), 0);
  EXPECT_EQ(dialog.Get<ComboBox>(u"cmbGenSignPrsnt").ListIndex(), before);
}

TEST_F(FieldTest, LayoutButtonsTellTheHostAlsoReadOnly) {
  QSignalSpy layouts(&view, &PrnPropView::ORXPrintLayoutGet);
  control.ORXSetReadOnly(true);
  QTest::mouseClick(&Glass<QPushButton>("cmdPrintLayout(2)"), Qt::LeftButton);
  QTest::keyClick(&Glass<QPushButton>("cmdPrintLayout(0)"), Qt::Key_Space);
  dialog.TabStrip().Tab(1);
  QTest::mouseClick(&Glass<QPushButton>("cmdPrintLayout(4)"), Qt::LeftButton);
  QString told;
  for (const auto& layout : layouts) told += layout[0].toString() + layout[1].toString() + u' ';
  EXPECT_EQ(told, QStringLiteral("2 0 4a "));
}

}  // namespace
}  // namespace ORXKMPrintProp::qt::test
