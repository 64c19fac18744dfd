#include "host/window/SettingsWindow.h"

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/editor/EditedSettings.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host::test {
namespace {

class SettingsWindowTest : public testing::Test {
 protected:
  SettingsWindowTest() {
    gPrnProp.reset();
    gTextTable.reset();
    SaveFile(file, before);
    QObject::connect(&timer, &QTimer::timeout, [this] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      if (answers.empty()) {
        ADD_FAILURE() << "a question that was not expected";
        dialog->reject();
        return;
      }
      const auto answer = answers.front();
      answers.pop_front();
      answer(*dialog);
    });
    timer.start(5);
  }
  ~SettingsWindowTest() override { EXPECT_TRUE(answers.empty()) << "a question was expected that did not come"; }

  std::string Path(const char* name) const { return folder.filePath(QLatin1String(name)).toStdString(); }

  void Open(EditOptions options = {}) {
    options.file = file;
    window.reset();
    settings = std::make_unique<EditedSettings>(ReadSettings(file), options, nullptr, platform);
    window = std::make_unique<SettingsWindow>(*settings);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  template <class W>
  W& Find(const char* name) {
    return *window->findChild<W*>(QLatin1String(name));
  }
  void Type(const char* keys) { QTest::keyClicks(&Find<QLineEdit>("txtGenPrnTitle"), QLatin1String(keys)); }
  void Press(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
  void Press(QDialogButtonBox::StandardButton button) {
    QTest::mouseClick(window->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
  }

  /// What is seen of the window: open or closed, modified, Apply can be pressed, the panel is older than a change.
  std::string State() {
    std::string state = window->isVisible() ? "open" : "closed";
    if (window->isWindowModified()) state += " modified";
    if (window->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->isEnabled()) state += " apply";
    if (Find<QLabel>("state").text().contains(QStringLiteral("Older"))) state += " older";
    return state;
  }

  void Answer(QMessageBox::StandardButton button, const std::string& question) {
    answers.push_back([button, question](QDialog& dialog) {
      auto& box = dynamic_cast<QMessageBox&>(dialog);
      for (const auto* const label : box.findChildren<QLabel*>()) EXPECT_EQ(label->textFormat(), Qt::PlainText);
      EXPECT_EQ((box.text() + u'\n' + box.informativeText()).toStdString(), question);
      QTest::mouseClick(box.button(button), Qt::LeftButton);
    });
  }
  std::string Changed() const { return "The settings have changed.\nSave them in " + file + "?"; }

  const QTemporaryDir folder;
  std::string before = ReadFile(PRNPROP_EXAMPLES "/small.json");
  const std::string file = Path("a.json");
  qt::QtPlatform platform;
  std::unique_ptr<EditedSettings> settings;
  std::unique_ptr<SettingsWindow> window;
  /// What is done with the dialogs and message boxes that open, one after the other.
  std::deque<std::function<void(QDialog&)>> answers;
  QTimer timer;
};

TEST_F(SettingsWindowTest, WhatASaveLosesIsToldBeforeTheFirstAndLayoutsAreHandedBack) {
  const std::string characteristic = R"({"POSIT":1,"AXIS":"Y","PR_COL1_WIDTH":1,"PR_COL2_WIDTH":1,"STRT_LVL":0,)";
  SaveFile(file, R"({"general":[{"TITLE":"Sales","MARGIN_TOP":1,"MARGIN_BOTTOM":2,"MARGIN_LEFT":3,
      "MARGIN_RIGHT":4,"HEADER_LAYOUT":"head","LASTPAGE_LAYOUT":"end"}],"dimension":[)" +
                     characteristic + R"("IOBJNM":"A","PR_SUM_LAYOUT":"<sum>\r\n of A"},)" + characteristic +
                     R"("IOBJNM":"A","PR_SUM_LAYOUT":"two","COLOR":"red"},)" + characteristic +
                     R"("IOBJNM":"B","PR_SUM_LAYOUT":"sum of B"},
      {"IS_STRUCTURE":"X","IOBJTXT":"nameless","POSIT":1}]})");
  before = ReadFile(file);
  SettingsDocument expected = ReadSettings(file);
  Open();
  EXPECT_EQ(State(), "open");
  Type("!");
  const std::string losses =
      "3 things that the file says can't be kept.\n"
      "• dimension, row 2, column PR_SUM_LAYOUT: only the first characteristic of a name keeps its layout\n"
      "• dimension, row 2, column COLOR: the control does not write this column\n"
      "• dimension, row 4: a structure without a name does not exist";
  Answer(QMessageBox::Cancel, losses);
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(State(), "open modified apply");
  EXPECT_EQ(ReadFile(file), before);
  Answer(QMessageBox::Save, losses);
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(State(), "open");
  Type("?");
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "closed") << "it is told once";

  expected.general->Rows(1)->Value(u"TITLE", Text(u"Sales!?"));
  LoadAndReadBack(expected);
  expected.general->Rows(1)->Value(u"HEADER_LAYOUT", Text(u"head"));
  expected.general->Rows(1)->Value(u"LASTPAGE_LAYOUT", Text(u"end"));
  expected.dimension->Rows(1)->Value(u"PR_SUM_LAYOUT", Text(u"<sum>\r\n of A"));
  expected.dimension->Rows(3)->Value(u"PR_SUM_LAYOUT", Text(u"sum of B"));
  EXPECT_EQ(ReadFile(file), ToJson(expected));
}

TEST_F(SettingsWindowTest, ClosingAsksWhenSomethingHasChanged) {
  Open();
  Press(QDialogButtonBox::Cancel);
  EXPECT_EQ(State(), "closed");
  Open();
  Type("x\b");
  EXPECT_EQ(State(), "open modified apply older") << "until a read tells better";
  EXPECT_TRUE(window->close());
  Open();
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "closed");

  Open();
  Type("!");
  Answer(QMessageBox::Cancel, Changed());
  Press(QDialogButtonBox::Cancel);
  EXPECT_EQ(State(), "open modified apply");
  Answer(QMessageBox::Discard, Changed());
  QTest::keyClick(window->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), Qt::Key_Return);
  EXPECT_EQ(State(), "closed modified apply") << "Enter presses the button that has the focus";
  EXPECT_EQ(ReadFile(file), before);
  Open();
  auto& combo = Find<QComboBox>("cmbGenPrnDirection");
  combo.showPopup();
  QTest::keyClick(combo.view(), Qt::Key_Escape);
  EXPECT_EQ(State() + (combo.view()->isVisible() ? " list" : ""), "open") << "Escape closes the list alone";
  Type("!");
  Answer(QMessageBox::Save, Changed());
  EXPECT_TRUE(window->close());
  EXPECT_NE(ReadFile(file).find("Orders by region!"), std::string::npos);
}

TEST_F(SettingsWindowTest, AFieldWithoutANumberIsToldBeforeASave) {
  Open();
  auto& field = Find<QLineEdit>("txtGenMarginTop");
  field.selectAll();
  QTest::keyClicks(&field, QStringLiteral("32768"));
  const auto note = [this] { return Find<QLabel>("state").text().section(u'\n', 1).toStdString(); };
  EXPECT_EQ(note(), "No whole number up to 32767: Page margins, Top: 32768");
  const std::string question =
      "Not everything is stored as it was typed.\nNo whole number up to 32767:\nPage margins, Top: 32768";
  Answer(QMessageBox::Cancel, question);
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "open");
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_EQ(note(), "No whole number up to 32767: Page margins, Top: (empty)");
  QTest::keyClicks(&field, QStringLiteral("77"));
  EXPECT_EQ(note(), "");
  Press(QDialogButtonBox::Apply);
  EXPECT_NE(ReadFile(file).find("\"MARGIN_TOP\": 77"), std::string::npos);
}

TEST_F(SettingsWindowTest, WhoeverOnlyLooksChangesNothing) {
  // The commit of a page would write a 1, and no width beside an automatic one.
  const std::string name = "\"IOBJNM\": \"REGION\"";
  for (const auto& [from, to] :
       {std::pair(R"("POSIT": 1)", R"("POSIT": 0)"), std::pair(R"("PR_AUTO_WIDTH": " ")", R"("PR_AUTO_WIDTH": "X")")}) {
    before.replace(before.find(from, before.find(name)), std::string_view(from).size(), to);
  }
  SaveFile(file, before);
  for (const bool readOnly : {false, true}) {
    Open({.readOnly = readOnly});
    for (int tab = 0; tab < 4; ++tab) {
      QTest::keyClick(&Find<QWidget>("tstPrint"), Qt::Key_PageDown, Qt::ControlModifier);
      QCoreApplication::processEvents();
    }
    QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(State(), "open");
    Press(QDialogButtonBox::Ok);
    EXPECT_EQ(ReadFile(file), before);
  }
}

TEST_F(SettingsWindowTest, AFileThatSomebodyElseHasWrittenIsNotReplacedUnasked) {
  Open();
  Type("!");
  SaveFile(file, before += "\n");
  const std::string question = "The file has changed since it was opened.\nReplace " + file + " all the same?";
  Answer(QMessageBox::Cancel, question);
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "open modified apply");
  EXPECT_EQ(ReadFile(file), before);
  Answer(QMessageBox::Save, question);
  Press(QDialogButtonBox::Apply);
  EXPECT_NE(ReadFile(file), before);
  Type("?");
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "closed");
}

TEST_F(SettingsWindowTest, AWriteThatFailsKeepsTheWindowAndAnotherTargetLeavesTheFile) {
  const std::string nowhere = Path("no/b.json");
  Open({.out = nowhere});
  Type("!");
  Answer(QMessageBox::Ok, "The settings could not be saved.\n" + nowhere + ": No such file or directory");
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "open modified apply");
  EXPECT_EQ(ReadFile(file), before);
  Answer(QMessageBox::Discard, "The settings have changed.\nSave them in " + nowhere + "?");
  EXPECT_TRUE(window->close());

  before.insert(before.find("\"IOBJNM\": \"REGION\""), "\"COLOR\": \"red\", ");
  SaveFile(file, before);
  Open({.out = Path("b.json")});
  EXPECT_EQ(State(), "open apply") << "there is no such file yet";
  Answer(QMessageBox::Save,
         "One thing that the file says can't be kept.\n"
         "• dimension, row 1, column COLOR: the control does not write this column");
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(State(), "open");
  EXPECT_TRUE(window->close());
  EXPECT_EQ(ReadFile(file), before);
  SettingsDocument expected = ReadSettings(PRNPROP_EXAMPLES "/small.json");
  LoadAndReadBack(expected);
  EXPECT_EQ(ReadFile(Path("b.json")), ToJson(expected));
}

TEST_F(SettingsWindowTest, ALayoutIsEditedAsPlainText) {
  Open();
  const auto edit = [this](const QString& expected, const QString& typed, QDialogButtonBox::StandardButton end) {
    answers.push_back([=](QDialog& dialog) {
      auto& text = *dialog.findChild<QPlainTextEdit*>();
      EXPECT_EQ(text.toPlainText(), expected);
      text.selectAll();
      text.insertPlainText(typed);
      QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(end), Qt::LeftButton);
    });
    Press("cmdPrintLayout(1)");
  };
  edit({}, QStringLiteral("thrown away"), QDialogButtonBox::Cancel);
  EXPECT_EQ(State(), "open");
  edit({}, QStringLiteral("<b>&head\u00a0\u00fc"), QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "open modified apply older");
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(std::get<Text>(ReadSettings(file).general->Rows(1)->Value(u"HEADER_LAYOUT")), u"<b>&head\u00a0\u00fc");
  edit(QStringLiteral("<b>&head \u00fc"), {}, QDialogButtonBox::Cancel);
}

TEST_F(SettingsWindowTest, ThePanelMarksCellsThatDifferAndSaysWhenItIsOlder) {
  Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window->findChild<QTabWidget*>(); }));
  auto& tabs = *window->findChild<QTabWidget*>();
  tabs.setCurrentIndex(1);
  const QAbstractItemModel& model = *static_cast<QTableView&>(*tabs.currentWidget()).model();
  const auto state = [&] {
    QString text = QString::fromStdString(State()) + u'\n' + tabs.tabText(1);
    for (int column = 0; column < model.columnCount(); ++column) {
      const QModelIndex cell = model.index(0, column);
      if (!cell.data(Qt::BackgroundRole).isValid()) continue;
      text += u'\n' + model.headerData(column, Qt::Horizontal).toString() + u'=' + cell.data().toString() + u'|' +
              cell.data(Qt::ToolTipRole).toString();
    }
    return text.toStdString();
  };
  EXPECT_EQ(state(), "open\ngeneral");
  Type("!");
  EXPECT_EQ(state(), "open modified apply older\ngeneral") << "typing reads nothing";
  Press("refresh");
  EXPECT_EQ(state(), "open modified apply\ngeneral *\nTITLE=Orders by region!|In the file: Orders by region");
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(state(), "open\ngeneral");

  const int width = window->width();
  Press("preview");
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->width() < width; })) << "the window folds to the dialog";
  EXPECT_FALSE(Find<QLabel>("state").isVisible());
  Press("preview");
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->width() == width; }));
  Press("preview");
  window->resize(width, window->height());
  Press("preview");
  EXPECT_EQ(window->width(), width) << "there was room already";
  window->FitInto({width - 300, 2000});
  EXPECT_FALSE(Find<QLabel>("state").isVisible());
  EXPECT_LE(window->width(), width - 300);
  for (const QSize& screen : {QSize(800, 400), QSize(500, 300)}) {
    window->FitInto(screen);
    Press("preview");
    EXPECT_EQ(window->size().boundedTo(screen), window->size()) << "the dialog scrolls";
    Press("preview");
    EXPECT_EQ(window->size().boundedTo(screen), window->size());
  }
}

TEST_F(SettingsWindowTest, AChangeOfTheTabOrTheOrderReadsBack) {
  Open();
  Type("!");
  QTest::keyClick(&Find<QLineEdit>("txtGenPrnTitle"), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(State(), "open modified apply older");
  QCoreApplication::processEvents();
  EXPECT_EQ(State(), "open modified apply");
  EXPECT_EQ(Find<QLineEdit>("txtCharColWidth1").text(), QStringLiteral("24")) << "the page was filled before the read";
  Press(QDialogButtonBox::Apply);
  QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_Home);
  QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_Down, Qt::AltModifier);
  QCoreApplication::processEvents();
  EXPECT_EQ(State(), "open modified apply");
  Press("cmdRightToLeft(1)");
  EXPECT_EQ(State(), "open modified apply older");
  QCoreApplication::processEvents();
  EXPECT_EQ(State(), "open modified apply");
  EXPECT_EQ(std::get<Text>(settings->Now().Dimension().rows.at(0)->Value(u"AXIS")), u" ");
  Press(QDialogButtonBox::Apply);

  Press("cmdLeftToRight(1)");
  EXPECT_EQ(State(), "open") << "nothing is selected there";

  // Of the order of attributes the window hears by the user's hand alone.
  auto& attributes = Find<QListView>("lstPrint(2)");
  const auto drag = [&] {
    QTest::mousePress(attributes.viewport(), Qt::LeftButton, {}, {5, 5});
    QTest::mouseMove(attributes.viewport(), {5, 20});
    QTest::mouseRelease(attributes.viewport(), Qt::LeftButton, {}, {5, 20});
  };
  const auto key = [&] { QTest::keyClick(&attributes, Qt::Key_Up, Qt::AltModifier); };
  QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_PageDown, Qt::ControlModifier);
  QCoreApplication::processEvents();
  const std::pair<std::function<void()>, const char*> rows[] = {{drag, "open modified apply"}, {key, "open"}};
  for (const auto& [reorder, state] : rows) {
    reorder();
    QCoreApplication::processEvents();
    EXPECT_EQ(State(), "open modified apply older");
    Press("refresh");
    EXPECT_EQ(State(), state) << "the key leads back to where the drag began";
  }
  QTest::keyClick(&attributes, Qt::Key_PageUp, Qt::ControlModifier);
  QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_PageUp, Qt::ControlModifier);
  Type("?");
  Answer(QMessageBox::Discard, Changed());
  QTest::keyClick(&Find<QLineEdit>("txtGenPrnTitle"), Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(SettingsWindowTest, AReadOnlyWindowChangesNothing) {
  Open({.readOnly = true});
  Type("!");
  answers.push_back([](QDialog& dialog) {
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>()->isReadOnly());
    dialog.reject();
  });
  Press("cmdPrintLayout(0)");
  EXPECT_EQ(State(), "open");
  EXPECT_TRUE(window->close());
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
