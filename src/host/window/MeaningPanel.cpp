#include "host/window/MeaningPanel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>
#include <exception>
#include <utility>

#include "host/window/ComparedModel.h"
#include "host/window/PageSketchView.h"

namespace ORXKMPrintProp::host {
namespace {

struct TableTab {
  const char* caption;
  std::vector<Text> keyColumns;
};

/// In the order of a snapshot's tables, by the names that they have in a document.
const std::vector<TableTab>& TableTabs() {
  static const std::vector<TableTab> tabs{{"general", {}},
                                          {"dimension", {u"IS_STRUCTURE", u"IOBJNM"}},
                                          {"member", {u"IOBJNM", u"CHAVL"}},
                                          {"attribute", {u"IOBJNM", u"ATTRINM"}}};
  return tabs;
}

QTableView* MakeTable(ComparedModel* model, QWidget* parent) {
  auto* const view = new QTableView(parent);
  view->setModel(model);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setTabKeyNavigation(false);
  view->setAlternatingRowColors(true);
  view->setWordWrap(false);
  constexpr int kMeasuredRows = 50;
  view->horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
  constexpr int kMostWidth = 300;
  view->horizontalHeader()->setMaximumSectionSize(kMostWidth);
  view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 6);
  return view;
}

}  // namespace

MeaningPanel::MeaningPanel(std::function<void()> refresh, QWidget* parent)
    : QWidget(parent), state_(new QLabel(this)), refresh_(new QPushButton(QStringLiteral("&Refresh"), this)) {
  refresh_->setObjectName(QStringLiteral("refresh"));
  refresh_->setToolTip(QStringLiteral("Reads the settings back"));
  connect(refresh_, &QPushButton::clicked, this, std::move(refresh));
  state_->setObjectName(QStringLiteral("state"));
  state_->setWordWrap(true);

  auto* const top = new QHBoxLayout;
  top->addWidget(state_, 1);
  top->addWidget(refresh_);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(top);
  column->addStretch();
  SetStale(false);
}

void MeaningPanel::MakeTabs() {
  tabs_ = new QTabWidget(this);
  sketch_ = new PageSketchView;
  auto* const scroll = new QScrollArea;
  scroll->setWidget(sketch_);
  scroll->setAlignment(Qt::AlignCenter);
  tabs_->addTab(scroll, QStringLiteral("Page"));
  for (const TableTab& table : TableTabs()) {
    models_.push_back(new ComparedModel(this));
    QTableView* const view = MakeTable(models_.back(), this);
    view->setAccessibleName(QLatin1String(table.caption));
    tabs_->addTab(view, QLatin1String(table.caption));
  }
  isFilled_.assign(models_.size() + 1, false);
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { FillFront(); });
  static_cast<QBoxLayout&>(*layout()).insertWidget(1, tabs_, 1);
  // What is made late comes last otherwise.
  QWidget* last = refresh_;
  const auto isNext = [&](QWidget* widget) { setTabOrder(std::exchange(last, widget), widget); };
  isNext(tabs_->findChild<QTabBar*>());
  for (int tab = 0; tab < tabs_->count(); ++tab) isNext(tabs_->widget(tab));
}

void MeaningPanel::Show(const Snapshot& file, const Snapshot& now) {
  file_ = file;
  now_ = now;
  isFilled_.assign(isFilled_.size(), false);
  SetStale(false);
  if (tabs_ && tabs_->isVisible()) FillFront();
}

void MeaningPanel::SetStale(bool stale) {
  isStale_ = stale;
  state_->setText(stale ? QStringLiteral("<b>Older than your last change.</b>")
                        : QStringLiteral("As the settings are read back."));
}

void MeaningPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (tabs_) FillFront();
}

/// The dialog is not to wait for the panel when the window opens.
void MeaningPanel::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (tabs_) return;
  const auto open = [this] {
    if (tabs_) return;
    MakeTabs();
    tabs_->show();
    FillFront();
  };
  QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void MeaningPanel::FillFront() {
  const auto tab = static_cast<std::size_t>(tabs_->currentIndex());
  if (isFilled_[tab]) return;
  isFilled_[tab] = true;
  try {
    Fill(tab);
  } catch (const std::exception& error) {
    state_->setText(QString::fromUtf8(error.what()).toHtmlEscaped());
  }
}

void MeaningPanel::Fill(std::size_t tab) {
  if (tab == 0) {
    sketch_->Show(SketchOf(now_));
    return;
  }
  const std::size_t table = tab - 1;
  models_[table]->Show(ComparedTable(file_.tables[table], now_.tables[table], TableTabs()[table].keyColumns));
  static_cast<QTableView&>(*tabs_->currentWidget()).resizeColumnsToContents();
}

}  // namespace ORXKMPrintProp::host
