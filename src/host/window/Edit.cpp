#include "host/window/Edit.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include "host/Files.h"
#include "host/Load.h"
#include "host/editor/EditedSettings.h"
#include "host/window/Display.h"
#include "host/window/Remembered.h"
#include "host/window/SettingsWindow.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {

namespace {

/// To somebody who has started the program from the desktop and sees no standard error.
void Tell(const std::string& words) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Print settings"), QString::fromStdString(words));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

EditProgram::EditProgram(const EditOptions& options) {
  if (!HasDisplay()) throw LoadError("there is no display to open a window on");
  TakeQtMessages(true);
  application_ = std::make_unique<QApplication>(argc_, argv_);
  QGuiApplication::setDesktopFileName(QStringLiteral("prnprop"));
  BeginToRemember();
  platform_ = std::make_unique<qt::QtPlatform>();
  const bool isSeen = IsTerminal(stderr) || QGuiApplication::platformName() == QStringLiteral("offscreen");
  settings_ = isSeen ? OpenToEdit(options, *platform_, {}) : OpenToEdit(options, *platform_, Tell);
  window_ = std::make_unique<SettingsWindow>(*settings_);
  window_->FitInto(window_->screen()->availableSize());
}

EditProgram::~EditProgram() = default;

int EditProgram::Run() {
  window_->show();
  QTimer::singleShot(0, [] { QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("prnprop"))); });
  return QApplication::exec();
}

}  // namespace ORXKMPrintProp::host
