#pragma once

#include <QTabBar>
#include <array>

#include "views/qt/WidgetView.h"

namespace ORXKMPrintProp::qt {

/// The tabs, and under them four pages of which one is seen. Each page has the size of the whole strip, tabs
/// included, since what lies on it is placed from there.
class TabStripView : public ViewOf<QWidget, SSTab> {
 public:
  TabStripView(SSTab& strip, const Reports& reports, QWidget* parent);
  void Refresh() override;
  /// What is around the caption is part of both widths.
  std::optional<views::TextRoom> RoomOf(TextView text, int tab) const override;

  QWidget& Page(std::int16_t tab) const { return *pages_[static_cast<std::size_t>(tab)]; }
  /// Picks the page that the key brings to the top, or leaves the key alone.
  void PickByKey(QKeyEvent& event, bool isOnTabs);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Pick(int tab);
  /// Shows the page on top. The focus of another page goes to the tabs.
  void BringUp();
  void FitTabs();

  QTabBar* tabs_;
  std::array<QWidget*, SSTab::kTabs> pages_;
};

}  // namespace ORXKMPrintProp::qt
