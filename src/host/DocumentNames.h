#pragma once

#include <string>
#include <vector>

namespace ORXKMPrintProp::host {

/// A document that an argument stands for, or why it stands for none.
struct DocumentName {
  std::string path;
  std::string error = {};  ///< one line with the path in it; empty for a document
};

struct DocumentNames {
  std::vector<DocumentName> names;    ///< in the order of the arguments, each document once
  std::vector<std::string> repeated;  ///< those that come up again
};

/// What the arguments of a command stand for:
/// - a folder, for all documents below it, which are the files "*.json" in the order of their names. What is hidden,
///   since its name begins with a period, is left out, and links to folders are not followed.
/// - a pattern in which "*" stands for any characters, "?" for one, and "[abc]", "[a-z]" or "[!abc]" for one of them
///   or none of them, for what its names match, as in a shell: in the order of the names, hidden ones only where the
///   pattern begins with a period. A file that has the name itself is meant first.
/// - anything else for itself.
DocumentNames FindDocuments(const std::vector<std::string>& arguments);

}  // namespace ORXKMPrintProp::host
