#include "support/watched_table.h"

#include <utility>

#include "support/table_text.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {
namespace {

/// A part of a table beside the watch that hears of it.
template <class Part>
struct Seen {
  std::string name;
  std::shared_ptr<Part> part;
  std::shared_ptr<Watch> watch;

  void Note(const std::string& call) const { watch->Note(name + call); }
};

class WatchedRow : public Row {
 public:
  explicit WatchedRow(Seen<Row> seen) : seen_(std::move(seen)) {}
  Variant Value(TextView column) const override {
    seen_.Note(".Value(" + ToAscii(column) + ")");
    return seen_.part->Value(column);
  }
  void Value(TextView column, Variant value) override {
    seen_.Note(".Value(" + ToAscii(column) + ")=" + ToString(value));
    seen_.part->Value(column, std::move(value));
  }
  std::int32_t RowNumber() const override {
    seen_.Note(".RowNumber");
    return seen_.part->RowNumber();
  }

 private:
  Seen<Row> seen_;
};

template <class Part>
RowRef WatchedRowOf(const Seen<Part>& seen, const RowRef& row) {
  if (!row) return nullptr;
  return std::make_shared<WatchedRow>(
      Seen<Row>{seen.name + "[" + std::to_string(row->RowNumber()) + "]", row, seen.watch});
}

class WatchedEnumerator : public RowEnumerator {
 public:
  explicit WatchedEnumerator(Seen<RowEnumerator> seen) : seen_(std::move(seen)) {}
  RowRef Next() override {
    seen_.Note(".Next");
    return WatchedRowOf(seen_, seen_.part->Next());
  }

 private:
  Seen<RowEnumerator> seen_;
};

class WatchedRowList : public RowList {
 public:
  explicit WatchedRowList(Seen<RowList> seen) : seen_(std::move(seen)) {}
  RowRef Add() override {
    seen_.Note(".Rows.Add");
    return WatchedRowOf(seen_, seen_.part->Add());
  }
  void RemoveAll() override {
    seen_.Note(".Rows.RemoveAll");
    seen_.part->RemoveAll();
  }
  RowRef Item(const Text& key) override {
    seen_.Note(".Rows.Item(" + ToAscii(key) + ")");
    return WatchedRowOf(seen_, seen_.part->Item(key));
  }
  std::unique_ptr<RowEnumerator> Enumerate() override {
    seen_.Note(".Rows.Enumerate");
    return std::make_unique<WatchedEnumerator>(
        Seen<RowEnumerator>{seen_.name, std::shared_ptr<RowEnumerator>(seen_.part->Enumerate()), seen_.watch});
  }

 private:
  Seen<RowList> seen_;
};

class WatchedColumn : public Column {
 public:
  explicit WatchedColumn(Seen<Column> seen) : seen_(std::move(seen)) {}
  Variant Index() const override {
    seen_.Note(".Index");
    return seen_.part->Index();
  }

 private:
  Seen<Column> seen_;
};

class WatchedColumnList : public ColumnList {
 public:
  explicit WatchedColumnList(Seen<ColumnList> seen) : seen_(std::move(seen)) {}
  void KeyColumn(const Variant& index) override {
    seen_.Note(".Columns.KeyColumn=" + ToString(index));
    seen_.part->KeyColumn(index);
  }

 private:
  Seen<ColumnList> seen_;
};

class WatchedTable : public Table {
 public:
  explicit WatchedTable(Seen<Table> seen) : seen_(std::move(seen)) {}
  std::int32_t RowCount() override {
    seen_.Note(".RowCount");
    return seen_.part->RowCount();
  }
  RowListRef Rows() override {
    seen_.Note(".Rows");
    return std::make_shared<WatchedRowList>(Seen<RowList>{seen_.name, seen_.part->Rows(), seen_.watch});
  }
  RowRef Rows(std::int32_t number) override {
    seen_.Note(".Rows(" + std::to_string(number) + ")");
    return WatchedRowOf(seen_, seen_.part->Rows(number));
  }
  ColumnListRef Columns() override {
    seen_.Note(".Columns");
    return std::make_shared<WatchedColumnList>(Seen<ColumnList>{seen_.name, seen_.part->Columns(), seen_.watch});
  }
  ColumnRef Columns(TextView name) override {
    seen_.Note(".Columns(" + ToAscii(name) + ")");
    return std::make_shared<WatchedColumn>(
        Seen<Column>{seen_.name + "." + ToAscii(name), seen_.part->Columns(name), seen_.watch});
  }

 private:
  Seen<Table> seen_;
};

}  // namespace

void Watch::Note(const std::string& call) {
  calls.push_back(call);
  if (calls.size() == failAt) throw RunTimeError(ErrorKind::Table, Wide(call));
}

TableRef Watched(std::string name, TableRef table, std::shared_ptr<Watch> watch) {
  return std::make_shared<WatchedTable>(Seen<Table>{std::move(name), std::move(table), std::move(watch)});
}

}  // namespace ORXKMPrintProp::test
