#pragma once

#include <QString>
#include <optional>

class QWidget;

namespace ORXKMPrintProp::host {

/// Lets the user edit a layout as plain text, or only look at it.
/// @return what it is now, none when the user has left it as it was.
std::optional<QString> EditLayout(const QString& name, const QString& layout, bool readOnly, QWidget* parent);

}  // namespace ORXKMPrintProp::host
