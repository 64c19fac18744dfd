#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/editor/EditedSettings.h"
#include "host/editor/TextCheck.h"

namespace ORXKMPrintProp::host {

/// How large a picture is: a factor, or its width and height, into which the page is fitted.
struct PictureSize {
  double factor = 1;
  int width = 0;  ///< 0: by the factor
  int height = 0;
};

struct ShotOptions {
  EditOptions settings;
  int page = 0;  ///< 0 to 3
  PictureSize size;
  bool window = false;  ///< the whole window of the editor instead of the dialog alone
};

/// What a toolkit does for the commands that need windows. All throw what they can't do.
struct WindowCommands {
  /// Opens the document in a window. @return what the program ends with
  std::function<int(const EditOptions& options)> edit;
  /// Draws a page of the dialog. @return a PNG picture
  std::function<std::string(const ShotOptions& options)> shot;
  MeasureTexts measure;
};

/// The program `prnprop` with the commands `edit`, `shot` and `texts`. @return an ExitStatus
int RunProgram(int argc, char** argv, const WindowCommands& commands);

}  // namespace ORXKMPrintProp::host
