#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace ORXKMPrintProp::host {

struct CheckOptions {
  std::vector<std::string> names = {};  ///< of documents, folders and patterns, as `FindDocuments` takes them
  bool json = false;                    ///< one object per document, a line each, in which also errors are told
  std::size_t jobs = 0;                 ///< documents at a time; 0: one for each processor
  bool showProgress = false;            ///< on `err`, which is a terminal
};

/// Shows for each document what a load and a read-back would change in it, in the order of the names, as soon as it is
/// known. Behind several documents stands how many of them came through, unless they are JSON objects.
/// @param err gets a line for each file that can't be read or is not a valid document.
/// @return the worst of: 0 nothing is lost, 1 something is or the load fails, 3 no valid document.
int Check(const CheckOptions& options, std::ostream& out, std::ostream& err);

}  // namespace ORXKMPrintProp::host
