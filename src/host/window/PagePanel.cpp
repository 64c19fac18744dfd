#include "host/window/PagePanel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPaintEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/editor/Editor.h"
#include "host/window/Follower.h"
#include "host/window/PagePrinting.h"
#include "host/window/PageSketchView.h"
#include "host/window/Remembered.h"
#include "host/window/Translation.h"

namespace ORXKMPrintProp::host {
namespace {

const QString kZoom = QStringLiteral("page/zoom");
const QString kFollow = QStringLiteral("page/follow");

/// What the box of sizes has ahead of the steps.
constexpr int kFitWidth = 0;
constexpr int kZoomSteps[] = {50, 75, 100, 125, 150, 200};  // per cent

}  // namespace

/// What the page scrolls in, with a mark around it while the page has the focus.
class PageArea : public QScrollArea {
 public:
  PageArea(PageSketchView* page, QWidget* parent) : QScrollArea(parent), page_(*page) {
    setWidget(page);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFocusPolicy(Qt::NoFocus);
    setViewportMargins(1, 1, 1, 1);
    page->installEventFilter(this);
  }

  /// What is in the middle stays there; a page that was folded, or will be, is shown from its beginning.
  /// @param percent or `kFitWidth`
  void Zoom(int percent) {
    const bool isKept = percent_ != kFitWidth && percent != kFitWidth;
    percent_ = percent;
    const auto place = [](const QScrollBar& bar) {
      return (bar.value() + bar.pageStep() / 2.0) / (bar.maximum() + bar.pageStep());
    };
    const auto restore = [](QScrollBar& bar, double place) {
      bar.setValue(static_cast<int>(std::lround(place * (bar.maximum() + bar.pageStep()) - bar.pageStep() / 2.0)));
    };
    const double across = place(*horizontalScrollBar());
    const double down = place(*verticalScrollBar());
    Arrange();
    restore(*horizontalScrollBar(), isKept ? across : 0);
    restore(*verticalScrollBar(), isKept ? down : 0);
  }

  /// By so many steps, when the wheel is turned while Ctrl is held.
  std::function<void(int)> zoomBy;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    if (percent_ == kFitWidth) Arrange();
  }

  void wheelEvent(QWheelEvent* event) override {
    if (!(event->modifiers() & Qt::ControlModifier)) return QScrollArea::wheelEvent(event);
    turned_ += event->angleDelta().y();
    zoomBy(turned_ / QWheelEvent::DefaultDeltasPerStep);
    turned_ %= QWheelEvent::DefaultDeltasPerStep;
    event->accept();
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return QScrollArea::eventFilter(object, event);
  }

  bool event(QEvent* event) override {
    const bool isDone = QScrollArea::event(event);
    if (event->type() == QEvent::Paint && page_.hasFocus()) {
      QPainter painter(this);
      painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
      painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
    return isDone;
  }

 private:
  void Arrange() {
    if (percent_ != kFitWidth) return page_.Zoom(percent_ / 100.0);
    // There is always room for the bar at the side, which comes and goes with the size.
    const int room = width() - 2 * frameWidth() - 2 - verticalScrollBar()->sizeHint().width();
    page_.FitInto(std::max(room, 1));
  }

  PageSketchView& page_;
  int percent_ = kFitWidth;
  int turned_ = 0;
};

PagePanel::PagePanel(std::function<bool()> read, QWidget* parent)
    : QWidget(parent),
      read_(std::move(read)),
      sketch_(new PageSketchView(this)),
      area_(new PageArea(sketch_, this)),
      follower_(new Follower(
          *parent, [this] { read_(); }, this)) {
  sketch_->setObjectName(QStringLiteral("sketch"));
  auto* const down = new QVBoxLayout(this);
  down->addWidget(area_);
  controls_ = MakeControls();
  down->addLayout(controls_);
  controlsWidth_ = controls_->minimumSize().width();
  area_->zoomBy = [this](int steps) { ZoomBy(steps); };
  MakeShortcuts();
  follow_->setChecked(Remembered(kFollow).toBool());
  zoom_->setCurrentIndex(std::max(0, zoom_->findData(Remembered(kZoom).toInt())));
  ShowZoom();
}

QPushButton* PagePanel::MakeButton(const QString& caption, const QString& name, const QString& tip,
                                   std::function<void()> press) {
  auto* const button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAutoDefault(true);
  // A style makes buttons wider than there is room for.
  button->setMinimumWidth(button->fontMetrics().size(Qt::TextShowMnemonic, caption).width() + 16);
  connect(button, &QPushButton::clicked, this, std::move(press));
  return button;
}

QBoxLayout* PagePanel::MakeControls() {
  smaller_ = MakeButton(QStringLiteral("\u2212"), QStringLiteral("smaller"), Tr("Makes the page smaller (Ctrl+-)"),
                        [this] { ZoomBy(-1); });
  smaller_->setAccessibleName(Tr("Smaller"));
  zoom_ = new QComboBox(this);
  zoom_->setObjectName(QStringLiteral("zoom"));
  zoom_->setAccessibleName(Tr("Size of the page"));
  zoom_->setToolTip(
      Tr("Fit width makes the page as small as it can be read, and folds one that is wider still (Ctrl+0)"));
  zoom_->addItem(Tr("Fit width"), kFitWidth);
  for (const int percent : kZoomSteps) zoom_->addItem(QString::number(percent) + QStringLiteral(" %"), percent);
  connect(zoom_, &QComboBox::currentIndexChanged, this, [this] {
    Remember(kZoom, zoom_->currentData());
    ShowZoom();
  });
  larger_ = MakeButton(QStringLiteral("+"), QStringLiteral("larger"), Tr("Makes the page larger (Ctrl++)"),
                       [this] { ZoomBy(1); });
  larger_->setAccessibleName(Tr("Larger"));
  for (QPushButton* const button : {smaller_, larger_}) button->setMaximumWidth(button->sizeHint().height());

  follow_ = new QCheckBox(Tr("&Follow changes"), this);
  follow_->setObjectName(QStringLiteral("follow"));
  follow_->setToolTip(Tr("Reads the settings back whenever you pause, as Refresh does"));
  connect(follow_, &QCheckBox::toggled, this, [this](bool isOn) {
    Remember(kFollow, isOn);
    follower_->SetOn(isOn);
  });
  pdf_ = MakeButton(Tr("P&DF..."), QStringLiteral("pdf"),
                    Tr("Reads the settings back and saves the page as a PDF file"), [this] { SavePdf(); });
  pdf_->setAccessibleName(Tr("Save as PDF..."));
  print_ = MakeButton(Tr("Pr&int..."), QStringLiteral("print"), Tr("Reads the settings back and prints the page"),
                      [this] { Print(); });

  auto* const controls = new QBoxLayout(QBoxLayout::LeftToRight);
  auto* const sizes = new QHBoxLayout;
  sizes->addWidget(smaller_);
  sizes->addWidget(zoom_);
  sizes->addWidget(larger_);
  sizes->addStretch();
  controls->addLayout(sizes, 1);
  controls->addWidget(follow_);
  auto* const outputs = new QHBoxLayout;
  outputs->addWidget(pdf_);
  outputs->addWidget(print_);
  controls->addLayout(outputs);
  return controls;
}

void PagePanel::MakeShortcuts() {
  const auto add = [this](const QList<QKeySequence>& keys, auto action) {
    for (const QKeySequence& key : keys) {
      new QShortcut(key, this, this, action, Qt::WidgetWithChildrenShortcut);
    }
  };
  add({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [this] { ZoomBy(1); });
  add({QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { ZoomBy(-1); });
  add({QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { zoom_->setCurrentIndex(0); });
}

std::vector<QWidget*> PagePanel::InTabOrder() const {
  return {sketch_, smaller_, zoom_, larger_, follow_, pdf_, print_};
}

void PagePanel::Show(const Snapshot& readBack) {
  sketch_->Show(readBack);
  ShowZoom();
}

void PagePanel::SetStale(bool isStale) { follower_->SetStale(isStale); }

void PagePanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const bool isNarrow = layout()->contentsRect().width() < controlsWidth_;
  controls_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void PagePanel::ShowZoom() {
  area_->Zoom(zoom_->currentData().toInt());
  const int percent = static_cast<int>(std::lround(sketch_->Scale() * 100));
  smaller_->setEnabled(percent > *std::begin(kZoomSteps));
  larger_->setEnabled(percent < *std::rbegin(kZoomSteps));
}

void PagePanel::ZoomBy(int steps) {
  const int percent = static_cast<int>(std::lround(sketch_->Scale() * 100));
  // The first step that is no smaller, or the last that is no larger.
  const auto step = steps > 0 ? std::upper_bound(std::begin(kZoomSteps), std::end(kZoomSteps), percent) - 1
                              : std::lower_bound(std::begin(kZoomSteps), std::end(kZoomSteps), percent);
  const auto wanted = step - std::begin(kZoomSteps) + steps;
  if (steps != 0)
    zoom_->setCurrentIndex(1 + static_cast<int>(std::clamp<std::ptrdiff_t>(wanted, 0, std::ssize(kZoomSteps) - 1)));
}

void PagePanel::SavePdf() {
  if (!read_()) return;
  QFileDialog dialog(this, Tr("Save as PDF"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(QStringLiteral("PDF (*.pdf)"));
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  const QFileInfo document(window()->windowFilePath());
  dialog.setDirectory(document.absolutePath());
  dialog.selectFile(document.completeBaseName() + QStringLiteral(".pdf"));
  if (dialog.exec() != QDialog::Accepted) return;
  const QByteArray pdf = PdfOf(sketch_->Sketch(), sketch_->font());
  try {
    SaveFile(dialog.selectedFiles().front().toStdString(),
             std::string_view(pdf.constData(), static_cast<std::size_t>(pdf.size())));
  } catch (const DocumentError& error) {
    Tell(Tr("The page could not be saved."), QString::fromUtf8(error.what()));
  }
}

void PagePanel::Print() {
  if (!read_()) return;
  if (QPrinterInfo::availablePrinterNames().isEmpty()) {
    return Tell(Tr("There is no printer."), Tr("The page can be saved as a PDF file."));
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(window()->windowTitle());
  SetPaper(printer, sketch_->Sketch(), sketch_->font());
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!PrintPage(printer, sketch_->Sketch(), sketch_->font())) {
    Tell(Tr("The page could not be printed."), Tr("The printer does not take it."));
  }
}

void PagePanel::Tell(const QString& what, const QString& why) {
  QMessageBox box(QMessageBox::Critical, QString::fromStdString(ProgramName()), what + u'\n' + why, QMessageBox::Ok,
                  this);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace ORXKMPrintProp::host
