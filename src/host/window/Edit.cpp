#include "host/window/Edit.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <stdexcept>
#include <utility>

#include "host/DocumentError.h"
#include "host/Files.h"
#include "host/Load.h"
#include "host/editor/EditedSettings.h"
#include "host/window/Display.h"
#include "host/window/SettingsWindow.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {

namespace {

/// To somebody who has started the program from the desktop and sees no standard error.
void Tell(const char* words) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Print settings"), QString::fromUtf8(words));
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void CheckTarget(const EditOptions& options) {
  try {
    CheckReplaceable(options.out.value_or(options.file));
  } catch (const DocumentError& error) {
    const char* const otherwise =
        options.out ? "" : "; it can be opened with --read-only, or with -o to save elsewhere";
    throw std::runtime_error(error.what() + std::string(otherwise));
  }
}

std::unique_ptr<EditedSettings> Load(const EditOptions& options, qt::QtPlatform& platform) {
  if (!options.readOnly || options.out) CheckTarget(options);
  SettingsDocument document = ReadSettings(options.file);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : document.texts;
  return std::make_unique<EditedSettings>(std::move(document), options, texts, platform);
}

}  // namespace

EditProgram::EditProgram(const EditOptions& options) {
  if (!HasDisplay()) throw LoadError("there is no display to open a window on");
  TakeQtMessages(true);
  application_ = std::make_unique<QApplication>(argc_, argv_);
  QGuiApplication::setDesktopFileName(QStringLiteral("prnprop"));
  platform_ = std::make_unique<qt::QtPlatform>();
  try {
    settings_ = Load(options, *platform_);
  } catch (const std::exception& error) {
    const bool isSeen = IsTerminal(stderr) || QGuiApplication::platformName() == QStringLiteral("offscreen");
    if (!isSeen) Tell(error.what());
    throw;
  }
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
