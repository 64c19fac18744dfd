#include "host/window/Edit.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QTimer>
#include <memory>
#include <ostream>

#include "host/ExitStatus.h"
#include "host/Load.h"
#include "host/window/Display.h"
#include "host/window/EditedSettings.h"
#include "host/window/FirstPaint.h"
#include "host/window/SettingsWindow.h"
#include "views/qt/QtFontPlatform.h"

namespace ORXKMPrintProp::host {

int Edit(const EditOptions& options, std::ostream& err) {
  SettingsDocument document = ReadSettings(options.file);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : document.texts;
  if (!HasDisplay()) {
    err << "prnprop: there is no display to open a window on\n";
    return kLoss;
  }

  int argc = 1;
  char name[] = "prnprop";
  char* argv[] = {name, nullptr};
  QApplication application(argc, argv);
  QGuiApplication::setDesktopFileName(QStringLiteral("prnprop"));
  qt::QtFontPlatform platform;
  std::unique_ptr<EditedSettings> settings;
  try {
    settings = std::make_unique<EditedSettings>(std::move(document), options, texts, platform);
  } catch (const LoadError& error) {
    err << "prnprop: " << error.what() << std::endl;
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Print settings"), QString::fromStdString(error.what()));
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return kLoss;
  }
  SettingsWindow window(*settings);
  if (qEnvironmentVariableIsSet("PRNPROP_EXIT_AFTER_FIRST_PAINT")) new ExitAfterFirstPaint(window);
  window.show();
  QTimer::singleShot(0, [] { QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("prnprop"))); });
  QApplication::exec();
  return kSuccess;
}

}  // namespace ORXKMPrintProp::host
