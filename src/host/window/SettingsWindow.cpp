#include "host/window/SettingsWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "host/DocumentError.h"
#include "host/editor/EditedSettings.h"
#include "host/window/LayoutEditor.h"
#include "host/window/MeaningPanel.h"
#include "tables/RunTimeError.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

using qt::ToQString;

const QString kNoNumber = QStringLiteral("No whole number up to 32767:");

/// A question or a message about this window; all of it is plain text.
QMessageBox::StandardButton Ask(QWidget* window, QMessageBox::Icon icon, const QString& text, const QString& more,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton first,
                                const QString& details = {}) {
  QMessageBox box(icon, QStringLiteral("Print settings"), text, buttons, window);
  box.setInformativeText(more);
  // The box has no say over the format of that one.
  for (auto* const label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  if (!details.isEmpty()) box.setDetailedText(details);
  box.setDefaultButton(first);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

SettingsWindow::SettingsWindow(EditedSettings& settings, QWidget* parent)
    : QWidget(parent),
      settings_(settings),
      view_(new qt::PrnPropView(settings.Control().GetDialog(), this)),
      panel_(new MeaningPanel([this] { Read(); }, this)),
      dialog_(new QScrollArea(this)) {
  const QString file = QFileInfo(QString::fromStdString(settings.Target())).fileName();
  setWindowTitle(file + QStringLiteral("[*]") + (settings.IsReadOnly() ? QStringLiteral(" (read-only)") : QString()) +
                 QStringLiteral(" - Print settings"));
  auto* const across = new QHBoxLayout;
  dialog_->setWidget(view_);
  dialog_->setFrameShape(QFrame::NoFrame);
  dialog_->setFocusPolicy(Qt::NoFocus);
  across->addWidget(dialog_, 0, Qt::AlignTop | Qt::AlignLeft);
  across->addWidget(panel_, 1);
  auto* const down = new QVBoxLayout(this);
  down->addLayout(across, 1);
  down->addWidget(MakeButtons());
  BoundDialog();

  settings.Control().Connect(*this);
  connect(view_, &qt::PrnPropView::failed, this,
          [this](const QString& why) { Tell(QStringLiteral("That could not be done."), why); });
  connect(view_, &qt::PrnPropView::used, this, &SettingsWindow::OnUsed);
  printOrder_ = PrintOrder();
  ShowMeaning();
  unfoldedWidth_ = view_->width() * 9 / 5;
  resize(sizeHint().expandedTo(QSize(unfoldedWidth_, 0)));
}

SettingsWindow::~SettingsWindow() { settings_.Control().Disconnect(*this); }

void SettingsWindow::ORXOrderChanged() {
  MarkEdited();
  ReadLater();
}

void SettingsWindow::FitInto(const QSize& room) {
  const bool isTooWide = minimumSizeHint().width() > room.width();
  room_ = room;
  if (isTooWide) preview_->setChecked(false);
  BoundDialog();
  resize(size().boundedTo(room));
}

/// The dialog is seen whole where there is the room for it.
void SettingsWindow::BoundDialog() {
  constexpr int kLeastPanel = 240;
  const QMargins margins = layout()->contentsMargins();
  const int spacing = layout()->spacing();
  const int buttons = layout()->itemAt(1)->sizeHint().height();
  QSize left = room_ - QSize(margins.left() + margins.right(), margins.top() + margins.bottom() + spacing + buttons);
  panel_->setMinimumWidth(std::clamp(left.width() - view_->width() - spacing, kLeastPanel, view_->width() / 2));
  if (preview_->isChecked()) left.rwidth() -= panel_->minimumWidth() + spacing;
  QSize whole = view_->size();
  const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  if (left.width() < whole.width()) whole.rheight() += scrollBar;
  if (left.height() < whole.height()) whole.rwidth() += scrollBar;
  dialog_->setMaximumSize(whole);
  dialog_->setMinimumSize(whole.boundedTo(left));
  layout()->activate();
}

QWidget* SettingsWindow::MakeButtons() {
  auto* const bar = new QWidget(this);
  preview_ = new QPushButton(QStringLiteral("&Preview"), bar);
  preview_->setObjectName(QStringLiteral("preview"));
  preview_->setCheckable(true);
  preview_->setChecked(true);
  preview_->setAutoDefault(true);
  preview_->setToolTip(QStringLiteral("Shows beside the dialog what the settings mean"));
  connect(preview_, &QPushButton::toggled, this, &SettingsWindow::Fold);

  auto* const buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, bar);
  apply_ = buttons->button(QDialogButtonBox::Apply);
  for (QAbstractButton* const button : buttons->buttons()) static_cast<QPushButton*>(button)->setAutoDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { Accept(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { close(); });
  connect(apply_, &QPushButton::clicked, this, [this] { Save(); });
  const auto unlessPopup = [](auto action) {
    return [action] {
      if (!QApplication::activePopupWidget()) action();
    };
  };
  new QShortcut(QKeySequence::Save, this, unlessPopup([this] { Save(); }));
  new QShortcut(QKeySequence::Refresh, this, unlessPopup([this] { Read(); }));

  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(preview_);
  row->addStretch();
  row->addWidget(buttons);
  return bar;
}

void SettingsWindow::Fold(bool unfold) {
  if (!unfold && !isMaximized() && !isFullScreen()) unfoldedWidth_ = width();
  panel_->setVisible(unfold);
  BoundDialog();
  if (isMaximized() || isFullScreen()) return;
  const int wanted = unfold ? std::max(width(), unfoldedWidth_) : minimumSizeHint().width();
  resize(std::min(wanted, room_.width()), height());
}

void SettingsWindow::OnUsed(const Widget& widget) {
  const TextView name = widget.Row().name.name;
  const auto before = std::exchange(printOrder_, PrintOrder());
  switch (widget.Row().kind) {
    case WidgetKind::SSTab:
      return ReadLater();
    case WidgetKind::TextBox:
    case WidgetKind::CheckBox:
      return MarkEdited();
    case WidgetKind::ComboBox:
      // This one only picks what the page shows.
      if (name != u"cmbAttrChar") MarkEdited();
      return;
    default:
      // The structures pick a list, the others order it.
      if (name != u"lstStrStructures" && before != printOrder_) MarkEdited();
  }
}

/// What stands in the print lists.
std::vector<std::int32_t> SettingsWindow::PrintOrder() const {
  std::vector<std::int32_t> order;
  for (std::int16_t page = 1; page <= 3; ++page) {
    const auto& list = settings_.Control().GetDialog().Get<ListBox>(u"lstPrint", page);
    for (std::int16_t i = 0; i < list.ListCount(); ++i) order.push_back(list.ItemData(i));
    order.push_back(-1);
  }
  return order;
}

void SettingsWindow::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && !(event->modifiers() & ~Qt::KeypadModifier)) return Accept();
  // A drag is to come to its end.
  if (event->matches(QKeySequence::Cancel) && QApplication::mouseButtons() == Qt::NoButton) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

void SettingsWindow::MarkEdited() {
  if (settings_.IsReadOnly()) return;
  isEdited_ = isTouched_ = true;
  ShowState();
}

bool SettingsWindow::Read() {
  try {
    settings_.Read();
  } catch (const RunTimeError& error) {
    Tell(QStringLiteral("The settings can't be read back."), ToQString(error.Message()));
    return false;
  }
  isEdited_ = false;
  printOrder_ = PrintOrder();
  if (!isTouched_) settings_.SetUnchanged();
  ShowMeaning();
  return true;
}

/// A tab is reported before its page is filled, and a drag before its order is stored.
void SettingsWindow::ReadLater() {
  const auto read = [this] {
    // A message box stands in the middle of an action of the dialog.
    if (!QApplication::activeModalWidget()) Read();
  };
  QMetaObject::invokeMethod(this, read, Qt::QueuedConnection);
}

void SettingsWindow::ShowMeaning() {
  panel_->Show(settings_.File(), settings_.Now());
  ShowState();
}

QStringList SettingsWindow::NotStored() const {
  QStringList fields;
  for (const auto* const box : view_->findChildren<QLineEdit*>()) {
    // All others than those of titles hold numbers.
    const bool isTyped = box->isModified() && box->isEnabled();
    if (!isTyped || box->objectName().endsWith(QStringLiteral("Title"))) continue;
    bool isNumber = false;
    box->text().trimmed().toShort(&isNumber);
    if (isNumber) continue;
    const QString where = box->parentWidget()->accessibleName() + QStringLiteral(", ") + box->accessibleName();
    fields += where + QStringLiteral(": ") + (box->text().isEmpty() ? QStringLiteral("(empty)") : box->text());
  }
  return fields;
}

void SettingsWindow::ShowState() {
  const QStringList fields = NotStored();
  panel_->SetState(isEdited_, fields.isEmpty() ? QString() : kNoNumber + u' ' + fields.join(QStringLiteral("; ")));
  setWindowModified(isEdited_ || settings_.IsChanged());
  apply_->setEnabled(isEdited_ || settings_.IsToBeSaved());
}

void SettingsWindow::Accept() {
  if (!Save()) return;
  isDone_ = true;
  close();
}

bool SettingsWindow::Save() {
  if (!Read()) return false;
  if (!AcceptsFields()) return false;
  if (!settings_.IsToBeSaved()) return true;
  if (!AcceptsLosses() || !AcceptsOvertaking()) return false;
  try {
    settings_.Save();
  } catch (const DocumentError& error) {
    Tell(QStringLiteral("The settings could not be saved."), QString::fromStdString(error.what()));
    return false;
  } catch (const RunTimeError& error) {
    Tell(QStringLiteral("The settings could not be saved."), ToQString(error.Message()));
    return false;
  }
  isTouched_ = false;
  ShowMeaning();
  return true;
}

/// The dialog leaves a setting as it was when its field holds no number.
bool SettingsWindow::AcceptsFields() {
  const QStringList fields = NotStored();
  if (fields.isEmpty()) return true;
  return Ask(this, QMessageBox::Warning, QStringLiteral("Not everything is stored as it was typed."),
             kNoNumber + u'\n' + fields.join(u'\n'), QMessageBox::Save | QMessageBox::Cancel,
             QMessageBox::Cancel) == QMessageBox::Save;
}

bool SettingsWindow::AcceptsOvertaking() {
  if (!settings_.IsTargetOvertaken()) return true;
  const bool isThere = QFileInfo::exists(QString::fromStdString(settings_.Target()));
  return Ask(this, QMessageBox::Warning,
             isThere ? QStringLiteral("The file has changed since it was opened.")
                     : QStringLiteral("The file is gone since it was opened."),
             (isThere ? QStringLiteral("Replace %1 all the same?") : QStringLiteral("Save in %1 all the same?"))
                 .arg(QString::fromStdString(settings_.Target())),
             QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Save;
}

bool SettingsWindow::AcceptsLosses() {
  const auto& losses = settings_.Losses();
  if (losses.empty()) return true;
  QString details;
  for (const std::string& loss : losses) details += QStringLiteral("\u2022 ") + QString::fromStdString(loss) + u'\n';
  const QString count = losses.size() == 1
                            ? QStringLiteral("One thing that the file says can't be kept.")
                            : QStringLiteral("%1 things that the file says can't be kept.").arg(losses.size());
  constexpr qsizetype kShown = 3;
  const QStringList lines = details.trimmed().split(u'\n');
  QString first = QStringList(lines.mid(0, kShown)).join(u'\n');
  if (lines.size() > kShown) first += QStringLiteral("\n\u2026");
  return Ask(this, QMessageBox::Warning, count, first, QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel,
             lines.size() > kShown ? details : QString()) == QMessageBox::Save;
}

bool SettingsWindow::MayClose() {
  if (isDone_ || (Read() && !settings_.IsChanged())) return true;
  switch (Ask(this, QMessageBox::Question, QStringLiteral("The settings have changed."),
              QStringLiteral("Save them in %1?").arg(QString::fromStdString(settings_.Target())),
              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save)) {
    case QMessageBox::Save:
      return Save();
    case QMessageBox::Discard:
      return true;
    default:
      return false;
  }
}

void SettingsWindow::closeEvent(QCloseEvent* event) { event->setAccepted(MayClose()); }

void SettingsWindow::ORXPrintLayoutGet(std::int16_t ButtonID, const Text& CharIObjName) {
  const LayoutKey key{.buttonId = ButtonID, .characteristic = CharIObjName};
  const auto& button = settings_.Control().GetDialog().Get<CommandButton>(u"cmdPrintLayout", key.buttonId);
  QString name = ToQString(button.Caption());
  if (!CharIObjName.empty()) name += u' ' + ToQString(CharIObjName);
  const auto layout = EditLayout(name, ToQString(settings_.LayoutOf(key)), settings_.IsReadOnly(), this);
  if (!layout) return;
  settings_.SetLayout(key, qt::ToText(*layout));
  MarkEdited();
}

void SettingsWindow::Tell(const QString& what, const QString& why) {
  Ask(this, QMessageBox::Critical, what, why, QMessageBox::Ok, QMessageBox::Ok);
}

}  // namespace ORXKMPrintProp::host
