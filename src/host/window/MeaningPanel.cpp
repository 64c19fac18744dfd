#include "host/window/MeaningPanel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
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

/// The page at its full size, or as small as the area is wide.
class PageArea : public QScrollArea {
 public:
  PageArea(PageSketchView* page, QWidget* parent) : QScrollArea(parent), page_(*page) {
    setWidget(page);
    setAlignment(Qt::AlignCenter);
  }

  void ShowWhole(bool whole) {
    isWhole_ = whole;
    Fit();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    Fit();
  }

 private:
  void Fit() {
    // There is always room for the bar at the side, which comes and goes with the size.
    const int room = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
    page_.FitInto(isWhole_ ? std::max(room, 1) : 0);
  }

  PageSketchView& page_;
  bool isWhole_ = false;
};

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
  refresh_->setAutoDefault(true);
  refresh_->setToolTip(QStringLiteral("Reads the settings back"));
  connect(refresh_, &QPushButton::clicked, this, std::move(refresh));
  state_->setObjectName(QStringLiteral("state"));
  state_->setWordWrap(true);
  state_->setTextFormat(Qt::PlainText);

  auto* const top = new QHBoxLayout;
  top->addWidget(state_, 1);
  top->addWidget(refresh_);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(top);
  column->addStretch();
}

void MeaningPanel::MakeTabs() {
  tabs_ = new QTabWidget(this);
  auto* const page = new QWidget(this);
  sketch_ = new PageSketchView;
  auto* const area = new PageArea(sketch_, page);
  auto* const isWhole = new QCheckBox(QStringLiteral("&Whole page"), page);
  isWhole->setToolTip(QStringLiteral("Makes the page as small as the panel is wide"));
  connect(isWhole, &QCheckBox::toggled, area, [area](bool whole) { area->ShowWhole(whole); });
  auto* const down = new QVBoxLayout(page);
  down->addWidget(area);
  down->addWidget(isWhole);
  tabs_->addTab(page, QStringLiteral("Page"));
  for (const TableTab& table : TableTabs()) {
    models_.push_back(new ComparedModel(this));
    views_.push_back(MakeTable(models_.back(), this));
    views_.back()->setAccessibleName(QLatin1String(table.caption));
    tabs_->addTab(views_.back(), QLatin1String(table.caption));
  }
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { ShowFront(); });
  static_cast<QBoxLayout&>(*layout()).insertWidget(1, tabs_, 1);
  // What is made late comes last otherwise, and the tabs themselves would hand their bar the focus of the buttons.
  QWidget* last = refresh_;
  const auto isNext = [&](QWidget* widget) { setTabOrder(std::exchange(last, widget), widget); };
  isNext(tabs_);
  isNext(tabs_->findChild<QTabBar*>());
  isNext(area);
  isNext(isWhole);
  for (QTableView* const view : views_) isNext(view);
}

void MeaningPanel::Show(const Snapshot& file, const Snapshot& now) {
  file_ = file;
  now_ = now;
  isFilled_ = false;
  if (tabs_ && tabs_->isVisible()) Fill();
}

void MeaningPanel::SetState(bool isStale, const QString& note) {
  QFont bold = font();
  bold.setBold(isStale || !note.isEmpty());
  state_->setFont(bold);
  QString text =
      isStale ? QStringLiteral("Older than your last change.") : QStringLiteral("As the settings are read back.");
  if (!note.isEmpty()) text += u'\n' + note;
  state_->setText(text);
}

void MeaningPanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (tabs_) Fill();
}

/// The dialog is not to wait for the panel when the window opens.
void MeaningPanel::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (tabs_) return;
  const auto open = [this] {
    if (tabs_) return;
    MakeTabs();
    tabs_->show();
    Fill();
  };
  QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void MeaningPanel::Fill() {
  if (isFilled_) return;
  isFilled_ = true;
  try {
    sketch_->Show(SketchOf(now_));
    for (std::size_t table = 0; table < models_.size(); ++table) FillTable(table);
    ShowFront();
  } catch (const std::exception& error) {
    state_->setText(QString::fromUtf8(error.what()));
  }
}

void MeaningPanel::FillTable(std::size_t table) {
  const TableTab& tab = TableTabs()[table];
  models_[table]->Show(ComparedTable(file_.tables[table], now_.tables[table], tab.keyColumns));
  QString caption = QLatin1String(tab.caption);
  if (models_[table]->FirstMark().isValid()) caption += QStringLiteral(" *");
  const int page = tabs_->indexOf(views_[table]);
  tabs_->setTabText(page, caption);
  tabs_->setTabToolTip(page,
                       models_[table]->FirstMark().isValid() ? QStringLiteral("Differs from the file") : QString());
}

void MeaningPanel::ShowFront() {
  for (std::size_t table = 0; table < views_.size(); ++table) {
    if (tabs_->currentWidget() != views_[table]) continue;
    views_[table]->resizeColumnsToContents();
    if (const QModelIndex mark = models_[table]->FirstMark(); mark.isValid()) views_[table]->scrollTo(mark);
  }
}

}  // namespace ORXKMPrintProp::host
