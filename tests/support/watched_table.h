#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tables/RunTimeError.h"
#include "tables/Table.h"

namespace ORXKMPrintProp::test {

/// How a watched table fails: what derives from the library's failure reaches the host as it is.
struct WatchFailure : RunTimeError {
  using RunTimeError::RunTimeError;
};

/// What is seen of the operations on some tables, and which of them is to fail.
struct Watch {
  std::vector<std::string> calls;  ///< "it_dim.Rows", "it_dim.Rows(2)", "it_dim[2].Value(POSIT)", ...
  std::size_t failAt = 0;          ///< counted from 1, 0 for none
  std::size_t actAt = 0;           ///< the same, at which `act` is called first
  std::function<void()> act;

  /// Notes the call. @throws WatchFailure (Table) with the call as its message when it is the one to fail.
  void Note(const std::string& call);
};

/// The same table with every operation of it and of its parts noted under that name.
TableRef Watched(std::string name, TableRef table, std::shared_ptr<Watch> watch);

}  // namespace ORXKMPrintProp::test
