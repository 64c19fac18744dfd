#pragma once

class QWidget;

namespace ORXKMPrintProp::host {

/// Shows all keys of the editor in a table, until the user closes it.
void ShowKeys(QWidget* parent);

}  // namespace ORXKMPrintProp::host
