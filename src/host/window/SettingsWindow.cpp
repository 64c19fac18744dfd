#include "host/window/SettingsWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QVBoxLayout>

#include "host/DocumentError.h"
#include "host/window/EditedSettings.h"
#include "host/window/LayoutEditor.h"
#include "host/window/MeaningPanel.h"
#include "tables/RunTimeError.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

using qt::ToQString;

/// A question or a message about this window; all of it is plain text.
QMessageBox::StandardButton Ask(QWidget* window, QMessageBox::Icon icon, const QString& text, const QString& more,
                                QMessageBox::StandardButtons buttons, QMessageBox::StandardButton first,
                                const QString& details = {}) {
  QMessageBox box(icon, QStringLiteral("Print settings"), text, buttons, window);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(more);
  if (!details.isEmpty()) box.setDetailedText(details);
  box.setDefaultButton(first);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

SettingsWindow::SettingsWindow(EditedSettings& settings, QWidget* parent)
    : QWidget(parent),
      settings_(settings),
      view_(new qt::PrnPropView(settings.Control(), this)),
      panel_(new MeaningPanel([this] { Read(); }, this)) {
  const QString file = QFileInfo(QString::fromStdString(settings.Target())).fileName();
  setWindowTitle(file + QStringLiteral("[*]") + (settings.IsReadOnly() ? QStringLiteral(" (read-only)") : QString()) +
                 QStringLiteral(" - Print settings"));
  auto* const across = new QHBoxLayout;
  across->addWidget(view_, 0, Qt::AlignTop);
  across->addWidget(panel_, 1);
  auto* const down = new QVBoxLayout(this);
  down->addLayout(across, 1);
  down->addWidget(MakeButtons());
  panel_->setMinimumWidth(view_->width() / 2);

  connect(view_, &qt::PrnPropView::ORXPrintLayoutGet, this, &SettingsWindow::EditLayoutOf);
  connect(view_, &qt::PrnPropView::ORXOrderChanged, this, [this] {
    MarkEdited();
    ReadLater();
  });
  connect(view_, &qt::PrnPropView::failed, this,
          [this](const QString& why) { Tell(QStringLiteral("That could not be done."), why); });
  WatchInput();
  panel_->Show(settings_.File(), settings_.Now());
  ShowState();
  resize(sizeHint().expandedTo(QSize(view_->width() * 9 / 5, 0)));
}

QWidget* SettingsWindow::MakeButtons() {
  auto* const bar = new QWidget(this);
  auto* const preview = new QPushButton(QStringLiteral("&Preview"), bar);
  preview->setObjectName(QStringLiteral("preview"));
  preview->setCheckable(true);
  preview->setChecked(true);
  preview->setToolTip(QStringLiteral("Shows beside the dialog what the settings mean"));
  connect(preview, &QPushButton::toggled, this, [this](bool on) {
    const int room = panel_->width() + layout()->spacing();
    const int wanted = width() + (on ? room : -room);
    panel_->setVisible(on);
    layout()->activate();
    if (!isMaximized() && !isFullScreen()) resize(wanted, height());
  });

  auto* const buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, bar);
  apply_ = buttons->button(QDialogButtonBox::Apply);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { Accept(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { close(); });
  connect(apply_, &QPushButton::clicked, this, [this] { Save(); });
  new QShortcut(QKeySequence::Save, this, [this] { Save(); });
  new QShortcut(QKeySequence::Refresh, this, [this] { Read(); });
  new QShortcut(QKeySequence::Cancel, this, [this] { close(); });

  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(preview);
  row->addStretch();
  row->addWidget(buttons);
  return bar;
}

void SettingsWindow::WatchInput() {
  for (auto* const box : view_->findChildren<QLineEdit*>()) {
    connect(box, &QLineEdit::textEdited, this, [this] { MarkEdited(); });
  }
  for (auto* const combo : view_->findChildren<QComboBox*>()) {
    // This one only picks what the page shows.
    if (combo->objectName() == QStringLiteral("cmbAttrChar")) continue;
    connect(combo, &QComboBox::activated, this, [this] { MarkEdited(); });
  }
  for (auto* const button : view_->findChildren<QAbstractButton*>()) {
    if (button->objectName().startsWith(QStringLiteral("cmdPrintLayout"))) continue;
    connect(button, &QAbstractButton::clicked, this, [this] { MarkEdited(); });
  }
  for (auto* const list : view_->findChildren<QListView*>()) {
    if (!list->objectName().startsWith(QStringLiteral("lstPrint"))) continue;
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
  }
  for (auto* const tabs : view_->findChildren<QTabBar*>()) {
    connect(tabs, &QTabBar::currentChanged, this, [this] { ReadLater(); });
  }
}

/// The print order is changed by a drag, or by a key with Alt.
bool SettingsWindow::eventFilter(QObject* watched, QEvent* event) {
  if (!settings_.IsReadOnly()) {
    if (event->type() == QEvent::MouseMove && static_cast<QMouseEvent*>(event)->buttons() == Qt::LeftButton) {
      MarkEdited();
    }
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->modifiers() == Qt::AltModifier) {
      MarkEdited();
    }
  }
  return QWidget::eventFilter(watched, event);
}

void SettingsWindow::MarkEdited() {
  isEdited_ = true;
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
  panel_->Show(settings_.File(), settings_.Now());
  ShowState();
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

void SettingsWindow::ShowState() {
  panel_->SetStale(isEdited_);
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
  if (!settings_.IsToBeSaved()) return true;
  if (!AcceptsLosses()) return false;
  try {
    settings_.Save();
  } catch (const DocumentError& error) {
    Tell(QStringLiteral("The settings could not be saved."), QString::fromStdString(error.what()));
    return false;
  } catch (const RunTimeError& error) {
    Tell(QStringLiteral("The settings could not be saved."), ToQString(error.Message()));
    return false;
  }
  panel_->Show(settings_.File(), settings_.Now());
  ShowState();
  return true;
}

bool SettingsWindow::AcceptsLosses() {
  const auto& losses = settings_.Losses();
  if (losses.empty()) return true;
  QString details;
  for (const std::string& loss : losses) details += QString::fromStdString(loss) + u'\n';
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

void SettingsWindow::EditLayoutOf(int buttonId, const QString& characteristic) {
  const LayoutKey key{.buttonId = static_cast<std::int16_t>(buttonId),
                      .characteristic = characteristic.toStdU16String()};
  const auto& button = settings_.Control().GetDialog().Get<CommandButton>(u"cmdPrintLayout", key.buttonId);
  QString name = ToQString(button.Caption());
  if (!characteristic.isEmpty()) name += QStringLiteral(" ") + characteristic;
  const auto layout = EditLayout(name, ToQString(settings_.LayoutOf(key)), settings_.IsReadOnly(), this);
  if (!layout) return;
  settings_.SetLayout(key, qt::ToText(*layout));
  MarkEdited();
}

void SettingsWindow::Tell(const QString& what, const QString& why) {
  Ask(this, QMessageBox::Critical, what, why, QMessageBox::Ok, QMessageBox::Ok);
}

}  // namespace ORXKMPrintProp::host
