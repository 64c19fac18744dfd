#pragma once

#include <QTextEdit>

#include "host/Snapshot.h"

namespace ORXKMPrintProp::host {

/// Tells in plain words what has changed between two snapshots, as a text that can be selected and copied.
class ChangesView : public QTextEdit {
 public:
  explicit ChangesView(QWidget* parent = nullptr);

  /// @throws LoadError, RunTimeError from the text table
  void Show(const Snapshot& before, const Snapshot& after);
};

}  // namespace ORXKMPrintProp::host
