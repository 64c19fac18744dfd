// What only the Qt view has: its styles, its fonts, its undo, and what Qt's widgets take besides mouse and keys.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QGroupBox>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <map>
#include <set>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "qt_hand.h"
#include "support/loaded.h"
#include "support/stage.h"
#include "support/widget_text.h"
#include "views/qt/DisabledColors.h"
#include "views/qt/QtPlatform.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt::test {
namespace {

using namespace ORXKMPrintProp::test;

class QtViewTest : public testing::Test {
 protected:
  QtViewTest() : control((ReleaseSharedValues(), gDefaultFontName.clear(), platform)), view(dialog) {
    view.show();
    QApplication::setActiveWindow(&view);
    static_cast<void>(QTest::qWaitForWindowExposed(&view));
  }

  void Load(const std::string& characteristics, std::int16_t tab = kCharTab) {
    ASSERT_TRUE(Settings(Characteristics(characteristics)).LoadInto(control));
    dialog.TabStrip().Tab(tab);
    QApplication::processEvents();
  }
  std::string PrintList() const { return StateOf(dialog.Get<ListBox>(u"lstPrint", kCharTab)); }

  QtPlatform platform;
  ORXQueryPrnProp control;
  Dialog& dialog = control.GetDialog();
  PrnPropView view;
};

TEST_F(QtViewTest, TextThatIsComposedIsFilteredAndTextThatIsDroppedIsNot) {
  Load("a", kGeneralTab);
  auto& field = Glass<QLineEdit>(view, "txtGenMaxPages");
  const auto text = [&] { return ToAscii(dialog.Get<TextBox>(u"txtGenMaxPages").GetText()); };
  QKeyEvent letter(QEvent::KeyPress, Qt::Key_X, {}, QStringLiteral("x"));
  QApplication::sendEvent(&field, &letter);
  EXPECT_TRUE(letter.isAccepted()) << "what is dropped is done with";
  field.clear();
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("4x2"));
  QApplication::sendEvent(&field, &commit);
  EXPECT_EQ(text(), "42");
  QMimeData dropped;
  dropped.setText(QStringLiteral("-z"));
  const QPoint end(field.width() - 3, field.height() / 2);
  QDragEnterEvent enter(end, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(&field, &enter);
  QDropEvent drop(end, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(&field, &drop);
  EXPECT_EQ(text(), "42-z");
  control.ORXSetReadOnly(true);
  field.setText(QStringLiteral("66"));
  EXPECT_EQ(text() + field.text().toStdString(), "42-z42-z");
}

TEST_F(QtViewTest, TheWheelPicksInAComboBoxThatHasTheFocusAloneAndNoPage) {
  Load("a", kGeneralTab);
  auto& combo = Glass(view, "cmbGenSignPrsnt");
  const auto turned = [&] {
    for (QWidget* const widget : {&combo, static_cast<QWidget*>(view.findChild<QTabBar*>())}) {
      QWheelEvent wheel({10, 10}, {10, 10}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
      QApplication::sendEvent(widget, &wheel);
    }
    return StateOf(dialog.Get<ComboBox>(u"cmbGenSignPrsnt")) + " on " + StateOf(dialog.TabStrip());
  };
  Glass(view, "txtGenMaxPages").setFocus();
  EXPECT_EQ(turned(), ">-X X- (X) on 0");
  combo.setFocus();
  EXPECT_EQ(turned(), "-X >X- (X) on 0");
}

TEST_F(QtViewTest, ASlotThatFailsIsReported) {
  std::string heard;
  QObject::connect(&view, &PrnPropView::failed, [&](const QString& why) { heard = why.toStdString(); });
  QObject::connect(&view, &PrnPropView::used, [] { throw std::runtime_error("nor a slot"); });
  QTest::keyClick(&Glass(view, "chkGenUseColors"), Qt::Key_Space);
  EXPECT_EQ(heard, "nor a slot");
}

TEST_F(QtViewTest, AnAssistiveProgramActsAsTheUser) {
  Load("a b c");
  const auto toggle = [](QAccessibleInterface* widget) {
    ASSERT_TRUE(widget && widget->actionInterface());
    widget->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  };
  toggle(QAccessible::queryAccessibleInterface(&Glass(view, "chkCharColAutoWidth")));
  EXPECT_EQ(dialog.Get<CheckBox>(u"chkCharColAutoWidth").Value(), 1);
  auto& glass = Glass<QListView>(view, "lstPrint(1)");
  auto* const list = QAccessible::queryAccessibleInterface(&glass);
  toggle(list->child(2));
  EXPECT_EQ(PrintList(), "*a:1 b:2 >*c:3");
  toggle(list->child(0));
  EXPECT_EQ(PrintList(), ">a:1 b:2 *c:3");
  glass.selectAll();
  EXPECT_EQ(PrintList(), ">*a:1 b:2 *c:3");
  for (int row = 0; row < 3; ++row) {
    EXPECT_EQ(glass.selectionModel()->isRowSelected(row), row != 1) << "Qt's selection follows";
  }
  dialog.Get<Label>(u"lblCharCol2").Caption(u"Key & more");
  EXPECT_EQ(Glass(view, "txtCharColWidth2").accessibleName(), QStringLiteral("Width, Key & more"));
  dialog.Get<CommandButton>(u"cmdLeftToRight", kCharTab).ToolTipText(u"Prints it");
  EXPECT_EQ(Glass(view, "cmdLeftToRight(1)").accessibleName(), QStringLiteral("Prints it"));
}

TEST_F(QtViewTest, TheFocusIsSeenOnTheTabsFromTheBeginningAndAfterAKeyOfThePages) {
  auto& tabs = *view.findChild<QTabBar*>();
  const auto isSeen = [&] {
    const QImage with = tabs.grab().toImage();
    const bool hadFocus = tabs.hasFocus();
    tabs.clearFocus();
    return hadFocus && tabs.grab().toImage() != with;
  };
  tabs.setFocus();
  EXPECT_TRUE(isSeen());
  auto& field = Glass<QLineEdit>(view, "txtGenPrnTitle");
  field.setFocus(Qt::MouseFocusReason);
  view.setAttribute(Qt::WA_KeyboardFocusChange, false);
  QTest::keyClick(&field, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_TRUE(isSeen());
}

TEST_F(QtViewTest, AllOfAChangeIsShownOnce) {
  Load("a b c d e f g h i j k l m n o p q r s t u v w x y z");
  const auto& list = Glass<QListView>(view, "lstPrint(1)");
  const auto& combo = Glass<QComboBox>(view, "cmbCharPageBreak");
  auto& print = dialog.Get<ListBox>(u"lstPrint", kCharTab);
  const QSignalSpy selections(list.selectionModel(), &QItemSelectionModel::selectionChanged);
  const QSignalSpy fills(list.model(), &QAbstractItemModel::modelReset);
  const QSignalSpy refills(combo.model(), &QAbstractItemModel::modelReset);
  QScrollBar& bar = *list.verticalScrollBar();
  const auto shown = [&] {
    QApplication::processEvents();
    return QStringLiteral("%1 selections, %2 and %3 fills, %4 entries, %5 selected%6")
        .arg(selections.size())
        .arg(fills.size())
        .arg(refills.size())
        .arg(list.model()->rowCount())
        .arg(list.selectionModel()->selectedRows().size())
        .arg(bar.value() > 0 ? QStringLiteral(", scrolled") : QString())
        .toStdString();
  };
  for (std::int16_t i = 0; i < 20; ++i) print.Selected(i, true);
  EXPECT_EQ(shown(), "1 selections, 0 and 0 fills, 26 entries, 20 selected");
  print.ListIndex(25);
  EXPECT_EQ(shown(), "1 selections, 0 and 0 fills, 26 entries, 20 selected, scrolled");
  bar.setValue(0);
  print.List(25, u"changed");
  EXPECT_EQ(shown(), "2 selections, 1 and 0 fills, 26 entries, 20 selected") << "where the user has scrolled to";
  dialog.Get<CommandButton>(u"cmdRightToLeft", kCharTab).UserPress();
  EXPECT_EQ(shown(), "2 selections, 2 and 1 fills, 6 entries, 0 selected");
}

TEST_F(QtViewTest, UndoStaysWithTheTextThatWasTyped) {
  Load("a b");
  auto& field = Glass<QLineEdit>(view, "txtCharColTitle");
  const auto afterKeys = [&](const char* keys) {
    QTest::keySequence(&field, QKeySequence(QLatin1String(keys)));
    return ToAscii(dialog.Get<TextBox>(u"txtCharColTitle").GetText());
  };
  QTest::keyClicks(&field, QStringLiteral("Region"));
  EXPECT_EQ(afterKeys("Ctrl+Z"), "");
  EXPECT_EQ(afterKeys("Ctrl+Y"), "Region");
  field.setCursorPosition(2);
  dialog.Get<TextBox>(u"txtCharColTitle").SetText(u"Region");
  EXPECT_EQ(field.cursorPosition(), 2) << "where the user types";
  EXPECT_EQ(afterKeys("Ctrl+A, Del"), "");
  for (const int entry : {0, 1}) {
    auto& list = Glass<QListView>(view, "lstPrint(1)");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(entry, 0)).center());
  }
  EXPECT_EQ(PrintList(), "a:1 >*b:2");
  EXPECT_EQ(afterKeys("Ctrl+Z"), "") << "the text of another";
}

TEST_F(QtViewTest, AViewMayGoWhileItsMessageIsOpen) {
  Load("a b c d e f g h i j x- y-");
  QPointer<PrnPropView> other = new PrnPropView(dialog);
  other->show();
  QTest::mouseClick(Glass<QListView>(*other, "lstAvail(1)").viewport(), Qt::LeftButton, {}, {5, 5});
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
    other->deleteLater();
  });
  QTest::mouseClick(&Glass(*other, "cmdLeftToRight(1)"), Qt::LeftButton);
  EXPECT_FALSE(other);
}

TEST_F(QtViewTest, ASecondViewShowsWhatTheControlHoldsAlready) {
  Load("a b x-");
  QApplication::setLayoutDirection(Qt::RightToLeft);
  dialog.MousePointer(Dialog::kDragPointer);
  PrnPropView second(dialog);
  const auto& shown = *second.findChild<QListView*>(QStringLiteral("lstPrint(1)"));
  EXPECT_EQ(shown.layoutDirection(), Qt::LeftToRight) << "the layout is not mirrored";
  EXPECT_EQ(second.findChild<QLineEdit*>()->cursor().shape(), Qt::BitmapCursor);
  QApplication::setLayoutDirection(Qt::LeftToRight);
  EXPECT_EQ(shown.model()->rowCount(), 2);
  EXPECT_EQ(second.findChild<QTabBar*>()->currentIndex(), 1);
  EXPECT_EQ(second.size(), QSize(645, 396));
  dialog.Get<ListBox>(u"lstPrint", 1).AddItem(u"new");
  const QImage atOnce = second.grab().toImage();
  QApplication::processEvents();
  EXPECT_EQ(second.grab().toImage(), atOnce) << "a picture has all that the dialog holds";
  EXPECT_EQ(shown.model()->rowCount(), 3);
}

QString Unmarked(QString text) { return text.replace(QStringLiteral("&&"), QStringLiteral("&")); }

/// What a widget shows of its caption; it must have the room for that.
QString CaptionOf(const QWidget& glass) {
  QString text;
  if (const auto* label = qobject_cast<const QLabel*>(&glass)) text = label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&glass)) text = button->text();
  if (const auto* frame = qobject_cast<const QGroupBox*>(&glass)) text = frame->title();
  EXPECT_LE(glass.fontMetrics().horizontalAdvance(Unmarked(text)), glass.width()) << glass.objectName().toStdString();
  return Unmarked(text);
}

TEST_F(QtViewTest, EveryCaptionIsReadableInFull) {
  Load("a");
  const auto& tabs = *view.findChild<QTabBar*>();
  const std::pair<const char*, TableRef> looks[] = {
      {"fusion", nullptr},
      {"windows", nullptr},
      {"fusion", host::ReadSettings(PRNPROP_EXAMPLES "/german.json").texts},
  };
  for (const auto& [style, texts] : looks) {
    QApplication::setStyle(QLatin1String(style));
    if (texts) control.ORXControlTexts(texts);
    for (const auto& widget : dialog.Controls()) {
      if (widget->Caption().empty()) continue;
      const QWidget& glass = Glass(view, ToAscii(widget->Row().name.Spelled()));
      EXPECT_EQ(CaptionOf(glass), ToQString(widget->Caption()));
      for (const auto& other : dialog.Controls()) {
        if (other->Caption().empty() || !views::CaptionLetters::StandTogether(*widget, *other)) continue;
        EXPECT_EQ(glass.font(), Glass(view, ToAscii(other->Row().name.Spelled())).font())
            << glass.objectName().toStdString();
      }
    }
    for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
      EXPECT_EQ(Unmarked(tabs.tabText(tab)), ToQString(dialog.TabStrip().TabCaption(tab)));
      EXPECT_EQ(tabs.tabRect(tab).width(), 641 / 5);
    }
  }
  const QFont font = Glass(view, "txtGenPrnTitle").font();
  EXPECT_EQ(font.family(), QApplication::font().family());
  EXPECT_EQ(font.pointSizeF(), 8.25);
  EXPECT_EQ(font.weight(), QFont::Normal);
}

struct StyleOfLargeBoxes : QProxyStyle {
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return metric == PM_IndicatorWidth ? 180 : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

TEST_F(QtViewTest, CaptionsAreFittedAnewInAnotherStyle) {
  Load("a", kGeneralTab);
  const auto fonts = [&] {
    dialog.TabStrip().Tab(kCharTab);
    dialog.TabStrip().Tab(kGeneralTab);
    return std::pair(Glass(view, "chkGenUseColors").font(), Glass(view, "chkGenShowNoZeros").font());
  };
  const auto before = fonts();
  QApplication::setStyle(new StyleOfLargeBoxes);
  const auto with = fonts();
  QApplication::setStyle(QStringLiteral("fusion"));
  EXPECT_NE(with.first, before.first) << "as small as those that it stands with";
  EXPECT_EQ(with.first, with.second);
  EXPECT_EQ(fonts(), before);
}

/// How well a text inside a widget is told from its ground, away from edges, a box and an arrow.
double ContrastIn(QWidget& glass, WidgetKind kind) {
  const int left = kind == WidgetKind::CheckBox ? 18 : 3, right = kind == WidgetKind::ComboBox ? 24 : 3;
  const QImage image = glass.grab(glass.rect().adjusted(left, 3, -right, -3)).toImage();
  std::map<QRgb, int> pixels;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++pixels[image.pixel(x, y)];
  }
  const auto ground =
      std::max_element(pixels.begin(), pixels.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  double contrast = 1;
  for (const auto& [color, count] : pixels) contrast = std::max(contrast, ContrastOf(color, ground->first));
  return contrast;
}

TEST_F(QtViewTest, WhatIsDisabledCanBeReadAndIsToldFromWhatIsNot) {
  EXPECT_NEAR(ContrastOf(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(ContrastOf(QColor(0x767676), Qt::white), 4.54, 0.01);
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(0x353535));
  dark.setColor(QPalette::Base, 0x232323);
  QPalette colorful(QColor(0x8899aa), QColor(0x778899));
  const struct {
    const char* name;
    QPalette palette;
    bool hasRoom;  ///< for what is fainter
  } palettes[] = {{"light", before, true}, {"dark", dark, true}, {"of little contrast", colorful, false}};
  const auto sales = host::ReadSettings(PRNPROP_EXAMPLES "/sales.json");
  ASSERT_TRUE(control.ORXSetPrnTables(sales.general, sales.dimension, sales.member, sales.attribute));
  for (const auto& row : palettes) {
    QApplication::setPalette(row.palette);
    std::set<WidgetKind> seen;
    for (const auto& widget : dialog.Controls()) {
      const LayoutRow& layout = widget->Row();
      if (layout.page < 0 || layout.kind == WidgetKind::Frame) continue;
      dialog.TabStrip().Tab(layout.page);
      QWidget& glass = Glass(view, ToAscii(layout.name.Spelled()));
      glass.setEnabled(true);
      QApplication::processEvents();
      const double enabled = ContrastIn(glass, layout.kind);
      if (enabled < 2) continue;  // without a text
      glass.setEnabled(false);
      const double disabled = ContrastIn(glass, layout.kind);
      EXPECT_TRUE(disabled >= 4.5 && (disabled < enabled || !row.hasRoom))
          << row.name << ' ' << ToAscii(layout.name.Spelled()) << ": " << disabled << " of " << enabled;
      seen.insert(layout.kind);
    }
    EXPECT_EQ(seen.size(), 6U);
  }
  QApplication::setPalette(before);
}

TEST_F(QtViewTest, WhatDoesNotFitIsReadInTheTooltip) {
  auto& label = dialog.Get<Label>(u"lblGenMarginTop");
  const QWidget& shown = Glass(view, "lblGenMarginTop");
  label.ToolTipText(u"of the page");
  label.Caption(u"A <b>caption</b> & much too long for its place on the page");
  EXPECT_TRUE(CaptionOf(shown).endsWith(QChar(0x2026))) << CaptionOf(shown).toStdString();
  EXPECT_EQ(shown.toolTip().toStdString(),
            "<p>A &lt;b&gt;caption&lt;/b&gt; &amp; much too long for its place on the page<br>\nof the page</p>")
      << "the caption is no markup";
  label.Caption(u"T&p");
  EXPECT_EQ(CaptionOf(shown), QStringLiteral("T&p"));
  EXPECT_EQ(shown.toolTip(), QStringLiteral("of the page"));

  auto& list = Glass<QListView>(view, "lstPrint(1)");
  Load("a x- an_entry_that_is_much_too_long_for_its_list");
  for (const auto& [entry, tip] : {std::pair(0, list.toolTip()), {1, list.model()->index(1, 0).data().toString()}}) {
    const QPoint point = list.visualRect(list.model()->index(entry, 0)).center();
    QHelpEvent help(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
    QApplication::sendEvent(list.viewport(), &help);
    EXPECT_EQ(QToolTip::text(), tip);
  }

  auto& tabs = *view.findChild<QTabBar*>();
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) dialog.TabStrip().TabCaption(tab, Text(60, u'w'));
  EXPECT_EQ(tabs.tabToolTip(3).size(), 60);
  EXPECT_EQ(tabs.elideMode(), Qt::ElideRight);
  EXPECT_LE(tabs.tabRect(3).right(), tabs.width());
}

TEST_F(QtViewTest, WhatWouldNotFitIsToldAhead) {
  const auto wouldBeCut = [this](const Widget& widget, const Text& text, int tab = 0) {
    const views::TextRoom room = view.RoomOf(widget, text, tab).value();
    return room.needed > room.room;
  };
  for (const TextView name : {u"lblGenMarginTop", u"fraGenPageMargins", u"cmdPrintLayout(0)", u"chkGenNoLines"}) {
    Widget& widget = *dialog.FindSpelled(name);
    for (Text text; text.size() < 100; text += u'w') {
      widget.Caption(text);
      const bool isCut = CaptionOf(Glass(view, ToAscii(Text(name)))).endsWith(QChar(0x2026));
      EXPECT_EQ(isCut, wouldBeCut(widget, text)) << ToAscii(Text(name)) << ' ' << text.size();
    }
  }
  Load("a", kGeneralTab);
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSignPrsnt");
  for (Text text; text.size() < 50; text += u'w') {
    combo.List(0, text);
    QApplication::processEvents();
    const bool isCut = Glass(view, "cmbGenSignPrsnt").toolTip().contains(u'\n');
    EXPECT_EQ(isCut, wouldBeCut(combo, text)) << text.size();
  }
  SSTab& strip = dialog.TabStrip();
  for (const std::int16_t longest : {std::int16_t{3}, std::int16_t{1}}) {
    for (Text text; text.size() < 100; text += u'w') {
      strip.TabCaption(longest, text);
      EXPECT_EQ(view.findChild<QTabBar*>()->tabToolTip(0).isEmpty(), !wouldBeCut(strip, text, longest)) << text.size();
      EXPECT_FALSE(wouldBeCut(strip, strip.TabCaption(0), 0));
    }
    strip.TabCaption(longest, u"short");
  }
  EXPECT_FALSE(view.RoomOf(*dialog.FindSpelled(u"lstPrint(1)"), u"text", 0));
}

}  // namespace
}  // namespace ORXKMPrintProp::qt::test
