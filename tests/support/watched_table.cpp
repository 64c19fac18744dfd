#include "support/watched_table.h"

#include <utility>

#include "support/table_text.h"

namespace ORXKMPrintProp::test {
namespace {

/// A part of a table that tells a watch of every operation and then goes on to the part itself.
template <class Part>
class Seen : public Part {
 public:
  Seen(std::string name, std::shared_ptr<Part> part, std::shared_ptr<Watch> watch)
      : name_(std::move(name)), part_(std::move(part)), watch_(std::move(watch)) {}

 protected:
  Part& On(const std::string& call) const {
    watch_->Note(name_ + call);
    return *part_;
  }

  template <class Watching, class Other>
  std::shared_ptr<Watching> See(std::shared_ptr<Other> other, const std::string& suffix = "") const {
    return std::make_shared<Watching>(name_ + suffix, std::move(other), watch_);
  }

  RowRef SeeRow(const RowRef& row) const;

  std::string name_;
  std::shared_ptr<Part> part_;
  std::shared_ptr<Watch> watch_;
};

class WatchedRow : public Seen<Row> {
 public:
  using Seen::Seen;
  Variant Value(TextView column) const override { return On(".Value(" + ToAscii(column) + ")").Value(column); }
  void Value(TextView column, Variant value) override {
    On(".Value(" + ToAscii(column) + ")=" + ToString(value)).Value(column, std::move(value));
  }
  std::int32_t RowNumber() const override { return On(".RowNumber").RowNumber(); }
};

template <class Part>
RowRef Seen<Part>::SeeRow(const RowRef& row) const {
  return row ? See<WatchedRow>(row, "[" + std::to_string(row->RowNumber()) + "]") : nullptr;
}

class WatchedEnumerator : public Seen<RowEnumerator> {
 public:
  using Seen::Seen;
  RowRef Next() override { return SeeRow(On(".Next").Next()); }
};

class WatchedRowList : public Seen<RowList> {
 public:
  using Seen::Seen;
  RowRef Add() override { return SeeRow(On(".Rows.Add").Add()); }
  void RemoveAll() override { On(".Rows.RemoveAll").RemoveAll(); }
  RowRef Item(const Text& key) override { return SeeRow(On(".Rows.Item(" + ToAscii(key) + ")").Item(key)); }
  std::unique_ptr<RowEnumerator> Enumerate() override {
    return std::make_unique<WatchedEnumerator>(name_, On(".Rows.Enumerate").Enumerate(), watch_);
  }
};

class WatchedColumn : public Seen<Column> {
 public:
  using Seen::Seen;
  Variant Index() const override { return On(".Index").Index(); }
};

class WatchedColumnList : public Seen<ColumnList> {
 public:
  using Seen::Seen;
  void KeyColumn(const Variant& index) override { On(".Columns.KeyColumn=" + ToString(index)).KeyColumn(index); }
};

class WatchedTable : public Seen<Table> {
 public:
  using Seen::Seen;
  std::int32_t RowCount() override { return On(".RowCount").RowCount(); }
  RowListRef Rows() override { return See<WatchedRowList>(On(".Rows").Rows()); }
  RowRef Rows(std::int32_t number) override { return SeeRow(On(".Rows(" + std::to_string(number) + ")").Rows(number)); }
  ColumnListRef Columns() override { return See<WatchedColumnList>(On(".Columns").Columns()); }
  ColumnRef Columns(TextView name) override {
    return See<WatchedColumn>(On(".Columns(" + ToAscii(name) + ")").Columns(name), "." + ToAscii(name));
  }
};

}  // namespace

void Watch::Note(const std::string& call) {
  calls.push_back(call);
  if (calls.size() == actAt) act();
  if (calls.size() == failAt) throw WatchFailure(ErrorKind::Table, Wide(call));
}

TableRef Watched(std::string name, TableRef table, std::shared_ptr<Watch> watch) {
  return std::make_shared<WatchedTable>(std::move(name), std::move(table), std::move(watch));
}

}  // namespace ORXKMPrintProp::test
