#include "qt_hand.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCursor>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <utility>

#include "host/Utf8.h"
#include "views/qt/QtPlatform.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt::test {
namespace {

class QtHand : public ORXKMPrintProp::test::Hand {
 public:
  QtHand(Dialog& dialog, std::function<void(const std::string& why)> failed)
      : dialog_(dialog), before_(&window_), view_(dialog, &window_), after_(&window_) {
    after_.move(view_.width(), 0);
    QObject::connect(&view_, &PrnPropView::failed,
                     [failed = std::move(failed)](const QString& why) { failed(why.toStdString()); });
    window_.show();
    QApplication::setActiveWindow(&window_);
    static_cast<void>(QTest::qWaitForWindowExposed(&window_));
  }

  void Use(Mouse mouse, const Widget& widget, int entry, Button button) override {
    static constexpr QEvent::Type kTypes[] = {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick, QEvent::MouseMove,
                                              QEvent::MouseButtonRelease};
    static constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    const auto cause = mouse == Mouse::Move ? Qt::NoButton : kButtons[static_cast<int>(button)];
    const auto& list = GlassOf<QListView>(widget);
    ScrollTo(list, entry);
    const QPoint at = PointOf(list, entry);
    held_.setFlag(cause, mouse != Mouse::Release);
    QMouseEvent event(kTypes[static_cast<int>(mouse)], at, list.viewport()->mapToGlobal(at), cause, held_, {});
    QApplication::sendEvent(list.viewport(), &event);
  }
  void Click(const Widget& widget) override {
    QWidget& glass = GlassOf(widget);
    QTest::mouseClick(&glass, Qt::LeftButton, {}, {8, glass.height() / 2});
  }
  void ClickTab(int tab) override { QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(tab).center()); }
  void PickEntry(const Widget& widget, int entry) override {
    auto& combo = GlassOf<QComboBox>(widget);
    QTest::keyClick(&combo, Qt::Key_F4);
    if (!combo.view()->isVisible()) return;
    ScrollTo(*combo.view(), entry);
    const QRect place = combo.view()->visualRect(combo.model()->index(entry, 0));
    QTest::mouseClick(combo.view()->viewport(), Qt::LeftButton, {}, place.center());
  }
  void Key(const Widget& widget, const std::string& key) override {
    QWidget& glass = widget.Row().kind == WidgetKind::SSTab ? Tabs() : GlassOf(widget);
    QTest::keySequence(&glass, QKeySequence(QString::fromStdString(key)));
  }
  void Type(const Widget& box, const std::string& text) override {
    QWidget& glass = GlassOf(box);
    QTest::keyClick(&glass, Qt::Key_End);
    for (const char32_t key : ToQString(host::FromUtf8(text)).toUcs4()) {
      if (key == TextBox::kBackspace) {
        QTest::keyClick(&glass, Qt::Key_Backspace);
      } else {
        QTest::sendKeyEvent(QTest::Click, &glass, static_cast<Qt::Key>(QChar::toUpper(key)),
                            QStringView(QChar::fromUcs4(key)).toString(), Qt::NoModifier);
      }
    }
  }
  void PutIntoClipboard(const std::string& text) override {
    QApplication::clipboard()->setText(ToQString(host::FromUtf8(text)));
  }
  void CloseMessage(std::function<void(const std::string& title, const std::string& text)> read) override {
    QTimer::singleShot(0, &view_, [read = std::move(read)] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      read(box->windowTitle().toStdString(), box->text().toStdString());
      QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
  }

  void Focus(const Widget& widget) override { GlassOf(widget).setFocus(); }
  const Widget* Focused() const override {
    const QWidget* const focused = view_.focusWidget();
    if (!focused || focused != QApplication::focusWidget()) return nullptr;
    return focused == &Tabs() ? &dialog_.TabStrip() : dialog_.FindSpelled(ToText(focused->objectName()));
  }

  void See(const Widget& widget, Json& state) const override {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    const QWidget& glass = GlassOf(widget);
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
    if (state.contains("tab")) state["tab"] = Tabs().currentIndex();
  }
  bool IsInSight(const Widget& widget, int entry) const override { return Contains(GlassOf<QListView>(widget), entry); }
  std::int16_t Pointer() const override {
    if (view_.cursor().shape() == Qt::ArrowCursor) return Dialog::kDefaultPointer;
    const bool isDrag = view_.cursor().hotSpot() == QPoint(MouseIcon().hotSpotX, MouseIcon().hotSpotY);
    return isDrag ? Dialog::kDragPointer : std::int16_t{-1};
  }
  bool WaitUntil(const std::function<bool()>& isSo) override { return QTest::qWaitFor(isSo); }
  void Settle() override {
    bool isLast = false;
    QTimer::singleShot(0, &view_, [&] { isLast = true; });
    while (!isLast) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

 private:
  template <class QtWidget = QWidget>
  QtWidget& GlassOf(const Widget& widget) const {
    return Glass<QtWidget>(view_, host::ToUtf8(widget.Row().name.Spelled()));
  }
  QTabBar& Tabs() const { return *view_.findChild<QTabBar*>(); }

  static bool Contains(const QAbstractItemView& list, int entry) {
    return list.viewport()->rect().contains(list.visualRect(list.model()->index(entry, 0)).center());
  }
  /// Turns the wheel until the entry is seen.
  static void ScrollTo(const QAbstractItemView& list, int entry) {
    constexpr int kNotch = 120;
    if (entry < 0 || entry >= list.model()->rowCount()) return;
    for (int notches = list.model()->rowCount(); !Contains(list, entry) && notches > 0; --notches) {
      const bool isAbove = list.visualRect(list.model()->index(entry, 0)).center().y() < 0;
      const QPoint at = list.viewport()->rect().center();
      QWheelEvent event(at, list.viewport()->mapToGlobal(at), {}, {0, isAbove ? kNotch : -kNotch}, {}, {},
                        Qt::NoScrollPhase, false);
      QApplication::sendEvent(list.viewport(), &event);
    }
  }
  static QPoint PointOf(const QListView& list, int entry) {
    if (entry < 0) return {20, -30};
    if (entry >= list.model()->rowCount()) return {20, list.viewport()->height() + 30};
    return list.visualRect(list.model()->index(entry, 0)).center();
  }
  Dialog& dialog_;
  QWidget window_;
  QPushButton before_;  ///< where the focus goes out of the dialog
  PrnPropView view_;
  QPushButton after_;
  Qt::MouseButtons held_;
};

}  // namespace
}  // namespace ORXKMPrintProp::qt::test

namespace ORXKMPrintProp::test {

std::unique_ptr<Hand> MakeHand(Dialog& dialog, std::function<void(const std::string& why)> failed) {
  return std::make_unique<qt::test::QtHand>(dialog, std::move(failed));
}

const Platform& PlatformUnderTest() {
  static const qt::QtPlatform platform;
  return platform;
}

}  // namespace ORXKMPrintProp::test
