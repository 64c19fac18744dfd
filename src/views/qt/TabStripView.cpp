#include "views/qt/TabStripView.h"

#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "views/qt/FittedText.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::qt {
namespace {

/// A tab has its share of a full row, and more where its caption needs it.
class TabBar : public QTabBar {
 public:
  using QTabBar::QTabBar;

  /// @return whether all captions can be read in full in the room that there is.
  bool Fits() const {
    int needed = 0;
    for (int tab = 0; tab < count(); ++tab) needed += WidthOf(tab);
    return needed <= width();
  }

 protected:
  QSize tabSizeHint(int tab) const override { return {WidthOf(tab), height()}; }
  QSize minimumTabSizeHint(int tab) const override {
    return Fits() ? tabSizeHint(tab) : QSize(width() / count(), height());
  }
  /// A page that is left is stored; that is not to happen in passing.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  int WidthOf(int tab) const { return std::max(width() / kTabsPerRow, QTabBar::tabSizeHint(tab).width()); }
};

/// The stored height of a tab counts hundredths of a millimetre: the topmost labels of the pages begin right below.
int TabHeight(const QWidget& widget) {
  constexpr double kPerInch = 2540;
  return static_cast<int>(std::lround(kTabHeight * widget.logicalDpiY() / kPerInch));
}

}  // namespace

TabStripView::TabStripView(SSTab& strip, const Reports& reports, QWidget* parent)
    : ViewOf(strip, reports, parent), tabs_(new TabBar(this)) {
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
  tabs_->setGeometry(0, 0, width(), TabHeight(*this));
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

void TabStripView::PickNext(int step) { Pick((widget_.Tab() + step + SSTab::kTabs) % SSTab::kTabs); }

void TabStripView::Pick(int tab) {
  Perform([&] { widget_.UserPick(static_cast<std::int16_t>(tab)); });
}

void TabStripView::FitTabs() {
  auto& tabs = static_cast<TabBar&>(*tabs_);
  QFont font = StoredFont();
  tabs.setElideMode(Qt::ElideNone);
  if (tabs.font() != font) tabs.setFont(font);
  while (!tabs.Fits() && Shrink(font, StoredFont())) tabs.setFont(font);
  if (!tabs.Fits()) tabs.setElideMode(Qt::ElideRight);
  for (std::int16_t tab = 0; tab < SSTab::kTabs; ++tab) {
    tabs.setTabToolTip(tab, tabs.Fits() ? QString() : ToQString(widget_.TabCaption(tab)));
  }
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
