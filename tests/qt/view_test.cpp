#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
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
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "host/Drive.h"
#include "host/SettingsDocument.h"
#include "host/WidgetState.h"
#include "support/loaded.h"
#include "support/widget_text.h"
#include "tables/RunTimeError.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt::test {
namespace {

using namespace ORXKMPrintProp::test;
using Json = nlohmann::ordered_json;

/// Puts what is seen of a widget in the place of what it holds.
void See(const QWidget& glass, Json& state) {
  state["visible"] = !glass.isHidden();
  state["enabled"] = glass.isEnabled();
  const auto* const list = qobject_cast<const QListView*>(&glass);
  const auto* const combo = qobject_cast<const QComboBox*>(&glass);
  if (list || combo) {
    const QAbstractItemModel& model = list ? *list->model() : *combo->model();
    state["items"] = Json::array();
    for (int row = 0; row < model.rowCount(); ++row) {
      const QModelIndex entry = model.index(row, 0);
      Json item{{"text", entry.data().toString().toStdString()}};
      if (list) item["selected"] = list->selectionModel()->isSelected(entry);
      state["items"].push_back(item);
    }
    state["listIndex"] = list ? list->currentIndex().row() : combo->currentIndex();
  }
  if (const auto* edit = qobject_cast<const QLineEdit*>(&glass)) state["text"] = edit->text().toStdString();
  if (const auto* check = qobject_cast<const QCheckBox*>(&glass)) state["value"] = check->isChecked() ? 1 : 0;
  if (state.contains("tab")) state["tab"] = glass.findChild<const QTabBar*>()->currentIndex();
}

std::string HeldBy(const Widget& widget) {
  if (const auto* list = dynamic_cast<const ListBox*>(&widget)) return StateOf(*list);
  if (const auto* combo = dynamic_cast<const ComboBox*>(&widget)) return StateOf(*combo);
  if (const auto* box = dynamic_cast<const TextBox*>(&widget)) return ToQString(box->GetText()).toStdString();
  if (const auto* check = dynamic_cast<const CheckBox*>(&widget)) return std::to_string(check->Value());
  if (const auto* tabs = dynamic_cast<const SSTab*>(&widget)) return std::to_string(tabs->Tab());
  return "";
}

QPoint PointOf(const QListView& list, int entry) {
  if (entry < 0) return {20, -30};
  if (entry >= list.model()->rowCount()) return {20, list.viewport()->height() + 30};
  return list.visualRect(list.model()->index(entry, 0)).center();
}

/// A control with a view on the screen, and a hand on the view.
class ViewTest : public testing::Test, private ORXQueryPrnPropEvents {
 protected:
  ViewTest() : control((gPrnProp.reset(), gTextTable.reset(), gDefaultFontName.clear(), platform)), view(dialog) {
    control.Connect(*this);
    QObject::connect(&view, &PrnPropView::failed,
                     [this](const QString& why) { heard += " failed: " + why.toStdString(); });
    view.show();
    QApplication::setActiveWindow(&view);
    static_cast<void>(QTest::qWaitForWindowExposed(&view));
  }

  /// Loads characteristics of these names, with - ahead those that are not printed, and brings a page on top.
  void Load(const std::string& names, std::int16_t tab = 1) {
    std::string rows;
    int position = 0;
    std::istringstream words(names);
    for (std::string word; words >> word;) {
      const std::string name = word.substr(word.front() == '-' ? 1 : 0);
      rows += "IOBJNM='" + name + "' IOBJTXT='" + name + "' POSIT=" + std::to_string(++position);
      rows += name == word ? " AXIS='Y'\n" : "\n";
    }
    ASSERT_TRUE(Settings(rows).LoadInto(control));
    dialog.TabStrip().Tab(tab);
    QApplication::processEvents();
  }

  /// Does by events what a line says in the words of `prnprop drive`, where `click` and `drag` may end with "right" or
  /// "middle", or in one of these:
  ///   down, move, up, double LIST ENTRY   a part of a drag; the last is a second click
  ///   key WIDGET KEYS                     such as Alt+Up
  /// An entry below 0 is above the list, one behind the last is below it.
  void Do(const std::string& line);

  struct Step {
    const char* actions;  ///< separated by "; ", without the widget
    const char* state;    ///< of the widget, and behind it what the host heard
  };
  /// The view must show what the widgets hold after each step.
  void Play(const std::string& widget, std::initializer_list<Step> steps);

  /// The Qt widget of that name, `lstPrint(1)`.
  template <class QtWidget = QWidget>
  QtWidget& Glass(const std::string& name) {
    auto* const found = view.findChild<QtWidget*>(QString::fromStdString(name));
    if (!found) throw std::runtime_error("no widget " + name);
    return *found;
  }

  QtPlatform platform;
  ORXQueryPrnProp control;
  Dialog& dialog = control.GetDialog();
  PrnPropView view;
  std::string heard;
  Qt::MouseButtons held;

 private:
  void ORXPrintLayoutGet(std::int16_t button, const Text& characteristic) override {
    heard += " layout " + std::to_string(button) + ToAscii(characteristic);
  }
  void ORXOrderChanged() override { heard += " order"; }
};

void ViewTest::Do(const std::string& line) {
  std::istringstream words(line);
  std::string action, name, rest;
  words >> action >> name;
  std::getline(words >> std::ws, rest);
  const QString text = QString::fromStdString(rest);
  std::vector<int> entries;
  std::istringstream numbers(rest);
  for (int entry; numbers >> entry;) entries.push_back(entry);
  QWidget& glass = action == "tab" ? view : Glass(name);

  if (action == "tab") {
    auto& tabs = *view.findChild<QTabBar*>();
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(std::stoi(name)).center());
  } else if (action == "key") {
    QTest::keySequence(&glass, QKeySequence(text));
  } else if (action == "keys") {
    QTest::keyClick(&glass, Qt::Key_End);
    QTest::keyClicks(&glass, text);
  } else if (action == "toggle" || action == "press") {
    QTest::mouseClick(&glass, Qt::LeftButton, {}, {8, glass.height() / 2});
  } else if (action == "pick") {
    auto& combo = dynamic_cast<QComboBox&>(glass);
    QTest::keyClick(&combo, Qt::Key_F4);
    if (!combo.view()->isVisible()) return;
    const QRect entry = combo.view()->visualRect(combo.model()->index(entries[0], 0));
    QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, entry.center());
  } else {
    auto& list = dynamic_cast<QListView&>(glass);
    const auto button = action == "rclick" || rest.ends_with("right") ? Qt::RightButton
                        : rest.ends_with("middle")                    ? Qt::MiddleButton
                                                                      : Qt::LeftButton;
    const auto send = [&](QEvent::Type type, int entry, Qt::MouseButton cause) {
      const QPoint at = PointOf(list, entry);
      held.setFlag(cause, type != QEvent::MouseButtonRelease);
      QMouseEvent event(type, at, list.viewport()->mapToGlobal(at), cause, held, {});
      QApplication::sendEvent(list.viewport(), &event);
    };
    const auto press = action == "double" ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress;
    if (action != "move" && action != "up") send(press, entries[0], button);
    for (std::size_t i = action == "move" ? 0 : 1; i < entries.size(); ++i) {
      send(QEvent::MouseMove, entries[i], Qt::NoButton);
    }
    if (action != "move" && action != "down") send(QEvent::MouseButtonRelease, entries.back(), button);
  }
}

void ViewTest::Play(const std::string& widget, std::initializer_list<Step> steps) {
  const Widget& played = *dialog.FindSpelled(Wide(widget));
  for (const Step& step : steps) {
    heard.clear();
    std::istringstream actions(step.actions);
    for (std::string action; std::getline(actions >> std::ws, action, ';');) {
      Do(action.insert(std::min(action.find(' '), action.size()), " " + widget));
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    EXPECT_EQ(HeldBy(played) + heard, step.state) << widget << ": " << step.actions;
    for (const auto& each : dialog.Controls()) {
      Json state = host::StateOf(*each);
      state["enabled"] = each->Enabled();
      if (state.contains("items")) {
        for (Json& item : state["items"]) item.erase("data");
      }
      Json seen = state;
      See(Glass(ToAscii(each->Row().name.Spelled())), seen);
      EXPECT_EQ(seen, state) << step.actions;
    }
  }
}

/// The state of a widget as a line. The typeface is the view's, and not what this is about.
std::string Line(Json state) {
  state.erase("font");
  return host::ToLine(state) + "\n";
}

TEST_F(ViewTest, AHandDoesWhatTheScriptDoes) {
  host::DriveOptions options;
  options.settings = PRNPROP_EXAMPLES "/sales.json";
  options.script = PRNPROP_SCRIPT;
  const auto document = host::ReadSettings(options.settings);
  control.ORXSetPrnTables(document.general, document.dimension, document.member, document.attribute);
  std::ifstream script(options.script);
  for (std::string line; std::getline(script, line);) {
    if (line[0] != '#' && line != "state") Do(line);
  }
  std::string byHand;
  for (const auto& widget : dialog.Controls()) byHand += Line(host::StateOf(*widget));

  std::stringstream out, err;
  EXPECT_EQ(host::Drive(options, out, err), 0) << err.str();
  std::string byScript;
  for (std::string line; std::getline(out, line);) {
    const auto state = Json::parse(line);
    EXPECT_FALSE(state.contains("refused")) << line;
    if (state.contains("widget") && state["widget"] != "ORXQueryPrnProp") byScript += Line(state);
  }
  EXPECT_EQ(byHand, byScript);
  Play("tstPrint", {{"", "0"}});
}

TEST_F(ViewTest, TheMouseDragsAndToggles) {
  Load("a b c");
  Play("lstPrint(1)", {{"click 2", "*a:1 b:2 >*c:3"},
                       {"click 0", ">a:1 b:2 *c:3"},
                       {"click 1", "a:1 >*b:2 *c:3"},
                       {"double 1", "a:1 >b:2 *c:3"},
                       {"click 0 right", ">a:1 b:2 *c:3"},
                       {"click 1 middle", ">a:1 b:2 *c:3"},
                       {"drag 3 1", ">a:1 b:2 *c:3"},
                       {"down 0", ">*a:1 b:2 *c:3"},
                       {"drag 1 2 right", ">*a:1 b:2 *c:3"}});
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
  Play("lstPrint(1)", {{"move 1", "b:2 >*a:1 *c:3"}});
  EXPECT_EQ(view.cursor().hotSpot(), QPoint(16, 8));
  Play("lstPrint(1)", {{"move 2", "b:2 c:3 >*a:1"}, {"up 2", "b:2 c:3 >*a:1 order"}});
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ViewTest, EverythingInAListGoesByKeyboard) {
  Load("a b c d");
  Glass("lstPrint(1)").setFocus();
  Play("lstPrint(1)", {{"key Down", ">*a:1 b:2 c:3 d:4"},
                       {"key Down", "*a:1 >b:2 c:3 d:4"},
                       {"key Space", "*a:1 >*b:2 c:3 d:4"},
                       {"key End", "*a:1 *b:2 c:3 >d:4"},
                       {"key Alt+Up", "*a:1 *b:2 >*d:4 c:3 order"},
                       {"key Home", ">*a:1 *b:2 *d:4 c:3"},
                       {"key Alt+Up", ">*a:1 *b:2 *d:4 c:3"},
                       {"key Alt+Down", "b:2 >*a:1 *d:4 c:3 order"},
                       {"key Space", "b:2 >a:1 *d:4 c:3"},
                       {"key PgDown", "b:2 a:1 *d:4 >c:3"},
                       {"key PgUp", ">b:2 a:1 *d:4 c:3"},
                       {"key D", "b:2 a:1 >*d:4 c:3"}});
}

TEST_F(ViewTest, ADragBelowTheListScrollsToItsEnd) {
  std::string words;
  for (char first = 'a'; first <= 'z'; ++first) words += std::string(" ") + first;
  Load(words);
  const auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  const QScrollBar& bar = *Glass<QListView>("lstPrint(1)").verticalScrollBar();
  ASSERT_GT(bar.maximum(), 5);
  Do("down lstPrint(1) 1");
  Do("move lstPrint(1) 99");
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.ListIndex() == 25 && bar.value() == bar.maximum(); }));
  EXPECT_EQ(list.List(25), u"b");
  Do("move lstPrint(1) -1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.ListIndex() == 0; }));
  Do("up lstPrint(1) -1");
  const std::string before = StateOf(list);
  EXPECT_EQ(before.substr(0, 16), ">*b:2 a:1 c:3 d:");
  QTest::qWait(200);
  EXPECT_EQ(StateOf(list), before) << "scrolling ends with the drag";
  Do("key lstPrint(1) End");
  EXPECT_EQ(bar.value(), bar.maximum()) << "the caret is scrolled to";
}

TEST_F(ViewTest, AFailureInADragIsReportedAndTheListGoesOn) {
  Load("a b c");
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  const auto moved = std::exchange(
      list.MouseMove, [](std::int16_t) { throw RunTimeError(ErrorKind::Table, u"The order can't be k\u00e9pt."); });
  Play("lstPrint(1)", {{"down 0; move 2", "a:1 b:2 >c:3 failed: The order can't be k\u00e9pt."}});
  list.MouseMove = moved;
  Play("lstPrint(1)", {{"move 1; up 1", "b:2 >*a:1 c:3 order"}});
}

TEST_F(ViewTest, AHandlerMayEmptyRefillAndDisableTheListInADrag) {
  Load("a b c");
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  int released = 0;
  list.MouseMove = [&](std::int16_t) {
    list.Clear();
    Fill(list, "x y");
    list.Enabled(false);
  };
  list.MouseUp = [&](std::int16_t) { ++released; };
  Play("lstPrint(1)", {{"down 0; move 2", "x y"}});
  EXPECT_TRUE(QTest::qWaitFor([&] { return released == 1; })) << "what has begun also ends";
  Play("lstPrint(1)", {{"up 0", "x y"}});
  EXPECT_EQ(released, 1);
}

TEST_F(ViewTest, KeysPassTheFilterAndWhatIsPastedGoesPastIt) {
  Load("a", 0);
  QWidget& field = Glass("txtGenMaxPages");
  auto& box = dialog.Get<TextBox>(u"txtGenMaxPages");
  QApplication::clipboard()->setText(QStringLiteral("a1"));
  Play("txtGenMaxPages", {{"key Ctrl+A; key Del; keys 1a2 b3", "123"},
                          {"key Home; key Num+9; key X", "9123"},
                          {"key Right; key Backspace", "923"},
                          {"key Del", "93"},
                          {"key Ctrl+Z", "923"},
                          {"key Ctrl+A; key 5", "5"},
                          {"key Ctrl+V; key Home", "5a1"}});
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("4x2"));
  QApplication::sendEvent(&field, &commit);
  QMimeData dropped;
  dropped.setText(QStringLiteral("-z"));
  const QPoint end(field.width() - 3, field.height() / 2);
  QDragEnterEvent enter(end, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(&field, &enter);
  QDropEvent drop(end, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(&field, &drop);
  box.KeyPress = [](std::int16_t& key) { key = key == TextBox::kBackspace ? 0 : key == u'a' ? u'B' : key; };
  Play("txtGenMaxPages", {{"", "425a1-z"}, {"keys a; key Backspace", "425a1-zB"}});

  auto& title = dialog.Get<TextBox>(u"txtGenPrnTitle");
  const Text text = Text(40000, u'x') + u"&\u00fc\U0001F600";
  title.SetText(text);
  Do("key txtGenPrnTitle Home");
  QTest::keyClicks(&Glass("txtGenPrnTitle"), QStringLiteral("<b>"));
  EXPECT_EQ(title.GetText(), u"<b>" + text) << "there is no limit, and no markup";
}

TEST_F(ViewTest, ACheckBoxShowsWhatItsHandlerLeaves) {
  auto& check = dialog.Get<CheckBox>(u"chkGenUseColors");
  Play("chkGenUseColors", {{"toggle", "1"}});
  check.Click = [&] {
    if (check.Value() == 0) check.Value(1);
  };
  Play("chkGenUseColors", {{"key Space", "1"}});
  check.Click = [] { throw std::runtime_error("refused by the host"); };
  Play("chkGenUseColors", {{"key Space", "0 failed: refused by the host"}});
  check.Click = [] { throw 5; };
  Play("chkGenUseColors", {{"key Space", "1 failed: A handler failed without telling why."}});
  check.Click = {};
  QObject::connect(&view, &PrnPropView::used, [] { throw std::runtime_error("nor a slot"); });
  Play("chkGenUseColors", {{"key Space", "0 failed: nor a slot"}});
}

TEST_F(ViewTest, AnAssistiveProgramActsAsTheUser) {
  Load("a b c");
  const auto toggle = [](QAccessibleInterface* widget) {
    ASSERT_TRUE(widget && widget->actionInterface());
    widget->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  };
  toggle(QAccessible::queryAccessibleInterface(&Glass("chkCharColAutoWidth")));
  Play("chkCharColAutoWidth", {{"", "1"}});
  auto* const list = QAccessible::queryAccessibleInterface(&Glass("lstPrint(1)"));
  toggle(list->child(2));
  Play("lstPrint(1)", {{"", "*a:1 b:2 >*c:3"}});
  toggle(list->child(0));
  Play("lstPrint(1)", {{"", ">a:1 b:2 *c:3"}});
  Glass<QListView>("lstPrint(1)").selectAll();
  Play("lstPrint(1)", {{"", ">*a:1 b:2 *c:3"}});
}

TEST_F(ViewTest, UndoStaysWithTheTextThatWasTyped) {
  Load("a b");
  Play("txtCharColTitle",
       {{"key Ctrl+A; key Del; keys Region", "Region"}, {"key Ctrl+Z", ""}, {"key Ctrl+Y", "Region"}});
  Play("txtCharColTitle", {{"key Ctrl+A; key Del", ""}});
  Play("lstPrint(1)", {{"click 0; click 1", "a:1 >*b:2"}});
  Play("txtCharColTitle", {{"key Ctrl+Z", ""}});
}

TEST_F(ViewTest, AViewMayGoWhileTheUserActs) {
  Load("a b c d e f g h i j -x -y");
  QPointer<PrnPropView> other = new PrnPropView(dialog);
  other->show();
  QTest::mouseClick(other->findChild<QListView*>(QStringLiteral("lstAvail(1)"))->viewport(), Qt::LeftButton, {},
                    {5, 5});
  QTimer::singleShot(0, [&] {
    EXPECT_TRUE(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
    other->deleteLater();
  });
  QTest::mouseClick(other->findChild<QPushButton*>(QStringLiteral("cmdLeftToRight(1)")), Qt::LeftButton);
  EXPECT_FALSE(other);

  other = new PrnPropView(dialog);
  other->show();
  auto* const list = other->findChild<QListView*>(QStringLiteral("lstPrint(1)"));
  QTest::mousePress(list->viewport(), Qt::LeftButton, {}, {5, 5});
  QTest::mouseMove(list->viewport(), {5, 20});
  EXPECT_EQ(dialog.MousePointer(), 99);
  delete other;
  EXPECT_EQ(dialog.MousePointer(), 0) << "what has begun also ends";
  EXPECT_EQ(StateOf(dialog.Get<ListBox>(u"lstPrint", 1)).substr(0, 12), "b:2 >*a:1 c:");
}

TEST_F(ViewTest, AnEntryOfAComboBoxIsPickedByMouseKeyboardAndWheel) {
  Load("a", 0);
  auto& combo = dialog.Get<ComboBox>(u"cmbGenSignPrsnt");
  combo.Click = [&] { heard += " click"; };
  Play("cmbGenSignPrsnt",
       {{"pick 1", "-X >X- (X) click"}, {"key Down", "-X X- >(X) click"}, {"key Up", "-X >X- (X) click"}});
  const auto turn = [&] {
    QWheelEvent wheel({10, 10}, {10, 10}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Glass("cmbGenSignPrsnt"), &wheel);
  };
  Glass("txtGenMaxPages").setFocus();
  turn();
  Play("cmbGenSignPrsnt", {{"", "-X >X- (X)"}});
  Glass("cmbGenSignPrsnt").setFocus();
  turn();
  Play("cmbGenSignPrsnt", {{"", "-X X- >(X)"}});
  Play("cmbGenSignPrsnt", {{"key Ctrl+PgDown", "-X X- >(X)"}});
  Do("tab 0");
  EXPECT_EQ(gPrnProp->SignPrsnt(), PP_PRN_SIGN_BRACES) << "the page that is left is stored";
  combo.Click = [] { throw std::runtime_error("refused"); };
  Play("cmbGenSignPrsnt", {{"key Up", "-X >X- (X) failed: refused"}});
  combo.Click = [&] { combo.Clear(); };
  Play("cmbGenSignPrsnt", {{"key Up", ""}});
}

TEST_F(ViewTest, ReadOnlyTakesNothingButLooksAndLayouts) {
  Load("a b c -x", 0);
  control.ORXSetReadOnly(true);
  Play("txtGenMaxPages", {{"keys 55", "0"}});
  Glass<QLineEdit>("txtGenMaxPages").setText(QStringLiteral("66"));
  Play("txtGenMaxPages", {{"", "0"}});
  Play("chkGenUseColors", {{"toggle; key Space", "0"}});
  Play("cmbGenSignPrsnt", {{"pick 1; key Down", ">-X X- (X)"}});
  Play("cmdPrintLayout(2)", {{"press", " layout 2"}});
  Play("cmdPrintLayout(0)", {{"key Space", " layout 0"}, {"key Return", " layout 0"}});
  Do("tab 1");
  Play("cmdPrintLayout(4)", {{"press", " layout 4a"}});
  Play("lstPrint(1)", {{"drag 0 2", "a:1 b:2 >c:3"}});
  Play("lstAvail(1)", {{"click 0; key Space", "x:4"}});
  Play("cmdLeftToRight(1)", {{"press", ""}});
}

TEST_F(ViewTest, ThePageOnTopIsPickedByMouseAndKeyboard) {
  Load("a b", 0);
  Do("keys txtGenPrnTitle yped");
  Do("tab 2");
  EXPECT_FALSE(Glass("txtGenPrnTitle").isVisible());
  EXPECT_TRUE(Glass("lstPrint(2)").isVisible());
  EXPECT_EQ(gPrnProp->Title(), u"Typed") << "the page that is left is stored";
  auto& tabs = *view.findChild<QTabBar*>();
  QTest::keySequence(&tabs, QKeySequence(Qt::Key_Left));
  Play("tstPrint", {{"", "1"}});
  Glass("lstPrint(1)").setFocus();
  Do("key lstPrint(1) Ctrl+Num+PgUp");
  EXPECT_EQ(QApplication::focusWidget(), &tabs) << "the focus stays in the dialog";
  Play("tstPrint", {{"", "0"}, {"key Ctrl+Shift+Backtab", "3"}});
}

TEST_F(ViewTest, TheTabKeyGoesFromWidgetToWidgetInTheirOrder) {
  Load("a b -x");
  Glass("lstAvail(1)").setFocus();
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
  Load("a b c d e f g h i j -x -y");
  Do("click lstAvail(1) 1");
  QTimer::singleShot(0, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    heard += " " + (box->windowTitle() + QStringLiteral(": ") + box->text()).toStdString();
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
  });
  Play("cmdLeftToRight(1)", {{"press", " Error: You may only use up to ten print characteristics"}});
  Play("lstAvail(1)", {{"", "x:11 >*y:12"}});
  EXPECT_EQ(dialog.Get<ListBox>(u"lstPrint", 1).ListCount(), 10);
}

TEST_F(ViewTest, EntriesSortInTheOrderOfTheUsersLanguage) {
  Load("b A c B");
  Play("lstPrint(1)", {{"click 1; click 2; click 3", "*b:1 *A:2 *c:3 >*B:4"}});
  Do("press cmdRightToLeft(1)");
  Play("lstAvail(1)", {{"", "A:2 B:4 b:1 c:3"}});
}

TEST_F(ViewTest, ASecondViewShowsWhatTheControlHoldsAlready) {
  Load("a b -x");
  QApplication::setLayoutDirection(Qt::RightToLeft);
  const PrnPropView second(dialog);
  QApplication::setLayoutDirection(Qt::LeftToRight);
  const auto& shown = *second.findChild<QListView*>(QStringLiteral("lstPrint(1)"));
  EXPECT_EQ(shown.model()->rowCount(), 2);
  EXPECT_EQ(second.findChild<QTabBar*>()->currentIndex(), 1);
  EXPECT_EQ(second.size(), QSize(645, 396));
  EXPECT_EQ(shown.layoutDirection(), Qt::LeftToRight) << "the layout is not mirrored";
  dialog.Get<ListBox>(u"lstPrint", 1).AddItem(u"new");
  EXPECT_EQ(shown.model()->rowCount(), 3);
}

TEST_F(ViewTest, FieldsAreSpokenByTheLabelsAboutThem) {
  Load("a");
  dialog.Get<Label>(u"lblCharCol1").Caption(u"Key & more");
  const std::pair<const char*, const char*> names[] = {
      {"txtGenPrnTitle", "Print title"},
      {"lstAvail(3)", "Available structure elements"},
      {"cmbCharColAlign2", "Alignment, Column 2"},
      {"txtCharColWidth1", "Width, Key & more"},
      {"chkAttrColEachPage2", "On each page, Column 2"},
      {"chkGenUseColors", "Use Colors"},
      {"cmdPrintLayout(4)", "Totals row"},
      {"cmdLeftToRight(1)", "Transfer selected available characteristics to print characteristics"},
  };
  for (const auto& [widget, name] : names) EXPECT_EQ(Glass(widget).accessibleName().toStdString(), name) << widget;
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

TEST_F(ViewTest, EveryCaptionIsReadableInFull) {
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
      EXPECT_EQ(CaptionOf(Glass(ToAscii(widget->Row().name.Spelled()))), ToQString(widget->Caption()));
    }
    for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
      EXPECT_EQ(Unmarked(tabs.tabText(tab)), ToQString(dialog.TabStrip().TabCaption(tab)));
      EXPECT_EQ(tabs.tabRect(tab).width(), 641 / 5);
    }
  }
  const QFont font = Glass("txtGenPrnTitle").font();
  EXPECT_EQ(font.family(), QApplication::font().family());
  EXPECT_EQ(font.pointSizeF(), 8.25);
  EXPECT_EQ(font.weight(), QFont::Normal);
}

TEST_F(ViewTest, WhatDoesNotFitIsReadInTheTooltip) {
  auto& label = dialog.Get<Label>(u"lblGenMarginTop");
  const QWidget& shown = Glass("lblGenMarginTop");
  label.ToolTipText(u"of the page");
  label.Caption(u"A <b>caption</b> & much too long for its place on the page");
  EXPECT_TRUE(CaptionOf(shown).endsWith(QChar(0x2026))) << CaptionOf(shown).toStdString();
  EXPECT_EQ(shown.toolTip().toStdString(),
            "<p>A &lt;b&gt;caption&lt;/b&gt; &amp; much too long for its place on the page<br>\nof the page</p>")
      << "the caption is no markup";
  label.Caption(u"T&p");
  EXPECT_EQ(CaptionOf(shown), QStringLiteral("T&p"));
  EXPECT_EQ(shown.toolTip(), QStringLiteral("of the page"));

  auto& list = Glass<QListView>("lstPrint(1)");
  Load("a -x an_entry_that_is_much_too_long_for_its_list");
  for (const auto& [entry, tip] : {std::pair(0, list.toolTip()), {1, list.model()->index(1, 0).data().toString()}}) {
    const QPoint point = PointOf(list, entry);
    QHelpEvent help(QEvent::ToolTip, point, list.viewport()->mapToGlobal(point));
    QApplication::sendEvent(list.viewport(), &help);
    EXPECT_EQ(QToolTip::text(), tip);
  }

  auto& tabs = *view.findChild<QTabBar*>();
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) dialog.TabStrip().TabCaption(tab, Text(60, u'w'));
  EXPECT_EQ(tabs.tabToolTip(3).size(), 60);
  EXPECT_LE(tabs.tabRect(3).right(), tabs.width());
}

}  // namespace
}  // namespace ORXKMPrintProp::qt::test
