#include "host/window/MeaningPanel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>
#include <utility>

#include "host/window/ChangesView.h"
#include "host/window/ComparedView.h"
#include "host/window/PagePanel.h"
#include "host/window/Remembered.h"
#include "host/window/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

const QString kTab = QStringLiteral("panel/tab");

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

}  // namespace

MeaningPanel::MeaningPanel(std::function<bool()> read, QWidget* parent)
    : QWidget(parent),
      read_(std::move(read)),
      state_(new QLabel(this)),
      refresh_(new QPushButton(Tr("&Refresh"), this)) {
  refresh_->setObjectName(QStringLiteral("refresh"));
  refresh_->setAutoDefault(true);
  refresh_->setToolTip(Tr("Reads the settings back, which stores the page as it is; Undo leads back"));
  connect(refresh_, &QPushButton::clicked, this, read_);
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
  page_ = new PagePanel(read_, this);
  page_->SetStale(isStale_);
  tabs_->addTab(page_, Tr("Page"));
  changes_ = new ChangesView(this);
  changes_->setAccessibleName(Tr("Changes"));
  tabs_->addTab(changes_, Tr("Changes"));
  for (const TableTab& table : TableTabs()) {
    views_.push_back(new ComparedView(this));
    views_.back()->setAccessibleName(QLatin1String(table.caption));
    tabs_->addTab(views_.back(), QLatin1String(table.caption));
  }
  tabs_->setCurrentIndex(Remembered(kTab).toInt());
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) {
    ShowFront();
    Remember(kTab, tab);
  });
  auto& column = static_cast<QBoxLayout&>(*layout());
  column.insertWidget(1, tabs_, 1);
  next_ = new QPushButton(Tr("&Next difference"), this);
  next_->setObjectName(QStringLiteral("nextDifference"));
  next_->setAutoDefault(true);
  next_->setToolTip(
      Tr("Goes to the next cell that is another than in the file (F8), or back to the one before (Shift+F8)"));
  connect(next_, &QPushButton::clicked, this, [this] { GoToMark(true); });
  column.insertWidget(2, next_, 0, Qt::AlignRight);
  for (const bool forward : {true, false}) {
    new QShortcut(forward ? Qt::Key_F8 : Qt::SHIFT | Qt::Key_F8, this, [this, forward] {
      if (!QApplication::activePopupWidget()) GoToMark(forward);
    });
  }
  // What is made late comes last otherwise, and the tabs themselves would hand their bar the focus of the buttons.
  QWidget* last = refresh_;
  const auto isNext = [&](QWidget* widget) { setTabOrder(std::exchange(last, widget), widget); };
  isNext(tabs_);
  isNext(tabs_->findChild<QTabBar*>());
  for (QWidget* const control : page_->InTabOrder()) isNext(control);
  isNext(changes_);
  for (ComparedView* const view : views_) isNext(view);
  isNext(next_);
}

void MeaningPanel::Show(const Snapshot& file, const Snapshot& now) {
  file_ = file;
  now_ = now;
  isFilled_ = areChangesTold_ = false;
  if (tabs_ && tabs_->isVisible()) Fill();
}

void MeaningPanel::SetStale(bool isStale) {
  isStale_ = isStale;
  if (page_) page_->SetStale(isStale);
  QFont bold = font();
  bold.setBold(isStale);
  state_->setFont(bold);
  state_->setText(isStale ? Tr("Older than your last change.") : Tr("As the settings are read back."));
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
    page_->Show(now_);
    for (std::size_t table = 0; table < views_.size(); ++table) FillTable(table);
    next_->setEnabled(std::any_of(views_.begin(), views_.end(), [](const auto* view) { return view->HasMarks(); }));
    ShowFront();
  } catch (const std::exception& error) {
    state_->setText(QString::fromUtf8(error.what()));
  }
}

void MeaningPanel::FillTable(std::size_t table) {
  const TableTab& tab = TableTabs()[table];
  ComparedView& view = *views_[table];
  view.Show(ComparedTable(file_.tables[table], now_.tables[table], tab.keyColumns));
  QString caption = QLatin1String(tab.caption);
  if (view.HasMarks()) caption += QStringLiteral(" *");
  const int page = tabs_->indexOf(&view);
  tabs_->setTabText(page, caption);
  tabs_->setTabToolTip(page, view.HasMarks() ? Tr("Differs from the file") : QString());
}

void MeaningPanel::ShowFront() {
  if (ComparedView* const view = FrontTable()) view->ComeToFront();
  if (tabs_->currentWidget() != changes_ || std::exchange(areChangesTold_, true)) return;
  try {
    changes_->Show(file_, now_);
  } catch (const std::exception& error) {
    state_->setText(QString::fromUtf8(error.what()));
  }
}

ComparedView* MeaningPanel::FrontTable() const {
  const auto front = std::find(views_.begin(), views_.end(), tabs_->currentWidget());
  return front == views_.end() ? nullptr : *front;
}

void MeaningPanel::GoToMark(bool forward) {
  // Round the tables, and at the end of the round to what is ahead in the first of them.
  const ComparedView* const front = FrontTable();
  const auto start = std::find(views_.begin(), views_.end(), front);
  std::vector<ComparedView*> round(start, views_.end());
  round.insert(round.end(), views_.begin(), start);
  if (!forward) std::reverse(round.begin() + (front ? 1 : 0), round.end());
  if (front) round.push_back(round.front());
  for (std::size_t i = 0; i < round.size(); ++i) {
    const QModelIndex mark = round[i]->MarkFrom(front && i == 0, forward);
    if (!mark.isValid()) continue;
    tabs_->setCurrentWidget(round[i]);
    round[i]->setCurrentIndex(mark);
    round[i]->scrollTo(mark);
    round[i]->setFocus();
    return;
  }
}

}  // namespace ORXKMPrintProp::host
