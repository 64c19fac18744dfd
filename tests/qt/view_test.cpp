#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>

#include "control/SharedValues.h"
#include "host/SettingsDocument.h"
#include "view_fixture.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt::test {
namespace {

TEST_F(ViewTest, ThePageOnTopIsPickedByMouseAndKeyboard) {
  Load("a b", "", 0);
  auto& tabs = *view.findChild<QTabBar*>();
  auto& title = dialog.Get<TextBox>(u"txtGenPrnTitle");
  title.SetText(u"typed");
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(2).center());
  EXPECT_EQ(dialog.TabStrip().Tab(), 2);
  EXPECT_FALSE(Glass<QLineEdit>("txtGenPrnTitle").isVisible());
  EXPECT_TRUE(Glass<QListView>("lstPrint(2)").isVisible());
  QTest::keyClick(&tabs, Qt::Key_Left);
  EXPECT_EQ(dialog.TabStrip().Tab(), 1);
  Glass<QListView>("lstPrint(1)").setFocus();
  QTest::keyClick(&Glass<QListView>("lstPrint(1)"), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(dialog.TabStrip().Tab(), 0);
  QTest::keyClick(&tabs, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(dialog.TabStrip().Tab(), 3);
  EXPECT_EQ(gPrnProp->Title(), u"typed") << "the page that is left is stored";
}

TEST_F(ViewTest, TheTabKeyGoesFromWidgetToWidgetInTheirOrder) {
  Load("a b", "x");
  Glass<QListView>("lstAvail(1)").setFocus();
  std::string order;
  for (int i = 0; i < 8; ++i) {
    order += QApplication::focusWidget()->objectName().toStdString() + ' ';
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order,
            "lstAvail(1) cmdLeftToRight(1) cmdRightToLeft(1) lstPrint(1) cmbCharQueryBreak cmbCharPageBreak "
            "cmbCharBreakArea txtCharColTitle ");
}

TEST_F(ViewTest, AMessageWaitsForItsButton) {
  Load("a b c d e f g h i j", "x y");
  auto& available = Glass<QListView>("lstAvail(1)");
  Click(available, 1);
  QString shown;
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    shown = box->windowTitle() + QStringLiteral(": ") + box->text();
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
  });
  QTest::mouseClick(&Glass<QPushButton>("cmdLeftToRight(1)"), Qt::LeftButton);
  EXPECT_EQ(shown, QStringLiteral("Error: You may only use up to ten print characteristics"));
  EXPECT_EQ(StateOf(dialog.Get<ListBox>(u"lstAvail", 1)), "x:11 >*y:12");
  EXPECT_EQ(dialog.Get<ListBox>(u"lstPrint", 1).ListCount(), 10);
}

TEST_F(ViewTest, AViewShowsWhatTheControlHoldsAlready) {
  Load("a b", "x", 1);
  PrnPropView second(control);
  EXPECT_EQ(second.findChild<QListView*>(QStringLiteral("lstPrint(1)"))->model()->rowCount(), 2);
  EXPECT_EQ(second.findChild<QTabBar*>()->currentIndex(), 1);
  EXPECT_EQ(second.size(), QSize(645, 396));
  dialog.Get<ListBox>(u"lstPrint", 1).AddItem(u"new");
  EXPECT_EQ(second.findChild<QListView*>(QStringLiteral("lstPrint(1)"))->model()->rowCount(), 3);
  // The first view hears no more; what it shows is for nobody.
  dialog.Get<ListBox>(u"lstPrint", 1).RemoveItem(2);
}

TEST_F(ViewTest, EntriesSortInTheOrderOfTheUsersLanguage) {
  Load("b A c B");
  auto& printed = dialog.Get<ListBox>(u"lstPrint", 1);
  for (std::int16_t entry = 0; entry < 4; ++entry) printed.Selected(entry, true);
  QTest::mouseClick(&Glass<QPushButton>("cmdRightToLeft(1)"), Qt::LeftButton);
  EXPECT_EQ(StateOf(dialog.Get<ListBox>(u"lstAvail", 1)), "A:2 B:4 b:1 c:3") << "equal but for case: as they came";
}

TEST_F(ViewTest, FieldsAreSpokenByTheLabelsAboutThem) {
  Load("a");
  const struct {
    const char* widget;
    const char* name;
  } names[] = {
      {"txtGenPrnTitle", "Print title"},
      {"lstPrint(1)", "Print characteristics"},
      {"lstAvail(3)", "Available structure elements"},
      {"lstStrStructures", "Structures"},
      {"cmbAttrChar", "Characteristic"},
      {"txtCharColTitle", "Column title"},
      {"cmbCharColAlign1", "Alignment, Description"},
      {"chkAttrColEachPage2", "On each page, Column 2"},
      {"chkStrColAutoWidth", "Auto Width"},
      {"chkGenUseColors", "Use Colors"},
      {"fraGenPageMargins", "Page margins"},
      {"cmdPrintLayout(4)", "Totals row"},
      {"cmdLeftToRight(1)", "Transfer selected available characteristics to print characteristics"},
  };
  for (const auto& row : names) {
    EXPECT_EQ(Glass<QWidget>(row.widget).accessibleName().toStdString(), row.name) << row.widget;
  }
  dialog.Get<Label>(u"lblCharCol1").Caption(u"Key & more");
  EXPECT_EQ(Glass<QWidget>("txtCharColWidth1").accessibleName(), QStringLiteral("Width, Key & more"));
}

QString Unmarked(QString text) { return text.replace(QStringLiteral("&&"), QStringLiteral("&")); }

/// What a widget shows of its caption, and the width that this takes.
std::pair<QString, int> CaptionOf(const QWidget& glass) {
  QString text;
  if (const auto* label = qobject_cast<const QLabel*>(&glass)) text = label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&glass)) text = button->text();
  if (const auto* frame = qobject_cast<const QGroupBox*>(&glass)) text = frame->title();
  text = Unmarked(text);
  return {text, glass.fontMetrics().horizontalAdvance(text)};
}

TEST_F(ViewTest, EveryCaptionIsReadableInFull) {
  const host::SettingsDocument german = host::ReadSettings(PRNPROP_EXAMPLES "/german.json");
  Load("a");
  const auto& tabs = *view.findChild<QTabBar*>();
  for (const bool isGerman : {false, true}) {
    if (isGerman) control.ORXControlTexts(german.texts);
    for (const auto& widget : dialog.Controls()) {
      if (widget->Caption().empty()) continue;
      const WidgetName& name = widget->Row().name;
      QString text = ToQString(name.name);
      if (name.index != WidgetName::kNoIndex) text += QStringLiteral("(%1)").arg(name.index);
      const QWidget& glass = *view.findChild<QWidget*>(text);
      const auto [shown, width] = CaptionOf(glass);
      EXPECT_EQ(shown, ToQString(widget->Caption())) << text.toStdString();
      EXPECT_LE(width, glass.width()) << text.toStdString();
    }
    for (int tab = 0; tab < tabs.count(); ++tab) {
      EXPECT_EQ(Unmarked(tabs.tabText(tab)), ToQString(dialog.TabStrip().TabCaption(static_cast<std::int16_t>(tab))));
      EXPECT_EQ(tabs.tabRect(tab).width(), 641 / 5);
    }
  }
}

TEST_F(ViewTest, WhatDoesNotFitIsReadInTheTooltip) {
  auto& label = dialog.Get<Label>(u"lblGenMarginTop");
  label.ToolTipText(u"of the page");
  label.Caption(u"A <b>caption</b> & much too long for its place on the page");
  auto& shown = Glass<QLabel>("lblGenMarginTop");
  EXPECT_TRUE(shown.text().endsWith(QChar(0x2026))) << shown.text().toStdString();
  EXPECT_LE(CaptionOf(shown).second, shown.width());
  EXPECT_EQ(shown.toolTip(), QStringLiteral("<p>A &lt;b&gt;caption&lt;/b&gt; &amp; much too long for its place on the "
                                            "page<br>\nof the page</p>"))
      << "the caption is no markup";
  label.Caption(u"T&p");
  EXPECT_EQ(Unmarked(shown.text()), QStringLiteral("T&p"));
  label.ToolTipText(u"margin");
  EXPECT_EQ(shown.toolTip(), QStringLiteral("margin"));

  auto& tabs = *view.findChild<QTabBar*>();
  for (std::int16_t tab = 0; tab < 4; ++tab) dialog.TabStrip().TabCaption(tab, Text(60, u'w'));
  EXPECT_EQ(tabs.tabToolTip(3).size(), 60);
  EXPECT_LE(tabs.tabRect(3).right(), tabs.width());
}

TEST_F(ViewTest, WidgetsWearTheInterfaceFontInTheStoredSize) {
  const QFont font = Glass<QLineEdit>("txtGenPrnTitle").font();
  EXPECT_EQ(font.family(), QApplication::font().family());
  EXPECT_EQ(font.pointSizeF(), 8.25);
  EXPECT_EQ(font.weight(), QFont::Normal);
}

}  // namespace
}  // namespace ORXKMPrintProp::qt::test
