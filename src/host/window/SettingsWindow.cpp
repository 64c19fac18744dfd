#include "host/window/SettingsWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "host/window/FileMenu.h"
#include "host/window/FilePicker.h"
#include "host/window/FindField.h"
#include "host/window/KeysWindow.h"
#include "host/window/LayoutEditor.h"
#include "host/window/MeaningPanel.h"
#include "host/window/OrderButtons.h"
#include "host/window/Remembered.h"
#include "host/window/SignButton.h"
#include "host/window/Spoken.h"
#include "host/window/StatusLine.h"
#include "host/window/Translation.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtText.h"

namespace ORXKMPrintProp::host {
namespace {

using qt::ToQString;

struct ChoiceButton {
  Choice choice;
  QMessageBox::StandardButton button;
};
constexpr ChoiceButton kChoices[] = {
    {Choice::Ok, QMessageBox::Ok},
    {Choice::Save, QMessageBox::Save},
    {Choice::Discard, QMessageBox::Discard},
    {Choice::Reload, QMessageBox::Retry},
    {Choice::SaveAs, QMessageBox::SaveAll},
    {Choice::ShowDifferences, QMessageBox::Open},
    {Choice::SaveAllTheSame, QMessageBox::Ignore},
    {Choice::Cancel, QMessageBox::Cancel},
};

QMessageBox::StandardButton ButtonOf(Choice choice) {
  return std::find_if(std::begin(kChoices), std::end(kChoices),
                      [&](const ChoiceButton& row) { return row.choice == choice; })
      ->button;
}

/// Instead of the button's own; empty for that.
QString CaptionOf(Choice choice) {
  switch (choice) {
    case Choice::Reload:
      return Tr("&Reload");
    case Choice::SaveAs:
      return Tr("Save &as...");
    case Choice::ShowDifferences:
      return Tr("Show &what differs");
    case Choice::SaveAllTheSame:
      return Tr("&Save all the same");
    default:
      return {};
  }
}

QMessageBox::Icon IconOf(Question::Kind kind) {
  switch (kind) {
    case Question::Kind::Warning:
      return QMessageBox::Warning;
    case Question::Kind::Question:
      return QMessageBox::Question;
    case Question::Kind::Information:
      return QMessageBox::Information;
    default:
      return QMessageBox::Critical;
  }
}

const QList<QKeySequence> kUndoKeys{Qt::CTRL | Qt::Key_Z};
const QList<QKeySequence> kRedoKeys{Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y};

/// Not while a list is open.
template <class Key, class Action>
void OnKey(QWidget& window, const Key& key, Action action) {
  new QShortcut(key, &window, [action] {
    if (!QApplication::activePopupWidget()) action();
  });
}

const QString kSize = QStringLiteral("window/size");
const QString kMaximized = QStringLiteral("window/maximized");
const QString kPreview = QStringLiteral("window/preview");

/// The path of the first file that is dropped, empty for none.
QString DroppedFile(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  return urls.isEmpty() ? QString() : urls.front().toLocalFile();
}

/// @param what would be done, empty for nothing
QString StepTip(const QString& verb, const std::string& what, const QList<QKeySequence>& keys) {
  QString tip = verb;
  if (!what.empty()) tip += QStringLiteral(": ") + QString::fromStdString(what);
  return tip + QStringLiteral(" (") + keys.front().toString(QKeySequence::NativeText) + u')';
}

}  // namespace

SettingsWindow::SettingsWindow(EditedSettings& settings, QWidget* parent)
    : QWidget(parent),
      editor_(settings, *this),
      view_(new qt::PrnPropView(settings.Control().GetDialog(), this)),
      panel_(new MeaningPanel([this] { return editor_.Read(); }, this)),
      dialog_(new QScrollArea(this)),
      order_(new OrderButtons(
          settings.Control().GetDialog(), *view_, [&settings] { return settings.IsReadOnly(); }, this)),
      status_(new StatusLine(this)) {
  SpeakAsWindow(*this);
  auto* const across = new QHBoxLayout;
  dialog_->setWidget(view_);
  dialog_->setFrameShape(QFrame::NoFrame);
  dialog_->setFocusPolicy(Qt::NoFocus);
  across->addWidget(dialog_, 0, Qt::AlignTop | Qt::AlignLeft);
  across->addWidget(panel_, 1);
  auto* const down = new QVBoxLayout(this);
  down->addLayout(across, 1);
  status_->setObjectName(QStringLiteral("status"));
  auto* const told = new QHBoxLayout;
  told->addWidget(order_);
  told->addWidget(status_);
  down->addLayout(told);
  down->addWidget(MakeButtons());
  BoundDialog();

  setAcceptDrops(true);
  connect(view_, &qt::PrnPropView::failed, this, [this](const QString& why) { editor_.OnFailed(why.toStdString()); });
  connect(view_, &qt::PrnPropView::used, this, [this](const Widget& widget) { editor_.OnUsed(widget); });
  for (QLineEdit* const field : view_->findChildren<QLineEdit*>()) field->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (view_->isAncestorOf(now)) lastFocus_ = now;
  });
  editor_.Show();
  unfoldedWidth_ = view_->width() * 9 / 5;
  resize(sizeHint().expandedTo(QSize(unfoldedWidth_, 0)));
  TakeRememberedSize();
}

/// The focus goes on while the window ends.
SettingsWindow::~SettingsWindow() { qApp->disconnect(this); }

void SettingsWindow::TakeRememberedSize() {
  const QSize size = host::Remembered(kSize).toSize();
  if (size.isValid()) resize(size);
  if (!host::Remembered(kPreview, true).toBool()) preview_->setChecked(false);
  if (host::Remembered(kMaximized).toBool()) setWindowState(Qt::WindowMaximized);
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
  int below = 0;
  for (int i = 1; i < layout()->count(); ++i) below += spacing + layout()->itemAt(i)->sizeHint().height();
  QSize left = room_ - QSize(margins.left() + margins.right(), margins.top() + margins.bottom() + below);
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
  auto* const file = new QPushButton(Tr("Fi&le"), bar);
  file->setObjectName(QStringLiteral("file"));
  file->setAutoDefault(true);
  file->setMenu(new FileMenu(editor_, file));
  preview_ = new QPushButton(Tr("&Preview"), bar);
  preview_->setObjectName(QStringLiteral("preview"));
  preview_->setCheckable(true);
  preview_->setChecked(true);
  preview_->setAutoDefault(true);
  preview_->setToolTip(Tr("Shows beside the dialog what the settings mean"));
  connect(preview_, &QPushButton::toggled, this, &SettingsWindow::Fold);
  connect(preview_, &QPushButton::clicked, this, [](bool unfolds) { host::Remember(kPreview, unfolds); });

  auto* const buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, bar);
  apply_ = buttons->button(QDialogButtonBox::Apply);
  for (QAbstractButton* const button : buttons->buttons()) static_cast<QPushButton*>(button)->setAutoDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { Accept(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { close(); });
  connect(apply_, &QPushButton::clicked, this, [this] { editor_.Save(); });
  OnKey(*this, QKeySequence::New, [this] { editor_.New(); });
  OnKey(*this, QKeySequence::Open, [this] { editor_.Open(); });
  OnKey(*this, Qt::CTRL | Qt::SHIFT | Qt::Key_S, [this] { editor_.SaveAs(); });
  OnKey(*this, QKeySequence::Save, [this] { editor_.Save(); });
  OnKey(*this, QKeySequence::Refresh, [this] { editor_.Read(); });
  auto* const find = new FindField(*view_, dialog_);
  OnKey(*this, QKeySequence::Find, [find] { find->Open(); });
  OnKey(*this, Qt::Key_F3, [find] { find->FindNext(); });
  OnKey(*this, Qt::Key_F1, [this] { ShowKeys(this); });
  undo_ = MakeStepButton(QStringLiteral("undo"), Tr("Undo"), u'\u21B6', kUndoKeys, &Editor::Undo);
  redo_ = MakeStepButton(QStringLiteral("redo"), Tr("Redo"), u'\u21B7', kRedoKeys, &Editor::Redo);
  revert_ = MakeStepButton(QStringLiteral("revert"), Tr("Revert"), u'\u27F2', {}, &Editor::Revert);
  revert_->setToolTip(Tr("Goes back to what was opened or saved last"));

  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  for (QPushButton* const button : {file, preview_}) {
    // A style makes them wider than their captions, which a small screen has no room for.
    button->setMinimumWidth(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() +
                            button->sizeHint().height());
    row->addWidget(button);
  }
  for (QPushButton* const step : {undo_, redo_, revert_}) row->addWidget(step);
  row->addStretch();
  row->addWidget(buttons);
  return bar;
}

QPushButton* SettingsWindow::MakeStepButton(const QString& objectName, const QString& name, char16_t sign,
                                            const QList<QKeySequence>& keys, void (Editor::*step)()) {
  auto* const button = MakeSignButton(objectName, name, sign, this);
  connect(button, &QPushButton::clicked, this, [this, step] { (editor_.*step)(); });
  for (const QKeySequence& key : keys) OnKey(*this, key, [this, step] { (editor_.*step)(); });
  return button;
}

void SettingsWindow::Fold(bool unfold) {
  if (!unfold && !isMaximized() && !isFullScreen()) unfoldedWidth_ = width();
  panel_->setVisible(unfold);
  BoundDialog();
  if (isMaximized() || isFullScreen()) return;
  const int wanted = unfold ? std::max(width(), unfoldedWidth_) : minimumSizeHint().width();
  resize(std::min(wanted, room_.width()), height());
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

/// A field's own steps give way to those of the editor, and a file is none of its texts.
bool SettingsWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const QKeySequence pressed(key.keyCombination());
    if (kUndoKeys.contains(pressed) || kRedoKeys.contains(pressed)) {
      event->ignore();
      return true;
    }
  }
  if (event->type() == QEvent::DragEnter && !DroppedFile(static_cast<const QDropEvent&>(*event)).isEmpty()) {
    event->ignore();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void SettingsWindow::Accept() {
  if (editor_.Save()) close();
}

void SettingsWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(editor_.MayClose());
  if (!event->isAccepted()) return;
  const QSize last = isMaximized() ? normalGeometry().size() : size();
  host::Remember(kSize, preview_->isChecked() ? last : QSize(unfoldedWidth_, last.height()));
  host::Remember(kMaximized, isMaximized());
}

void SettingsWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedFile(*event).isEmpty()) event->acceptProposedAction();
}

void SettingsWindow::dropEvent(QDropEvent* event) {
  const QString file = DroppedFile(*event);
  if (file.isEmpty()) return;
  event->acceptProposedAction();
  // Who drags it waits for the end of this.
  QMetaObject::invokeMethod(
      this, [this, file] { editor_.Open(QFile::encodeName(file).toStdString()); }, Qt::QueuedConnection);
}

void SettingsWindow::ShowMeaning(const Snapshot& file, const Snapshot& now) { panel_->Show(file, now); }

void SettingsWindow::ShowState(const EditorState& state) {
  setWindowTitle(QString::fromStdString(editor_.Title("[*]")));
  setWindowFilePath(QString::fromStdString(editor_.File()));
  panel_->SetStale(state.isStale);
  status_->Say(QString::fromStdString(state.message));
  setWindowModified(state.isModified);
  SetEnabled(*apply_, state.canApply);
  SetEnabled(*undo_, state.canUndo);
  SetEnabled(*redo_, state.canRedo);
  SetEnabled(*revert_, state.canRevert);
  order_->Update();
  undo_->setToolTip(StepTip(undo_->accessibleName(), state.undo, kUndoKeys));
  redo_->setToolTip(StepTip(redo_->accessibleName(), state.redo, kRedoKeys));
}

void SettingsWindow::SetEnabled(QPushButton& button, bool enabled) {
  QWidget* const before = lastFocus_ ? lastFocus_.data() : view_->findChild<QWidget*>(QStringLiteral("tstPrint"));
  if (!enabled && focusWidget() == &button) before->setFocus();
  button.setEnabled(enabled);
}

Choice SettingsWindow::Ask(const Question& question) {
  // Over the window that waits for an answer already, if one does.
  QWidget* const waiting = QApplication::activeModalWidget();
  QMessageBox box(IconOf(question.kind), QString::fromStdString(ProgramName()), QString::fromStdString(question.text),
                  {}, waiting ? waiting : this);
  for (const Choice choice : question.choices) {
    QPushButton* const button = box.addButton(ButtonOf(choice));
    if (const QString caption = CaptionOf(choice); !caption.isEmpty()) button->setText(caption);
  }
  box.setInformativeText(QString::fromStdString(question.further));
  // The box has no say over the format of that one.
  for (auto* const label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  if (!question.details.empty()) box.setDetailedText(QString::fromStdString(question.details));
  box.setDefaultButton(ButtonOf(question.preset));
  const int pressed = box.exec();
  const auto chosen = std::find_if(question.choices.begin(), question.choices.end(),
                                   [&](Choice choice) { return ButtonOf(choice) == pressed; });
  return chosen == question.choices.end() ? Choice::Cancel : *chosen;
}

std::optional<Text> SettingsWindow::EditLayout(const Text& name, const Text& layout, bool readOnly) {
  return host::EditLayout(
      name, layout, readOnly, [this](const Question& question) { return Ask(question); }, this);
}

std::optional<std::string> SettingsWindow::PickFile(FileUse use, const std::string& proposed) {
  return PickFileIn(this, use, proposed);
}

RecentFiles SettingsWindow::Remembered() { return RememberedFiles(); }

void SettingsWindow::Remember(const RecentFiles& files) { RememberFiles(files); }

void SettingsWindow::Focus(const Widget& widget) {
  lastFocus_ = view_->findChild<QWidget*>(ToQString(widget.Row().name.Spelled()));
  // Whoever goes back by pressing the button with the keyboard is to go on with it.
  if (focusWidget() != undo_ && focusWidget() != redo_) lastFocus_->setFocus();
}

}  // namespace ORXKMPrintProp::host
