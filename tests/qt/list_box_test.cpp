#include <QApplication>
#include <QPushButton>
#include <QScrollBar>

#include "tables/RunTimeError.h"
#include "view_fixture.h"

namespace ORXKMPrintProp::qt::test {
namespace {

class ListBoxTest : public ViewTest {
 protected:
  QListView& shown = Glass<QListView>("lstPrint(1)");
  ListBox& list = dialog.Get<ListBox>(u"lstPrint", 1);

  /// An event with more than one button in it, or a second click.
  void Send(QEvent::Type type, int entry, Qt::MouseButton button, Qt::MouseButtons buttons) {
    const QPoint at = PointOf(shown, entry);
    QMouseEvent event(type, at, shown.viewport()->mapToGlobal(at), button, buttons, {});
    QApplication::sendEvent(shown.viewport(), &event);
  }
};

TEST_F(ListBoxTest, DraggingMovesTheEntryToThePointer) {
  Load("a b c");
  EXPECT_EQ(StateOf(list), "*a:1 b:2 c:3");
  Press(shown, 0);
  EXPECT_EQ(StateOf(list), ">a:1 b:2 c:3");
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
  Move(shown, 1);
  EXPECT_EQ(view.cursor().hotSpot(), QPoint(16, 8));
  Move(shown, 2);
  EXPECT_EQ(StateOf(list), "b:2 c:3 >*a:1");
  EXPECT_EQ(orderChanged.count(), 0);
  Release(shown, 2);
  EXPECT_EQ(StateOf(list), "b:2 c:3 >*a:1");
  EXPECT_EQ(orderChanged.count(), 1);
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ListBoxTest, AClickTogglesAndADoubleClickIsTwoClicks) {
  Load("a b c");
  Click(shown, 2);
  EXPECT_EQ(StateOf(list), "*a:1 b:2 >*c:3");
  Click(shown, 0);
  EXPECT_EQ(StateOf(list), ">a:1 b:2 *c:3");
  Click(shown, 1);
  EXPECT_EQ(StateOf(list), "a:1 >*b:2 *c:3");
  Send(QEvent::MouseButtonDblClick, 1, Qt::LeftButton, Qt::LeftButton);
  Release(shown, 1);
  EXPECT_EQ(StateOf(list), "a:1 >b:2 *c:3");
  EXPECT_EQ(orderChanged.count(), 0);
}

TEST_F(ListBoxTest, OtherButtonsSelectNothingAndEndNoDrag) {
  Load("a b c");
  Click(shown, 1, Qt::RightButton);
  EXPECT_EQ(StateOf(list), "*a:1 >b:2 c:3");
  Click(shown, 2, Qt::MiddleButton);
  EXPECT_EQ(StateOf(list), "*a:1 >b:2 c:3");
  Press(shown, 0);
  Send(QEvent::MouseButtonPress, 1, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
  Send(QEvent::MouseMove, 2, Qt::NoButton, Qt::LeftButton | Qt::RightButton);
  Send(QEvent::MouseButtonRelease, 1, Qt::RightButton, Qt::LeftButton);
  EXPECT_EQ(StateOf(list), ">a:1 b:2 c:3");
  Send(QEvent::MouseMove, 2, Qt::NoButton, Qt::LeftButton);
  Release(shown, 2);
  EXPECT_EQ(StateOf(list), "b:2 c:3 >*a:1");
}

TEST_F(ListBoxTest, NothingHappensWhereThereIsNoEntry) {
  Load("a b");
  QTest::mousePress(shown.viewport(), Qt::LeftButton, {}, QPoint(10, shown.viewport()->height() - 3));
  QTest::mouseMove(shown.viewport(), PointOf(shown, 0));
  QTest::mouseRelease(shown.viewport(), Qt::LeftButton, {}, PointOf(shown, 0));
  EXPECT_EQ(StateOf(list), "*a:1 b:2");
}

TEST_F(ListBoxTest, ADragBelowTheListScrollsToItsEnd) {
  std::string words;
  for (char first = 'a'; first <= 'z'; ++first) words += std::string(" ") + first;
  Load(words);
  ASSERT_GT(shown.verticalScrollBar()->maximum(), 5);
  Press(shown, 1);
  QTest::mouseMove(shown.viewport(), QPoint(20, shown.viewport()->height() + 30));
  const QScrollBar& bar = *shown.verticalScrollBar();
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.ListIndex() == 25 && bar.value() == bar.maximum(); }));
  EXPECT_EQ(list.List(25), u"b");
  QTest::mouseMove(shown.viewport(), QPoint(20, -30));
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.ListIndex() == 0; }));
  QTest::mouseRelease(shown.viewport(), Qt::LeftButton, {}, QPoint(20, -30));
  EXPECT_EQ(StateOf(list).substr(0, 16), ">*b:2 a:1 c:3 d:");
  const std::string before = StateOf(list);
  QTest::qWait(200);
  EXPECT_EQ(StateOf(list), before) << "scrolling ends with the drag";
}

TEST_F(ListBoxTest, EverythingGoesByKeyboard) {
  Load("a b c d");
  shown.setFocus();
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* state;
  } steps[] = {
      {Qt::Key_Down, Qt::NoModifier, ">*a:1 b:2 c:3 d:4"},   {Qt::Key_Down, Qt::NoModifier, "*a:1 >b:2 c:3 d:4"},
      {Qt::Key_Space, Qt::NoModifier, "*a:1 >*b:2 c:3 d:4"}, {Qt::Key_End, Qt::NoModifier, "*a:1 *b:2 c:3 >d:4"},
      {Qt::Key_Up, Qt::AltModifier, "*a:1 *b:2 >*d:4 c:3"},  {Qt::Key_Home, Qt::NoModifier, ">*a:1 *b:2 *d:4 c:3"},
      {Qt::Key_Up, Qt::AltModifier, ">*a:1 *b:2 *d:4 c:3"},  {Qt::Key_Down, Qt::AltModifier, "b:2 >*a:1 *d:4 c:3"},
      {Qt::Key_Space, Qt::NoModifier, "b:2 >a:1 *d:4 c:3"},  {Qt::Key_PageDown, Qt::NoModifier, "b:2 a:1 *d:4 >c:3"},
      {Qt::Key_PageUp, Qt::NoModifier, ">b:2 a:1 *d:4 c:3"}, {Qt::Key_D, Qt::NoModifier, "b:2 a:1 >*d:4 c:3"},
  };
  for (const auto& step : steps) {
    QTest::keyClick(&shown, step.key, step.modifiers);
    EXPECT_EQ(StateOf(list), step.state);
  }
  EXPECT_EQ(orderChanged.count(), 2);
}

TEST_F(ListBoxTest, ReadOnlyListsCanBeLookedAtOnly) {
  Load("a b c", "x");
  control.ORXSetReadOnly(true);
  Press(shown, 0);
  Move(shown, 2);
  Release(shown, 2);
  EXPECT_EQ(StateOf(list), "a:1 b:2 >c:3");
  auto& available = Glass<QListView>("lstAvail(1)");
  Click(available, 0);
  QTest::keyClick(&available, Qt::Key_Space);
  QTest::mouseClick(&Glass<QPushButton>("cmdLeftToRight(1)"), Qt::LeftButton);
  EXPECT_EQ(StateOf(dialog.Get<ListBox>(u"lstAvail", 1)), "x:4");
  EXPECT_EQ(orderChanged.count(), 0);
}

TEST_F(ListBoxTest, AListWithOneSelectionSelectsUnderThePointerAndTheCaret) {
  dialog.TabStrip().Tab(3);
  auto& single = dialog.Get<ListBox>(u"lstStrStructures");
  single.Click = nullptr;
  Fill(single, "a b c");
  auto& glass = Glass<QListView>("lstStrStructures");
  QApplication::processEvents();
  Click(glass, 1);
  EXPECT_EQ(StateOf(single), "a >*b c");
  QTest::keyClick(&glass, Qt::Key_Down);
  EXPECT_EQ(StateOf(single), "a b >*c");
  EXPECT_TRUE(glass.viewport()->rect().contains(PointOf(glass, 2))) << "the caret is scrolled to";
}

TEST_F(ListBoxTest, AFailureInADragIsReportedAndTheListGoesOn) {
  Load("a b c");
  const auto moved = std::exchange(
      list.MouseMove, [](std::int16_t) { throw RunTimeError(ErrorKind::Table, u"The order can't be k\u00e9pt."); });
  Press(shown, 0);
  Move(shown, 2);
  ASSERT_EQ(failures.count(), 1);
  EXPECT_EQ(failures.front().front().toString(), QStringLiteral(u"The order can't be k\u00e9pt."));
  list.MouseMove = moved;
  Move(shown, 1);
  Release(shown, 1);
  EXPECT_EQ(StateOf(list), "b:2 >*a:1 c:3");
}

TEST_F(ListBoxTest, AHandlerMayEmptyRefillAndDisableTheListInADrag) {
  Load("a b c");
  int released = 0;
  list.MouseMove = [&](std::int16_t) {
    list.Clear();
    Fill(list, "x y");
    list.Enabled(false);
  };
  list.MouseUp = [&](std::int16_t) { ++released; };
  Press(shown, 0);
  Move(shown, 2);
  EXPECT_EQ(StateOf(list), "x y");
  EXPECT_TRUE(QTest::qWaitFor([&] { return released == 1; })) << "what has begun also ends";
  Release(shown, 0);
  EXPECT_EQ(released, 1);
  EXPECT_EQ(StateOf(list), "x y");
}

}  // namespace
}  // namespace ORXKMPrintProp::qt::test
