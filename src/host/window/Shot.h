#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace ORXKMPrintProp::host {

/// How large a picture is: a factor, or its width and height, into which the page is fitted.
struct PictureSize {
  double factor = 1;
  int width = 0;  ///< 0: by the factor
  int height = 0;
};

/// "2", "1.5" or "800x600". None for anything else, and for a picture of more than 16,000 pixels a side.
std::optional<PictureSize> ParsePictureSize(const std::string& text);

struct ShotOptions {
  std::string file;
  std::optional<std::string> texts;  ///< a document whose text table is used in the place of the file's
  int page = 0;                      ///< 0 to 3
  PictureSize size;
  std::string out;  ///< a PNG file, "-" for `out`
  bool readOnly = false;
  bool window = false;  ///< the whole window of the editor instead of the dialog alone
};

/// Draws a page of the dialog, without a display where there is none.
/// @throws DocumentError, LoadError; nothing is written then.
void Shot(const ShotOptions& options, std::ostream& out);

}  // namespace ORXKMPrintProp::host
