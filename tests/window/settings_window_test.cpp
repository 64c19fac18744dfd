#include "host/window/SettingsWindow.h"

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <functional>

#include "control/SharedValues.h"
#include "host/Load.h"
#include "host/temporary_folder.h"
#include "host/window/EditedSettings.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtFontPlatform.h"

namespace ORXKMPrintProp::host::test {
namespace {

class SettingsWindowTest : public testing::Test {
 protected:
  SettingsWindowTest() {
    gPrnProp.reset();
    gTextTable.reset();
    file = folder.Write("a.json", ReadFileOf(PRNPROP_EXAMPLES "/small.json"));
  }
  ~SettingsWindowTest() override { EXPECT_EQ(waiting, 0) << "a question was expected that did not come"; }

  static std::string ReadFileOf(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

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
  QPushButton& Button(QDialogButtonBox::StandardButton button) {
    return *window->findChild<QDialogButtonBox*>()->button(button);
  }
  QLineEdit& Title() { return Find<QLineEdit>("txtGenPrnTitle"); }
  bool IsStale() { return Find<QLabel>("state").text().contains(QStringLiteral("Older")); }

  /// Does that with the dialog or message box that opens next.
  template <class Box>
  void Next(std::function<void(Box&)> action) {
    ++waiting;
    auto* const timer = new QTimer(window.get());
    QObject::connect(timer, &QTimer::timeout, [this, timer, action] {
      auto* const box = dynamic_cast<Box*>(QApplication::activeModalWidget());
      if (!box) return;
      timer->stop();
      --waiting;
      action(*box);
    });
    timer->start(5);
  }
  void Answer(QMessageBox::StandardButton button) {
    Next<QMessageBox>([this, button](QMessageBox& box) {
      asked = box.text() + u'\n' + box.informativeText();
      QTest::mouseClick(box.button(button), Qt::LeftButton);
    });
  }

  TemporaryFolder folder;
  std::string file;
  qt::QtFontPlatform platform;
  std::unique_ptr<EditedSettings> settings;
  std::unique_ptr<SettingsWindow> window;
  QString asked;
  int waiting = 0;
};

TEST_F(SettingsWindowTest, OkWritesWhatAReadBackGivesAfterTheSameEdits) {
  Open();
  Title().clear();
  QTest::keyClicks(&Title(), QStringLiteral("Costs"));
  QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
  window.reset();
  settings.reset();

  SettingsDocument expected = ReadSettings(PRNPROP_EXAMPLES "/small.json");
  expected.general->Rows(1)->Value(u"TITLE", Text(u"Costs"));
  LoadAndReadBack(expected);
  EXPECT_EQ(folder.Read("a.json"), ToJson(expected));
}

TEST_F(SettingsWindowTest, NothingIsAskedOrWrittenWhenNothingHasChanged) {
  const std::string before = folder.Read("a.json");
  Open();
  QTest::mouseClick(&Button(QDialogButtonBox::Cancel), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
  Open();
  QTest::keyClicks(&Title(), QStringLiteral("x"));
  QTest::keyClick(&Title(), Qt::Key_Backspace);
  EXPECT_TRUE(window->isWindowModified()) << "until a read tells better";
  EXPECT_TRUE(window->close());
  Open();
  QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(folder.Read("a.json"), before);
}

TEST_F(SettingsWindowTest, ClosingAsksWhenSomethingHasChanged) {
  const std::string before = folder.Read("a.json");
  Open();
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_FALSE(Button(QDialogButtonBox::Apply).isEnabled());
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  EXPECT_TRUE(window->isWindowModified());
  Answer(QMessageBox::Cancel);
  QTest::mouseClick(&Button(QDialogButtonBox::Cancel), Qt::LeftButton);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(asked.toStdString(), "The settings have changed.\nSave them in " + file + "?");
  Answer(QMessageBox::Discard);
  EXPECT_TRUE(window->close());
  EXPECT_EQ(folder.Read("a.json"), before);

  Open();
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  Answer(QMessageBox::Save);
  EXPECT_TRUE(window->close());
  EXPECT_NE(folder.Read("a.json").find("Orders by region!"), std::string::npos);
}

TEST_F(SettingsWindowTest, ApplySavesAndTheWindowGoesOn) {
  Open({.out = folder.Path("b.json")});
  EXPECT_TRUE(Button(QDialogButtonBox::Apply).isEnabled()) << "there is no such file yet";
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  QTest::mouseClick(&Button(QDialogButtonBox::Apply), Qt::LeftButton);
  EXPECT_NE(folder.Read("b.json").find("Orders by region!"), std::string::npos);
  EXPECT_EQ(folder.Read("a.json"), ReadFileOf(PRNPROP_EXAMPLES "/small.json"));
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_FALSE(Button(QDialogButtonBox::Apply).isEnabled());
  EXPECT_TRUE(window->close());
}

TEST_F(SettingsWindowTest, LossIsToldBeforeTheFirstSaveAndCanBeRefused) {
  std::string document = ReadFileOf(file);
  document.insert(document.find("\"IOBJNM\": \"REGION\""), "\"COLOR\": \"red\", ");
  folder.Write("a.json", document);
  Open();
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  Answer(QMessageBox::Cancel);
  QTest::mouseClick(&Button(QDialogButtonBox::Apply), Qt::LeftButton);
  EXPECT_EQ(asked.toStdString(),
            "One thing that the file says can't be kept.\n"
            "dimension, row 1, column COLOR: the control does not write this column");
  EXPECT_EQ(folder.Read("a.json"), document);
  EXPECT_TRUE(window->isWindowModified());
  Answer(QMessageBox::Save);
  QTest::mouseClick(&Button(QDialogButtonBox::Apply), Qt::LeftButton);
  EXPECT_EQ(folder.Read("a.json").find("\"COLOR\""), std::string::npos);
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible()) << "it is told once";
}

TEST_F(SettingsWindowTest, AWriteThatFailsKeepsTheOldFileAndTheWindow) {
  Open({.out = folder.Path("no/b.json")});
  const std::string before = folder.Read("a.json");
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  Answer(QMessageBox::Ok);
  QTest::mouseClick(&Button(QDialogButtonBox::Ok), Qt::LeftButton);
  EXPECT_EQ(asked.toStdString(),
            "The settings could not be saved.\n" + folder.Path("no/b.json") + ": No such file or directory");
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(window->isWindowModified());
  EXPECT_EQ(folder.Read("a.json"), before);
  Answer(QMessageBox::Discard);
  EXPECT_TRUE(window->close());
}

TEST_F(SettingsWindowTest, ALayoutIsEditedAsPlainText) {
  Open();
  const auto edit = [this](const QString& expected, const QString& typed, QDialogButtonBox::StandardButton end) {
    Next<QDialog>([=](QDialog& dialog) {
      auto& text = *dialog.findChild<QPlainTextEdit*>();
      EXPECT_EQ(text.toPlainText(), expected);
      text.selectAll();
      text.insertPlainText(typed);
      QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(end), Qt::LeftButton);
    });
    QTest::mouseClick(&Find<QPushButton>("cmdPrintLayout(1)"), Qt::LeftButton);
  };
  edit({}, QStringLiteral("thrown away"), QDialogButtonBox::Cancel);
  EXPECT_FALSE(window->isWindowModified());
  edit({}, QStringLiteral("<b>&head\u00a0\u00fc"), QDialogButtonBox::Ok);
  EXPECT_TRUE(window->isWindowModified());
  QTest::mouseClick(&Button(QDialogButtonBox::Apply), Qt::LeftButton);
  EXPECT_EQ(std::get<Text>(ReadSettings(file).general->Rows(1)->Value(u"HEADER_LAYOUT")), u"<b>&head\u00a0\u00fc");
  edit(QStringLiteral("<b>&head \u00fc"), {}, QDialogButtonBox::Cancel);
}

TEST_F(SettingsWindowTest, ThePanelMarksCellsThatDifferAndSaysWhenItIsOlder) {
  Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window->findChild<QTabWidget*>(); }));
  auto& tabs = *window->findChild<QTabWidget*>();
  tabs.setCurrentIndex(1);
  const QAbstractItemModel& model = *static_cast<QTableView&>(*tabs.currentWidget()).model();
  const auto marked = [&] {
    QString text;
    for (int column = 0; column < model.columnCount(); ++column) {
      const QModelIndex cell = model.index(0, column);
      if (!cell.data(Qt::BackgroundRole).isValid()) continue;
      text += model.headerData(column, Qt::Horizontal).toString() + u'=' + cell.data().toString() + u'|' +
              cell.data(Qt::ToolTipRole).toString() + u'\n';
    }
    return text.toStdString();
  };
  EXPECT_EQ(marked(), "");
  EXPECT_FALSE(IsStale());
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  EXPECT_TRUE(IsStale());
  EXPECT_EQ(marked(), "") << "typing reads nothing";
  QTest::mouseClick(&Find<QPushButton>("refresh"), Qt::LeftButton);
  EXPECT_FALSE(IsStale());
  EXPECT_EQ(marked(), "TITLE=Orders by region!|In the file: Orders by region\n");
  QTest::mouseClick(&Button(QDialogButtonBox::Apply), Qt::LeftButton);
  EXPECT_EQ(marked(), "");
}

TEST_F(SettingsWindowTest, AChangeOfTheTabOrTheOrderReadsBack) {
  Open();
  auto& dialogTabs = *window->findChild<qt::PrnPropView*>()->findChild<QTabBar*>();
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  QTest::keyClick(&Title(), Qt::Key_PageDown, Qt::ControlModifier);
  ASSERT_EQ(dialogTabs.currentIndex(), 1);
  EXPECT_TRUE(IsStale());
  QCoreApplication::processEvents();
  EXPECT_FALSE(IsStale());
  EXPECT_TRUE(window->isWindowModified());
  // Entered by the keyboard, the page was filled before it was read.
  auto& width = Find<QLineEdit>("txtCharColWidth1");
  EXPECT_EQ(width.text(), QStringLiteral("24"));
  QTest::mouseClick(&Find<QPushButton>("cmdRightToLeft(1)"), Qt::LeftButton);
  EXPECT_TRUE(IsStale());
  QCoreApplication::processEvents();
  EXPECT_FALSE(IsStale());
  EXPECT_EQ(std::get<Text>(settings->Now().Dimension().rows.at(0)->Value(u"AXIS")), u" ");
  Answer(QMessageBox::Discard);
  EXPECT_TRUE(window->close());
}

TEST_F(SettingsWindowTest, TheWindowFoldsToTheDialogAndBack) {
  Open();
  const int width = window->width();
  QTest::mouseClick(&Find<QPushButton>("preview"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->width() < width; }));
  EXPECT_FALSE(Find<QLabel>("state").isVisible());
  QTest::mouseClick(&Find<QPushButton>("preview"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->width() == width; }));
}

TEST_F(SettingsWindowTest, AReadOnlyWindowChangesNothing) {
  Open({.readOnly = true});
  QTest::keyClicks(&Title(), QStringLiteral("!"));
  Next<QDialog>([](QDialog& dialog) {
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>()->isReadOnly());
    dialog.reject();
  });
  QTest::mouseClick(&Find<QPushButton>("cmdPrintLayout(0)"), Qt::LeftButton);
  EXPECT_FALSE(window->isWindowModified());
  EXPECT_TRUE(window->close());
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
