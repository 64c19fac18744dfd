#include "views/qt/TabStripView.h"

#include <QKeyEvent>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QWheelEvent>
#include <functional>

#include "views/Fitting.h"
#include "views/Places.h"
#include "views/qt/QtKeys.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {
namespace {

class TabBar : public QTabBar {
 public:
  using QTabBar::QTabBar;

  int Needed(int tab) const { return QTabBar::tabSizeHint(tab).width(); }
  bool areCut = false;
  std::function<void(QKeyEvent& event)> onKey;

 protected:
  QSize tabSizeHint(int tab) const override { return {views::TabWidth(width(), Needed(tab)), height()}; }
  QSize minimumTabSizeHint(int tab) const override {
    return areCut ? QSize(width() / count(), height()) : tabSizeHint(tab);
  }
  /// A page that is left is stored; that is not to happen in passing.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
  void keyPressEvent(QKeyEvent* event) override { onKey(*event); }
};

}  // namespace

TabStripView::TabStripView(SSTab& strip, const Reports& reports, QWidget* parent) : ViewOf(strip, reports, parent) {
  auto* const tabs = new TabBar(this);
  tabs->onKey = [this](QKeyEvent& event) { PickByKey(event, true); };
  tabs_ = tabs;
  for (QWidget*& page : pages_) {
    page = new QWidget(this);
    tabs_->addTab(QString());
  }
  tabs_->setUsesScrollButtons(false);
  tabs_->setExpanding(false);
  tabs_->setDrawBase(false);
  tabs_->raise();
  setFocusProxy(tabs_);
  connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
    if (tab != widget_.Tab()) Pick(tab);
  });
}

void TabStripView::Refresh() {
  WidgetView::Refresh();
  tabs_->setGeometry(0, 0, width(), views::TabHeightAt(ResolutionOf(*this)));
  BringUp();
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
    const QString caption = ToQString(widget_.TabCaption(tab));
    tabs_->setTabText(tab, WithoutShortcut(caption));
    tabs_->setAccessibleTabName(tab, caption);
    Page(tab).setGeometry(rect());
    Page(tab).setAccessibleName(caption);
  }
  FitTabs();
  tabs_->setCurrentIndex(widget_.Tab());
}

void TabStripView::BringUp() {
  Page(widget_.Tab()).show();
  for (QWidget* const page : pages_) {
    if (page == &Page(widget_.Tab())) continue;
    // Else it would go to whatever comes next in the window.
    if (page->isAncestorOf(window()->focusWidget())) tabs_->setFocus();
    page->hide();
  }
}

void TabStripView::PickByKey(QKeyEvent& event, bool isOnTabs) {
  const auto tab = views::TabOf(widget_, ToKeyPress(event), isOnTabs);
  event.setAccepted(tab.has_value());
  if (!tab) return;
  // The focus that goes to the tabs is seen there.
  window()->setAttribute(Qt::WA_KeyboardFocusChange);
  Pick(*tab);
}

void TabStripView::Pick(int tab) {
  Perform([&] { widget_.UserPick(static_cast<std::int16_t>(tab)); });
}

void TabStripView::FitTabs() {
  auto& tabs = static_cast<TabBar&>(*tabs_);
  const QFont full = StoredFont();
  const auto take = [&](const views::Letters& letters) {
    const QFont font = InLetters(full, letters);
    if (tabs.font() != font) tabs.setFont(font);
  };
  tabs.setElideMode(Qt::ElideNone);
  const views::FittedTabs fitted =
      views::FitTabs(SSTab::kTabs, tabs.width(), [&](int tab, const views::Letters& letters) {
        take(letters);
        return tabs.Needed(tab);
      });
  take(fitted.letters);
  tabs.areCut = fitted.areCut;
  if (fitted.areCut) tabs.setElideMode(Qt::ElideRight);
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
    tabs.setTabToolTip(tab, fitted.areCut ? ToQString(widget_.TabCaption(tab)) : QString());
  }
}

std::optional<views::TextRoom> TabStripView::RoomOf(TextView text, int tab) const {
  const auto& tabs = static_cast<const TabBar&>(*tabs_);
  const auto needed = [&](int number, TextView caption) {
    const int around = tabs.Needed(number) - tabs.fontMetrics().horizontalAdvance(tabs.tabText(number));
    return MeasureOfCaption()(caption, views::kSmallestLetters) + around;
  };
  return views::TextRoom{needed(tab, text), views::RoomOfTab(tab, SSTab::kTabs, tabs.width(), [&](int other) {
                           return needed(other, widget_.TabCaption(static_cast<std::int16_t>(other)));
                         })};
}

void TabStripView::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionTabWidgetFrame frame;
  frame.initFrom(this);
  frame.rect.setTop(tabs_->height() - style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, tabs_));
  frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  frame.tabBarRect = tabs_->geometry();
  frame.selectedTabRect = tabs_->tabRect(tabs_->currentIndex());
  frame.tabBarSize = tabs_->size();
  painter.drawPrimitive(QStyle::PE_FrameTabWidget, frame);
}

}  // namespace ORXKMPrintProp::qt
