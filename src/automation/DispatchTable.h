#pragma once

#include <memory>

#include "automation/LateBound.h"
#include "tables/Table.h"

namespace ORXKMPrintProp::automation {

/// What the parts of one table share.
struct HostTableParts;

/// A table object of a host, called late-bound. It fails as the object does; a part that is no object, or none where
/// the contract promises one, fails with RunTimeError of kind Type or gives none.
class DispatchTable final : public Table {
 public:
  /// The host's object as a table, none for no object.
  static std::shared_ptr<DispatchTable> Of(IDispatch* object);
  /// The very object that was handed in, as it was.
  IDispatch* Host() const { return host_.Get(); }

  explicit DispatchTable(IDispatch* object);

  std::int32_t RowCount() override;
  RowListRef Rows() override;
  RowRef Rows(std::int32_t number) override;
  ColumnListRef Columns() override;
  ColumnRef Columns(TextView name) override;

 private:
  ComRef<IDispatch> host_;
  std::shared_ptr<HostTableParts> parts_;
  LateBound table_;
};

}  // namespace ORXKMPrintProp::automation
