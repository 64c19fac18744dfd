#pragma once

#include <QMenu>

#include "host/editor/Editor.h"

namespace ORXKMPrintProp::host {

/// What can be done with files, and at its end those that were used last. The window has the keys that it shows.
class FileMenu : public QMenu {
 public:
  /// @param editor must outlive the menu.
  FileMenu(Editor& editor, QWidget* parent);

 private:
  void ShowRecent();

  Editor& editor_;
};

/// The recent files, as they are remembered.
RecentFiles RememberedFiles();
void RememberFiles(const RecentFiles& files);

}  // namespace ORXKMPrintProp::host
