#include "host/window/Remembered.h"

#include <QCoreApplication>
#include <QSettings>

namespace ORXKMPrintProp::host {
namespace {

const QString kProgram = QStringLiteral("prnprop");

bool Remembers() { return QCoreApplication::organizationName() == kProgram; }

}  // namespace

void BeginToRemember() {
  QCoreApplication::setOrganizationName(kProgram);
  QCoreApplication::setApplicationName(kProgram);
  QSettings::setDefaultFormat(QSettings::IniFormat);
}

QVariant Remembered(const QString& name, const QVariant& otherwise) {
  return Remembers() ? QSettings().value(name, otherwise) : otherwise;
}

void Remember(const QString& name, const QVariant& value) {
  if (Remembers()) QSettings().setValue(name, value);
}

}  // namespace ORXKMPrintProp::host
