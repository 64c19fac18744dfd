#pragma once

#include "tables/RunTimeError.h"

namespace ORXKMPrintProp {

/// How an operation fails that a load from inside one of its calls on a host's table has overtaken.
class Overtaken : public RunTimeError {
 public:
  Overtaken();
};

/// Lives while the control calls tables of the host, of which any may call the control back (late-bound hosts pump
/// messages). A load from inside such a call wins: what has called the table then fails. A read-back from inside
/// is refused, as it would commit and rewrite what is only half there.
class TableOperation {
 public:
  TableOperation();
  TableOperation(const TableOperation&) = delete;
  TableOperation& operator=(const TableOperation&) = delete;
  ~TableOperation();

  /// Sets aside what is under way on this thread, or takes up again what was. @return what was under way until now.
  static TableOperation* Exchange(TableOperation* underWay);

  /// A load begins: whatever is under way on this thread is overtaken.
  static void OvertakeAll();
  /// @throws Overtaken when a load has begun since the operation under way has, if there is one.
  static void CheckNotOvertaken() {
    if (innermost_ && innermost_->isOvertaken_) throw Overtaken();
  }
  /// @throws RunTimeError (Table) when an operation is under way.
  static void CheckNoneUnderWay();

 private:
  static constinit thread_local TableOperation* innermost_;

  TableOperation* const outer_;
  bool isOvertaken_ = false;
};

}  // namespace ORXKMPrintProp
