#include "host/window/SettingsWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <deque>
#include <functional>

#include "control/SharedValues.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/editor/EditedSettings.h"
#include "host/editor/PageSketch.h"
#include "host/window/PagePrinting.h"
#include "host/window/PageSketchView.h"
#include "host/window/Remembered.h"
#include "host/window/Translation.h"
#include "views/Translation.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host::test {
namespace {

/// How many sheets a PDF file has, and whether they lie across.
std::string SheetsIn(const std::string& file) {
  const QByteArray pdf = QByteArray::fromStdString(file);
  EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
  return std::to_string(pdf.count("/Type /Page\n")) + (pdf.contains("/MediaBox [0 0 842") ? " across" : "");
}

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
  ~SettingsWindowTest() override {
    EXPECT_TRUE(answers.empty()) << "a question was expected that did not come";
    QCoreApplication::setOrganizationName({});
  }

  std::string Path(const char* name) const { return folder.filePath(QLatin1String(name)).toStdString(); }

  void Open(EditOptions options = {}) {
    options.file = file;
    window.reset();
    settings = std::make_unique<EditedSettings>(options, platform);
    window = std::make_unique<SettingsWindow>(*settings);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  /// What is remembered comes back when it is opened again.
  void OpenAgain() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    BeginToRemember();
    Open();
  }
  void OpenWithPage() {
    OpenAgain();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window->findChild<QTabWidget*>(); }));
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
  /// What has the focus, from the title on, until the key leads back to what has had it.
  QStringList Round(Qt::Key key) {
    QStringList names;
    QList<QWidget*> been;
    for (QWidget* at = &Find<QLineEdit>("txtGenPrnTitle"); !been.contains(at); at = window->focusWidget()) {
      been.append(at);
      const auto* const button = qobject_cast<QAbstractButton*>(at);
      names.append(!at->objectName().isEmpty() ? at->objectName()
                   : button                    ? button->text()
                                               : QLatin1String(at->metaObject()->className()));
      at->setFocus();
      QTest::keyClick(at, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
    return names;
  }
  /// Goes through all that opens, and notes what is read and heard of it besides the document and its dialog.
  QStringList AllWords();

  std::string TitleChanged(const std::string& from, const std::string& to) const {
    return "The settings have changed.\nSave them in " + file + "?\n\nWhat has changed:\nGeneral\n  Print title: '" +
           from + "' is now '" + to + "'";
  }

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

/// The words of the widget and of what is in it, a line each; of the dialog's own only what is told of keys.
QStringList WordsIn(const QWidget& root) {
  QStringList words;
  const auto add = [&](const QString& text) { words += text.split(u'\n', Qt::SkipEmptyParts); };
  QList<const QWidget*> widgets = root.findChildren<const QWidget*>();
  widgets.prepend(&root);
  for (const QWidget* const widget : widgets) {
    const bool isOfDialog = widget->parentWidget() && root.findChild<qt::PrnPropView*>() &&
                            root.findChild<qt::PrnPropView*>()->isAncestorOf(widget);
    if (isOfDialog) {
      if (qobject_cast<const QListView*>(widget)) add(widget->accessibleDescription());
      continue;
    }
    for (const char* const name : {"windowTitle", "accessibleName", "toolTip", "placeholderText", "plainText"}) {
      add(widget->property(name).toString());
    }
    if (const auto* const label = qobject_cast<const QLabel*>(widget)) add(label->text());
    if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) add(button->text());
    if (const auto* const combo = qobject_cast<const QComboBox*>(widget)) add(combo->itemText(0));
    if (const auto* const sketch = dynamic_cast<const PageSketchView*>(widget)) add(sketch->Words());
    if (const auto* const tabs = qobject_cast<const QTabWidget*>(widget)) {
      for (int tab = 0; tab < tabs->count(); ++tab) add(tabs->tabText(tab) + u'\n' + tabs->tabToolTip(tab));
    }
    if (const auto* const menu = qobject_cast<const QMenu*>(widget)) {
      for (const QAction* const action : menu->actions()) add(action->text().section(QStringLiteral(" - "), 0, 0));
    }
    if (const auto* const table = qobject_cast<const QTableView*>(widget)) {
      const QAbstractItemModel& model = *table->model();
      for (int cell = 0; cell < model.rowCount() * model.columnCount(); ++cell) {
        add(model.index(cell / model.columnCount(), cell % model.columnCount()).data(Qt::ToolTipRole).toString());
      }
    }
  }
  return words;
}

QStringList SettingsWindowTest::AllWords() {
  QStringList words;
  const auto note = [&words](const QWidget& widget) { words += WordsIn(widget); };
  const auto answer = [&](std::initializer_list<QMessageBox::StandardButton> buttons) {
    for (const auto button : buttons) {
      answers.push_back([note, button](QDialog& dialog) {
        note(dialog);
        dynamic_cast<QMessageBox&>(dialog).button(button)->click();
      });
    }
  };
  const auto pickNoFile = [&] {
    answers.push_back([&words](QDialog& dialog) {
      words += dialog.windowTitle();
      words += dynamic_cast<QFileDialog&>(dialog).nameFilters();
      dialog.reject();
    });
  };
  const auto key = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->focusWidget(), key, modifiers);
  };
  // A column that the control does not know.
  SaveFile(file, std::string(before).replace(before.find("\"POSIT\": 1"), 0, "\"COLOR\": 3, "));
  OpenWithPage();
  emit window->findChild<QMenu*>()->aboutToShow();
  answers.push_back([note](QDialog& dialog) {
    note(dialog);
    dialog.reject();
  });
  key(Qt::Key_F1);
  key(Qt::Key_F, Qt::ControlModifier);
  note(*window);
  key(Qt::Key_Escape);
  answers.push_back([note](QDialog& dialog) {
    note(dialog);
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>(), QStringLiteral("x"));
    QTimer::singleShot(0, &dialog, &QDialog::reject);
  });
  answer({QMessageBox::Discard});
  Press("cmdPrintLayout(1)");
  QTest::keyClick(&Find<QLineEdit>("txtGenPrnTitle"), Qt::Key_PageDown, Qt::ControlModifier);
  QWidget& list = Find<QListView>("lstPrint(1)");
  QTest::keyClick(&list, Qt::Key_Down, Qt::AltModifier);
  note(*window);
  QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
  note(Find<QLabel>("status"));
  Press("revert");
  QTest::keyClick(&list, Qt::Key_PageUp, Qt::ControlModifier);

  Type("!");
  QTest::keyClicks(&Find<QLineEdit>("txtGenMarginTop"), QStringLiteral("32768"));
  note(*window);
  Press("refresh");
  window->findChild<QTabWidget*>()->setCurrentIndex(1);
  note(*window);
  pickNoFile();
  Press("pdf");
  answer({QMessageBox::Ok});
  Press("print");
  answer({QMessageBox::Save, QMessageBox::Save});
  pickNoFile();
  key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  SaveFile(file, before);
  answer({QMessageBox::Save, QMessageBox::Save, QMessageBox::Open, QMessageBox::Ok, QMessageBox::Cancel});
  Press(QDialogButtonBox::Apply);
  QFile::remove(QString::fromStdString(file));
  answer({QMessageBox::Save, QMessageBox::Save, QMessageBox::Cancel});
  Press(QDialogButtonBox::Apply);
  SaveFile(file, before);
  answer({QMessageBox::Discard});
  pickNoFile();
  key(Qt::Key_O, Qt::ControlModifier);
  return words;
}

TEST_F(SettingsWindowTest, TheUserIsAskedBeforeItCloses) {
  Open();
  QTest::keyClicks(&Find<QLineEdit>("txtGenMarginTop"), QStringLiteral("32768"));
  EXPECT_EQ(Find<QLabel>("status").text().toStdString(), "Top 1032768 is no number up to 32767: 10 kept");
  Type("!");
  Answer(QMessageBox::Discard, TitleChanged("Orders by region", "Orders by region!"));
  QTest::keyClick(window->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), Qt::Key_Return);
  EXPECT_EQ(State(), "closed modified apply") << "Enter presses the button that has the focus";
  Open();
  auto& combo = Find<QComboBox>("cmbGenPrnDirection");
  combo.showPopup();
  QTest::keyClick(combo.view(), Qt::Key_Escape);
  EXPECT_EQ(State() + (combo.view()->isVisible() ? " list" : ""), "open") << "Escape closes the list alone";
  Type("!");
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State(), "closed");
  EXPECT_NE(ReadFile(file).find("Orders by region!"), std::string::npos);
}

TEST_F(SettingsWindowTest, AnOvertakenFileIsComparedReloadedOrLeft) {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const std::string question =
      "The file has changed since it was opened.\nA save would replace what now stands in " + file + ".";
  Open();
  Type("!");
  SaveFile(file, ReadFile(PRNPROP_EXAMPLES "/small.json") + "\n");
  Answer(QMessageBox::Open, question);
  Answer(QMessageBox::Ok,
         "A save changes this in the file:\nGeneral\n  Print title: 'Orders by region' is now 'Orders by region!'");
  Answer(QMessageBox::Retry, question);
  Press(QDialogButtonBox::Ok);
  EXPECT_EQ(State() + Find<QLineEdit>("txtGenPrnTitle").text().toStdString(), "openOrders by region");
  Press("undo");
  EXPECT_EQ(State() + Find<QLineEdit>("txtGenPrnTitle").text().toStdString(), "open modified applyOrders by region!");
  SaveFile(file, before);
  Answer(QMessageBox::SaveAll, question);
  answers.push_back([this](QDialog& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.selectedFiles().front().toStdString(), file);
    files.selectFile(QStringLiteral("b"));
    dialog.accept();
  });
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(State() + window->windowTitle().toStdString() + window->windowFilePath().toStdString(),
            "openb.json[*] - Print settings" + Path("b.json"));
  EXPECT_EQ(ReadFile(file), before);
  EXPECT_NE(ReadFile(Path("b.json")).find("Orders by region!"), std::string::npos);
}

TEST_F(SettingsWindowTest, FilesAreOpenedByKeysByTheMenuAndByDrop) {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  SaveFile(Path("sales.json"), ReadFile(PRNPROP_EXAMPLES "/sales.json"));
  OpenWithPage();
  const auto key = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->focusWidget(), key, modifiers);
    return (window->windowTitle() + u' ' + Find<QLineEdit>("txtGenPrnTitle").text()).toStdString();
  };
  const auto pick = [this](QFileDialog::AcceptMode mode, const char* name) {
    answers.push_back([this, mode, name](QDialog& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      EXPECT_EQ(files.acceptMode(), mode);
      EXPECT_EQ(files.directory().path(), folder.path());
      files.selectFile(QLatin1String(name));
      dialog.accept();
    });
  };
  pick(QFileDialog::AcceptSave, "b");
  EXPECT_EQ(key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier), "b.json[*] - Print settings Orders by region");
  pick(QFileDialog::AcceptOpen, "sales.json");
  const std::string sales = "sales.json[*] - Print settings Sales by region and customer, fiscal year 2025";
  EXPECT_EQ(key(Qt::Key_O, Qt::ControlModifier), sales);
  EXPECT_EQ(key(Qt::Key_N, Qt::ControlModifier), "Untitled[*] - Print settings Orders by region");

  // On a field, which takes texts.
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(folder.filePath(QStringLiteral("sales.json")))});
  data.setText(QStringLiteral("file://"));
  QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  for (QDropEvent* const event : {static_cast<QDropEvent*>(&enter), &drop}) {
    QCoreApplication::sendEvent(&Find<QLineEdit>("txtGenPrnTitle"), event);
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(key(Qt::Key_F5, {}), sales);

  QTimer::singleShot(0, window.get(), [] {
    auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
    QString captions;
    for (const QAction* const action : menu.actions())
      captions += action->text().section(QStringLiteral(" - "), 0, 0) + u'|';
    EXPECT_EQ(captions.toStdString(),
              "&New\tCtrl+N|&Open...\tCtrl+O||&Save\tCtrl+S|Save &as...\tCtrl+Shift+S||"
              "&1 sales.json|&2 b.json|&3 a.json|");
    QTest::keyClick(&menu, Qt::Key_2);
  });
  Press("file");
  EXPECT_EQ(key(Qt::Key_F5, {}), "b.json[*] - Print settings Orders by region");
}

TEST_F(SettingsWindowTest, TheWindowComesBackAsItWasLeft) {
  OpenWithPage();
  window->resize(1210, 611);
  window->findChild<QTabWidget*>()->setCurrentIndex(3);
  const int dialog = window->minimumSizeHint().width();
  window->close();
  OpenWithPage();
  EXPECT_EQ(window->size(), QSize(1210, 611));
  EXPECT_EQ(window->findChild<QTabWidget*>()->currentIndex(), 3);
  Press("preview");
  window->close();
  OpenAgain();
  EXPECT_LT(window->width(), dialog);
  Press("preview");
  EXPECT_EQ(window->size(), QSize(1210, 611));
  window->FitInto({500, 300});
  EXPECT_EQ(window->size(), QSize(500, 300));
}

TEST_F(SettingsWindowTest, ALayoutIsEditedAsPlainText) {
  Open();
  const auto edit = [this](const QString& expected, const QString& typed) {
    answers.push_back([=](QDialog& dialog) {
      auto& text = *dialog.findChild<QPlainTextEdit*>();
      EXPECT_EQ(text.toPlainText(), expected);
      text.selectAll();
      text.insertPlainText(typed);
      QTest::keyClick(&text, Qt::Key_Tab);
      QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
    Press("cmdPrintLayout(1)");
  };
  const std::string question = "The layout has changed.\nThrow away what was typed?";
  const auto cancel = [](QDialog& dialog) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel), Qt::LeftButton);
  };
  const std::function<void(QDialog&)> ends[] = {
      cancel,
      [](QDialog& dialog) { QTest::keyClick(dialog.findChild<QPlainTextEdit*>(), Qt::Key_Escape); },
      [](QDialog& dialog) { dialog.close(); },
  };
  for (const auto& end : ends) {
    for (const auto answer : {QMessageBox::Cancel, QMessageBox::Discard}) {
      answers.push_back([&end](QDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QPlainTextEdit*>(), QStringLiteral("x"));
        // Not in here: another question can be answered only behind this.
        QTimer::singleShot(0, &dialog, [&] { end(dialog); });
      });
      Answer(answer, question);
    }
    Press("cmdPrintLayout(1)");
  }
  EXPECT_EQ(State(), "open");
  edit({}, QStringLiteral("<b>&head\u00a0\u00fc"));
  EXPECT_EQ(State(), "open modified apply");
  QCoreApplication::processEvents();
  EXPECT_EQ(State(), "open modified apply");
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(std::get<Text>(ReadSettings(file).general->Rows(1)->Value(u"HEADER_LAYOUT")), u"<b>&head\u00a0\u00fc");
  edit(QStringLiteral("<b>&head \u00fc"), QStringLiteral("a\u2028b"));
  answers.push_back(cancel);
  Press("cmdPrintLayout(1)");
  EXPECT_EQ(settings->LayoutOf({.buttonId = 1}), u"a\nb");
  Open({.readOnly = true});
  answers.push_back([](QDialog& dialog) {
    EXPECT_TRUE(dialog.findChild<QPlainTextEdit*>()->isReadOnly());
    dialog.reject();
  });
  Press("cmdPrintLayout(0)");
}

TEST_F(SettingsWindowTest, ThePanelMarksCellsThatDifferAndSaysWhenItIsOlder) {
  Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window->findChild<QTabWidget*>(); }));
  auto& tabs = *window->findChild<QTabWidget*>();
  tabs.setCurrentIndex(2);
  const QAbstractItemModel& model = *static_cast<QTableView&>(*tabs.currentWidget()).model();
  const auto state = [&] {
    QString text = QString::fromStdString(State()) + u'\n' + tabs.tabText(2);
    for (int column = 0; column < model.columnCount(); ++column) {
      const QModelIndex cell = model.index(0, column);
      if (!cell.data(Qt::BackgroundRole).isValid()) continue;
      text += u'\n' + model.headerData(column, Qt::Horizontal).toString() + u'=' + cell.data().toString() + u'|' +
              cell.data(Qt::ToolTipRole).toString();
      EXPECT_EQ(cell.data(Qt::AccessibleDescriptionRole), cell.data(Qt::ToolTipRole));
    }
    return text.toStdString();
  };
  EXPECT_EQ(state(), "open\ngeneral");
  Type("!");
  EXPECT_EQ(state(), "open modified apply older\ngeneral") << "typing reads nothing";
  Press("refresh");
  EXPECT_EQ(state(), "open modified apply\ngeneral *\nTITLE=\u2260 Orders by region!|In the file: Orders by region");

  QTest::keyClicks(&Find<QLineEdit>("txtGenMarginTop"), QStringLiteral("5"));
  Press("refresh");
  tabs.setCurrentIndex(1);
  EXPECT_EQ(window->findChild<QTextEdit*>()->toPlainText().toStdString(),
            "General\nPrint title: 'Orders by region' is now 'Orders by region!'\nPage margins, Top: 10 is now 105");
  const auto differenceAt = [&](Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window.get(), Qt::Key_F8, modifiers);
    const auto* const table = qobject_cast<QTableView*>(tabs.currentWidget());
    if (!table || !table->hasFocus()) return std::string("no table");
    const int column = table->currentIndex().column();
    return table->model()->headerData(column, Qt::Horizontal).toString().toStdString();
  };
  EXPECT_EQ(differenceAt({}), "TITLE");
  EXPECT_EQ(differenceAt({}), "MARGIN_TOP");
  EXPECT_EQ(differenceAt({}), "TITLE") << "round to the first";
  EXPECT_EQ(differenceAt(Qt::ShiftModifier), "MARGIN_TOP") << "and back";
  EXPECT_TRUE(Find<QPushButton>("nextDifference").isEnabled());
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(state(), "open\ngeneral");
  EXPECT_FALSE(Find<QPushButton>("nextDifference").isEnabled());
  tabs.setCurrentIndex(1);
  EXPECT_EQ(window->findChild<QTextEdit*>()->toPlainText(), QStringLiteral("Nothing has changed."));

  const int width = window->width();
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

TEST_F(SettingsWindowTest, ALineBelowTheDialogTellsInAWindowThatGetsNoWider) {
  before.replace(before.find("\"Region\""), 8, "\"" + std::string(100, 'R') + "<b>&S\"");
  SaveFile(file, before);
  Open();
  auto& line = Find<QLabel>("status");
  const int least = window->minimumSizeHint().width();
  QTest::keyClick(&Find<QLineEdit>("txtGenPrnTitle"), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(line.text(), QString());
  QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_Down, Qt::AltModifier);
  const QString told =
      QString(100, u'R') + QStringLiteral("<b>&S is now 2 of 2. Order changed: no page, new block at Customer");
  EXPECT_EQ(line.text(), told);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&line)->text(QAccessible::Name), told);
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(line.text() + line.toolTip(), QStringLiteral("Saved"));

  Press("preview");
  QTest::keyClick(&Find<QListView>("lstPrint(1)"), Qt::Key_Up, Qt::AltModifier);
  EXPECT_TRUE(line.isVisible());
  EXPECT_EQ(line.toolTip().toStdString(), "<qt>" + std::string(100, 'R') +
                                              "&lt;b&gt;&amp;S is now 1 of 2. Order changed: "
                                              "new block at " +
                                              std::string(100, 'R') + "&lt;b&gt;&amp;S</qt>");
  Press("preview");
  EXPECT_EQ(window->minimumSizeHint().width(), least);
  window->resize(9000, window->height());
  EXPECT_EQ(line.toolTip(), QString()) << "there is room for it";
  EXPECT_GE(line.y(), Find<QWidget>("tstPrint").mapTo(window.get(), Find<QWidget>("tstPrint").rect().bottomLeft()).y());
}

TEST_F(SettingsWindowTest, StepsAreTakenBackByKeysAndButtons) {
  Open();
  const auto state = [this] {
    QString state = Find<QLineEdit>("txtGenPrnTitle").text() + u' ' + window->focusWidget()->objectName();
    for (const char* const name : {"undo", "redo", "revert"}) {
      if (Find<QPushButton>(name).isEnabled()) state += u' ' + Find<QPushButton>(name).toolTip();
    }
    return state.toStdString();
  };
  const auto key = [this](int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(window->focusWidget(), static_cast<Qt::Key>(key), modifiers);
  };
  Find<QLineEdit>("txtGenMarginTop").setFocus();
  QTest::keyClicks(&Find<QLineEdit>("txtGenMarginTop"), QStringLiteral("1"));
  Find<QLineEdit>("txtGenPrnTitle").setFocus();
  Type("!?");
  const std::string revert = " Goes back to what was opened or saved last";
  EXPECT_EQ(state(), "Orders by region!? txtGenPrnTitle Undo: Print title (Ctrl+Z)" + revert);
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(state(), "Orders by region txtGenPrnTitle Undo: Top (Ctrl+Z) Redo: Print title (Ctrl+Shift+Z)" + revert);
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(state(), "Orders by region txtGenMarginTop Redo: Top (Ctrl+Shift+Z)");
  key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(state(), "Orders by region!? txtGenPrnTitle Undo: Print title (Ctrl+Z)" + revert);

  // Whoever presses the button goes on with it, as long as it can be pressed.
  Find<QPushButton>("undo").setFocus();
  key(Qt::Key_Space, Qt::NoModifier);
  EXPECT_EQ(state(), "Orders by region undo Undo: Top (Ctrl+Z) Redo: Print title (Ctrl+Shift+Z)" + revert);
  key(Qt::Key_Space, Qt::NoModifier);
  EXPECT_EQ(state(), "Orders by region txtGenMarginTop Redo: Top (Ctrl+Shift+Z)");
  Press("redo");
  Press("redo");
  EXPECT_EQ(state(), "Orders by region!? txtGenPrnTitle Undo: Print title (Ctrl+Z)" + revert);
  Press("revert");
  EXPECT_EQ(state(), "Orders by region txtGenPrnTitle Undo: Revert (Ctrl+Z)");
  EXPECT_EQ(State(), "open");
  Press("undo");
  window->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)->setFocus();
  Press(QDialogButtonBox::Apply);
  EXPECT_EQ(state(), "Orders by region!? txtGenPrnTitle Undo: Print title (Ctrl+Z) Redo: Revert (Ctrl+Shift+Z)");
}

TEST_F(SettingsWindowTest, AnEntryIsFoundByAnyPartOfItsTextAndMovedByButtons) {
  before = ReadFile(PRNPROP_EXAMPLES "/sales.json");
  SaveFile(file, before);
  Open();
  const auto key = [this](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window->focusWidget(), static_cast<Qt::Key>(key), modifiers);
  };
  Dialog& dialog = settings->Control().GetDialog();
  const auto state = [&] {
    QString state = window->focusWidget()->objectName();
    if (dialog.TabStrip().Tab() == kCharTab) {
      auto& print = dialog.Get<ListBox>(u"lstPrint", kCharTab);
      state += u' ' + QString::number(print.ListIndex());
      if (print.ListIndex() >= 0) state += u' ' + qt::ToQString(print.List(print.ListIndex()));
    }
    if (Find<QLabel>("found").isVisible()) state += u' ' + Find<QLabel>("found").text();
    for (const char* const name : {"up", "down"}) {
      if (Find<QPushButton>(name).isEnabled()) state += u' ' + QLatin1String(name);
    }
    return state.toStdString();
  };
  key(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(state(), "find No list on this page");
  key(Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible()) << "Escape closes the field alone";
  window->findChild<QTabBar*>()->setCurrentIndex(kCharTab);
  EXPECT_EQ(state(), " -1 down") << "the first of those that are printed is selected";
  Find<QListView>("lstPrint(1)").setFocus(Qt::MouseFocusReason);
  Find<QLineEdit>("txtCharColTitle").setFocus();
  key(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(window->focusWidget(), QStringLiteral("CUS"));
  EXPECT_EQ(state(), "find 3 Customer group up down");
  const auto hasMark = [&] {
    const QWidget& list = *Find<QListView>("lstPrint(1)").viewport();
    return const_cast<QWidget&>(list).grab(QRect(1, 3 * 13, 20, 14)).toImage();
  };
  const QImage marked = hasMark();
  key(Qt::Key_Return);
  EXPECT_NE(hasMark(), marked) << "the caret is seen";
  EXPECT_EQ(state(), "find 4 Customer up down");
  key(Qt::Key_F3);
  EXPECT_EQ(state(), "find 3 Customer group up down") << "round and round";
  QTest::keyClicks(window->focusWidget(), QStringLiteral("x"));
  EXPECT_EQ(state(), "find 3 Customer group Not found in: Print characteristics up down");
  key(Qt::Key_A, Qt::ControlModifier);
  key(Qt::Key_Delete);
  key(Qt::Key_F3);
  EXPECT_EQ(state(), "find 3 Customer group up down");
  const QImage found = hasMark();
  key(Qt::Key_Escape);
  EXPECT_EQ(state(), "lstPrint(1) 3 Customer group up down");
  Find<QLineEdit>("txtCharColTitle").setFocus();
  EXPECT_NE(hasMark(), found) << "the list has the focus no more, nor is it searched";
  key(Qt::Key_F3);
  EXPECT_EQ(state(), "find 3 Customer group up down");
  QTest::keyClicks(window->focusWidget(), QStringLiteral("x"));
  key(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(window->focusWidget(), QStringLiteral("CUS"));
  EXPECT_EQ(state(), "find 3 Customer group up down") << "it opens for another text";
  key(Qt::Key_Escape);

  for (int i = 0; i < 2; ++i) Press("up");
  EXPECT_EQ(state(), "lstPrint(1) 1 Customer group up down");
  Find<QPushButton>("up").setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(state(), "lstPrint(1) 0 Customer group down") << "whoever can go no further goes on in the list";
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(state(), "lstPrint(1) 1 Customer group up down");
  key(Qt::Key_End);
  EXPECT_EQ(state(), "lstPrint(1) 9 Currency up");
  Open({.readOnly = true});
  window->findChild<QTabBar*>()->setCurrentIndex(kCharTab);
  EXPECT_FALSE(Find<QPushButton>("down").isEnabled());
  answers.push_back([](QDialog& dialog) {
    EXPECT_NE(dialog.findChild<QTextEdit*>()->toPlainText().indexOf(QStringLiteral("Ctrl+F")), -1);
    dialog.reject();
  });
  key(Qt::Key_F1);
}

TEST_F(SettingsWindowTest, TheTabKeyGoesRoundTheWholeWindow) {
  Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window->findChild<QTabWidget*>(); }));
  const auto behindTheDialog = [this] {
    const QStringList round = Round(Qt::Key_Tab);
    QStringList back = Round(Qt::Key_Backtab);
    std::reverse(back.begin() + 1, back.end());
    EXPECT_EQ(back, round);
    return round.mid(round.indexOf(QStringLiteral("cmdPrintLayout(3)"))).join(u' ').toStdString();
  };
  EXPECT_EQ(behindTheDialog(),
            "cmdPrintLayout(3) refresh qt_tabwidget_tabbar sketch smaller zoom larger follow pdf print file preview OK "
            "Cancel QTabBar");
  Press("preview");
  EXPECT_EQ(behindTheDialog(), "cmdPrintLayout(3) file preview OK Cancel QTabBar");
}

TEST_F(SettingsWindowTest, ThePageFollowsByChoiceWhenTheUserPauses) {
  OpenWithPage();
  const auto isOlder = [&] { return State().find("older") != std::string::npos; };
  const auto staysOlder = [&] {
    QTest::qWait(900);
    return isOlder();
  };
  const auto follows = [&] { return QTest::qWaitFor([&] { return !isOlder(); }); };
  Type("!");
  EXPECT_TRUE(staysOlder()) << "nobody has asked for it";
  QTest::mouseClick(&Find<QCheckBox>("follow"), Qt::LeftButton, {}, {8, 8});
  EXPECT_TRUE(follows());
  Type("!");
  Press("preview");
  EXPECT_TRUE(staysOlder()) << "nobody sees it";
  Press("preview");
  EXPECT_TRUE(follows());

  QWindow& handle = *window->windowHandle();
  auto& title = Find<QLineEdit>("txtGenPrnTitle");
  const QPoint inside = title.mapTo(window.get(), title.rect().center());
  Type("!");
  QTest::mousePress(&handle, Qt::LeftButton, {}, inside);
  EXPECT_TRUE(staysOlder()) << "a button of the mouse is held";
  QTest::mouseRelease(&handle, Qt::LeftButton, {}, inside);
  EXPECT_TRUE(follows());
  Type("!");
  Find<QComboBox>("cmbGenPrnDirection").showPopup();
  EXPECT_TRUE(staysOlder()) << "a list is open";
  Find<QComboBox>("cmbGenPrnDirection").hidePopup();
  EXPECT_TRUE(follows());
  for (int i = 0; i < 9; ++i) {
    QTest::keyClick(&title, Qt::Key_X);
    QTest::qWait(100);
  }
  EXPECT_TRUE(isOlder()) << "there was no pause";

  OpenWithPage();
  Type("!");
  EXPECT_TRUE(follows()) << "the choice is remembered";
}

TEST_F(SettingsWindowTest, ThePageIsSeenInEverySizeAndToldInWords) {
  OpenWithPage();
  const auto sketch = [&]() -> QWidget& { return Find<QWidget>("sketch"); };
  sketch().setFocus();
  const auto size = [&] {
    std::string text = Find<QComboBox>("zoom").currentText().toStdString();
    if (sketch().width() > sketch().parentWidget()->width()) text += " wide";
    if (!Find<QPushButton>("smaller").isEnabled()) text += " least";
    if (!Find<QPushButton>("larger").isEnabled()) text += " most";
    return text;
  };
  const auto wheel = [&](int angle) {
    QWheelEvent event({}, sketch().mapToGlobal(QPointF()), {}, {0, angle}, Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(sketch().parentWidget(), &event);
  };
  const auto key = [&](Qt::Key key) { return [&, key] { QTest::keyClick(&sketch(), key, Qt::ControlModifier); }; };
  EXPECT_EQ(size(), "Fit width");
  const std::pair<std::function<void()>, std::string> steps[] = {
      {key(Qt::Key_Plus), "100 % wide"},        {key(Qt::Key_Equal), "125 % wide"},
      {[&] { Press("larger"); }, "150 % wide"}, {[&] { wheel(240); }, "200 % wide most"},
      {key(Qt::Key_Plus), "200 % wide most"},   {[&] { wheel(-60); }, "200 % wide most"},
      {[&] { wheel(-60); }, "150 % wide"},      {key(Qt::Key_0), "Fit width"},
      {key(Qt::Key_Minus), "75 % wide"},        {[&] { Press("smaller"); }, "50 % least"},
      {key(Qt::Key_Minus), "50 % least"},       {key(Qt::Key_Plus), "75 % wide"},
  };
  for (const auto& [step, expected] : steps) {
    step();
    EXPECT_EQ(size(), expected);
  }
  Find<QComboBox>("zoom").setCurrentIndex(6);
  sketch().setFocus();
  const QPoint before = sketch().pos();
  for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(&sketch(), arrow);
  EXPECT_TRUE(sketch().x() < before.x() && sketch().y() < before.y()) << "the arrow keys scroll";

  Type("!");
  Press("refresh");
  const QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&sketch());
  EXPECT_EQ(spoken.role(), QAccessible::Graphic);
  EXPECT_EQ(spoken.text(QAccessible::Name), QStringLiteral("Sketch of the printed page"));
  EXPECT_EQ(spoken.text(QAccessible::Description).toStdString(), WordsOf(settings->Now()));
  EXPECT_NE(WordsOf(settings->Now()).find("Orders by region!\n"), std::string::npos);

  OpenWithPage();
  EXPECT_EQ(size(), "200 % wide most");
  Remember(QStringLiteral("page/zoom"), QStringLiteral("huge"));
  OpenWithPage();
  EXPECT_EQ(size(), "Fit width");
}

TEST_F(SettingsWindowTest, ThePageGoesToAFileOrAPrinterOrTheUserIsTold) {
  qputenv("CUPS_SERVER", "/nowhere");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const auto pick = [this](const char* name) {
    answers.push_back([this, name](QDialog& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      EXPECT_EQ(files.selectedFiles().front().toStdString(), Path("a.pdf"));
      files.setOption(QFileDialog::DontConfirmOverwrite);
      files.selectFile(QLatin1String(name));
      dialog.accept();
    });
  };
  OpenWithPage();
  Type("!");
  pick("a");
  Press("pdf");
  EXPECT_EQ(State(), "open modified apply") << "the page is that of the settings as they are";
  EXPECT_EQ(SheetsIn(ReadFile(Path("a.pdf"))), "1 across");
  settings->SetLayout({.buttonId = 0}, u"top");
  settings->SetLayout({.buttonId = 1}, u"head");
  settings->SetLayout({.buttonId = 3}, u"end");
  pick("three.pdf");
  Press("pdf");
  EXPECT_EQ(SheetsIn(ReadFile(Path("three.pdf"))), "3 across");

  const auto isTold = [this](const std::string& words) {
    answers.push_back([words](QDialog& dialog) {
      const auto& box = dynamic_cast<QMessageBox&>(dialog);
      EXPECT_EQ(box.text().toStdString(), words);
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      dialog.accept();
    });
  };
  ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), folder.filePath(QStringLiteral("full.pdf"))));
  pick("full.pdf");
  isTold("The page could not be saved.\n" + Path("full.pdf") + ": No space left on device");
  Press("pdf");
  isTold("There is no printer.\nThe page can be saved as a PDF file.");
  Press("print");
}

TEST_F(SettingsWindowTest, AllThatIsReadOrHeardIsInTheUsersLanguage) {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  qputenv("CUPS_SERVER", "/nowhere");
  const QStringList english = AllWords();
  std::optional<Translation> translation("de");
  const QStringList german = AllWords();
  translation.reset();
  EXPECT_EQ(ProgramName(), "Print settings") << "it ends with the translation";
  EXPECT_EQ(views::CurrentLanguage().code, "en");
  QStringList same;
  for (const QString& word : german) {
    const bool isWord = std::any_of(word.begin(), word.end(), [](QChar c) { return c.isLetter(); });
    if (isWord && english.contains(word) && !same.contains(word)) same.append(word);
  }
  EXPECT_EQ(same.join(u'|').toStdString(),
            "F5|F1|general|dimension *|member|attribute|dimension|&1 a.json|OK|Layout: Head part|"
            "general *|General|PDF (*.pdf)");
  for (const std::string& told : {
           std::string("a.json[*] - Druckeinstellungen"),
           std::string("Abbrechen"),
           std::string("Wiederherstellen (Strg+Umschalt+Z)"),
           std::string("Rückgängig: Top (Strg+Z)"),
           std::string("In der Datei: Orders by region"),
           std::string(
               "Region steht jetzt auf Platz 2 von 2. Reihenfolge geändert: New page: <None>, New block: Customer"),
           std::string("Top 1032768 ist keine Zahl bis 32767: 10 bleibt"),
           std::string("• dimension, Zeile 1, Spalte COLOR: diese Spalte wird nicht geschrieben"),
           std::string("  Print title: 'Orders by region' ist jetzt 'Orders by region!'"),
           "Beim Speichern würde der jetzige Inhalt von " + file + " ersetzt.",
       }) {
    EXPECT_TRUE(german.contains(QString::fromStdString(told))) << told;
  }
}

TEST(PagePrinting, PutsAllOfThePageOnSheetsAndDividesNoPartWithoutNeed) {
  struct {
    const char* page;
    std::size_t head, foot, notes, end, columns;  // how many lines there are of each
    const char* sheets;
  } const rows[] = {
      {"all fits", 20, 20, 0, 0, 0, "1"},
      {"each part fits", 40, 40, 40, 0, 0, "3"},
      {"one part is larger than a sheet", 150, 0, 0, 0, 0, "3"},
      {"a sheet of its own", 20, 0, 0, 1, 0, "2"},
      {"columns beside each other", 0, 0, 0, 0, 2, "1"},
      {"columns for which the paper is turned", 0, 0, 0, 0, 3, "1 across"},
      {"columns that go on below", 0, 0, 0, 0, 9, "1 across"},
      {"columns that go on on a further sheet", 0, 0, 0, 0, 59, "2 across"},
  };
  for (const auto& row : rows) {
    PageSketch sketch;
    sketch.layouts[kHeadPart].resize(row.head, u"head");
    sketch.layouts[kFootPart].resize(row.foot, u"foot");
    sketch.layouts[kEndPage].resize(row.end, u"end");
    sketch.notes.resize(row.notes, u"note");
    sketch.columns.resize(row.columns, {.title = u"title", .width = 40});
    if (row.columns > 0) sketch.lines = {{.cells = std::vector<Text>(row.columns, u"cell")}};
    const QByteArray pdf = PdfOf(sketch, QFont(QStringLiteral("DejaVu Sans"), 8));
    EXPECT_EQ(SheetsIn(pdf.toStdString()), row.sheets) << row.page;
  }
}

}  // namespace
}  // namespace ORXKMPrintProp::host::test
