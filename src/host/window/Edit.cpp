#include "host/window/Edit.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include "host/Files.h"
#include "host/Load.h"
#include "host/Program.h"
#include "host/UserLanguage.h"
#include "host/editor/EditedSettings.h"
#include "host/window/Display.h"
#include "host/window/Remembered.h"
#include "host/window/SettingsWindow.h"
#include "host/window/Translation.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {

namespace {

/// To somebody who has started the program from the desktop and sees no standard error.
void Tell(const std::string& words) {
  QMessageBox box(QMessageBox::Critical, QString::fromStdString(ProgramName()), QString::fromStdString(words));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

EditProgram::EditProgram() {
  if (!HasDisplay()) throw LoadError("there is no display to open a window on");
  TakeQtMessages(true);
  application_ = std::make_unique<QApplication>(argc_, argv_);
  QGuiApplication::setDesktopFileName(QStringLiteral("prnprop"));
  BeginToRemember();
  translation_ = std::make_unique<Translation>(UserLanguage());
  platform_ = std::make_unique<qt::QtPlatform>();
}

EditProgram::~EditProgram() = default;

void EditProgram::Open(const EditOptions& options) {
  settings_ = std::make_unique<EditedSettings>(ToEdit(options), *platform_);
  window_ = std::make_unique<SettingsWindow>(*settings_);
  window_->FitInto(window_->screen()->availableSize());
}

int EditProgram::Run() {
  window_->show();
  QTimer::singleShot(0, [] { QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("prnprop"))); });
  return QApplication::exec();
}

int Edit(const EditOptions& options) {
  EditProgram program;
  try {
    program.Open(options);
  } catch (const std::exception& error) {
    // Ahead of the box, which may stand there for long.
    const int status = TellFailure(error);
    if (IsDisplayed() && !IsTerminal(stderr)) Tell(error.what());
    return status;
  }
  return program.Run();
}

}  // namespace ORXKMPrintProp::host
