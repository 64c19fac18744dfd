#pragma once

#include <QString>
#include <QVariant>

namespace ORXKMPrintProp::host {

// How the user likes the editor to look, kept in an ini file of the program's in his configuration folder. A program
// that has not begun to remember forgets everything, and leaves the file alone.

void BeginToRemember();

/// What was remembered last under that name. The file may hold anything.
/// @param otherwise where nothing was
QVariant Remembered(const QString& name, const QVariant& otherwise = {});
void Remember(const QString& name, const QVariant& value);

}  // namespace ORXKMPrintProp::host
