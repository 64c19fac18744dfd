#include "tables/TableOperation.h"

#include <utility>

namespace ORXKMPrintProp {

constinit thread_local TableOperation* TableOperation::innermost_ = nullptr;

Overtaken::Overtaken()
    : RunTimeError(ErrorKind::Table, u"Other settings have been loaded from inside a call on a table.") {}

TableOperation::TableOperation() : outer_(innermost_) { innermost_ = this; }

TableOperation::~TableOperation() { innermost_ = outer_; }

TableOperation* TableOperation::Exchange(TableOperation* underWay) { return std::exchange(innermost_, underWay); }

void TableOperation::OvertakeAll() {
  for (TableOperation* operation = innermost_; operation; operation = operation->outer_) operation->isOvertaken_ = true;
}

void TableOperation::CheckNoneUnderWay() {
  if (innermost_) {
    throw RunTimeError(ErrorKind::Table, u"The tables can't be read back from inside a call on a table.");
  }
}

}  // namespace ORXKMPrintProp
