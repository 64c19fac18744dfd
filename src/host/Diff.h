#pragma once

#include <iosfwd>
#include <optional>
#include <string>

namespace ORXKMPrintProp::host {

struct DiffOptions {
  std::string before = {};  ///< path of a settings document
  std::string after = {};
  std::optional<std::string> texts = {};  ///< path of the document whose text table is used instead
  bool json = false;                      ///< one JSON object, else lines for a person
};

/// Tells in plain words what the settings of the second document mean else than those of the first. The captions are
/// those of the text table of the second document, or of the first when that has none.
/// @return kSame, kDifferent, or, with `json` alone, kTrouble.
/// @throws DocumentError, LoadError, and RunTimeError from the text table; not with `json`.
int Diff(const DiffOptions& options, std::ostream& out);

}  // namespace ORXKMPrintProp::host
