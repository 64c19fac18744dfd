#include "host/window/Display.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

#include "host/ExitStatus.h"

namespace ORXKMPrintProp::host {

bool HasDisplay() {
  for (const char* const name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
    if (!qEnvironmentVariableIsEmpty(name)) return true;
  }
  return false;
}

bool IsDisplayed() {
  const QString platform = QGuiApplication::platformName();
  return platform != QStringLiteral("offscreen") && platform != QStringLiteral("minimal");
}

void DrawInMemory() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
}

namespace {

int& Prepared(int& argc) {
  DrawInMemory();
  TakeQtMessages(false);
  return argc;
}

}  // namespace

ApplicationInMemory::ApplicationInMemory() : application_(Prepared(argc_), argv_) {}

void TakeQtMessages(bool warn) {
  static bool warns = false;
  static QtMessageHandler former = nullptr;
  const auto handler = [](QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtFatalMsg) {
      std::fputs("prnprop: the display can't be used\n", stderr);
      std::_Exit(kLoss);
    }
    if (warns || type == QtCriticalMsg) former(type, context, message);
  };
  warns = warn;
  const QtMessageHandler replaced = qInstallMessageHandler(handler);
  if (!former) former = replaced;
}

}  // namespace ORXKMPrintProp::host
