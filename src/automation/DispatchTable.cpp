#include "automation/DispatchTable.h"

#include <algorithm>
#include <array>
#include <functional>
#include <unordered_map>
#include <utility>

#include "automation/Failures.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::automation {

struct HostTableParts {
  std::shared_ptr<FoundMembers> found = std::make_shared<FoundMembers>();

  /// A text that stays: the names of columns are handed in with each cell.
  BSTR Name(TextView name) {
    const auto known = names_.find(name);
    if (known != names_.end()) return known->second.Get();
    return names_.try_emplace(Text(name), Bstr(name)).first->second.Get();
  }

 private:
  struct Hash : std::hash<TextView> {
    using is_transparent = void;
  };
  std::unordered_map<Text, Bstr, Hash, std::equal_to<>> names_;
};

namespace {

using Parts = std::shared_ptr<HostTableParts>;

VARIANT Argument(std::int32_t number) {
  VARIANT argument;
  // Row numbers are 16-bit as a rule; none is cut off.
  if (std::in_range<std::int16_t>(number)) {
    argument.vt = VT_I2;
    argument.iVal = static_cast<SHORT>(number);
  } else {
    argument.vt = VT_I4;
    argument.lVal = number;
  }
  return argument;
}

VARIANT Argument(BSTR text) {
  VARIANT argument;
  argument.vt = VT_BSTR;
  argument.bstrVal = text;
  return argument;
}

std::int32_t WholeNumber(const LateBound& object, Member member) {
  OwnedVariant result;
  object.Call(member, {}, result);
  CheckConversion(::VariantChangeTypeEx(&result, &result, LOCALE_INVARIANT, 0, VT_I4));
  return static_cast<std::int32_t>(result.lVal);
}

ComRef<IDispatch> Get(const LateBound& object, Member member, std::span<VARIANT> arguments = {}) {
  OwnedVariant result;
  object.Call(member, arguments, result);
  return ObjectOf(result);
}

class DispatchRow final : public Row {
 public:
  DispatchRow(Parts parts, ComRef<IDispatch> row)
      : parts_(std::move(parts)), row_(std::move(row), parts_->found) {}

  Variant Value(TextView column) const override {
    VARIANT arguments[] = {Argument(parts_->Name(column))};
    OwnedVariant cell;
    row_.Call(Member::Value, arguments, cell);
    return PlainFromVariant(cell);
  }

  void Value(TextView column, Variant value) override {
    OwnedVariant cell;
    ToVariant(value, cell);
    VARIANT arguments[] = {cell, Argument(parts_->Name(column))};
    row_.Put(Member::Value, arguments);
  }

  std::int32_t RowNumber() const override { return WholeNumber(row_, Member::RowNumber); }

 private:
  Parts parts_;
  LateBound row_;
};

/// None for no object.
RowRef RowOf(const Parts& parts, ComRef<IDispatch> row) {
  return row ? std::make_shared<DispatchRow>(parts, std::move(row)) : nullptr;
}

RowRef NeededRow(const Parts& parts, const VARIANT& row) {
  if (RowRef found = RowOf(parts, ObjectOf(row))) return found;
  throw RunTimeError(ErrorKind::Object, u"A list of rows holds no object.");
}

/// By the list's standard enumerator, some rows at a time where it gives them.
class StandardEnumerator final : public RowEnumerator {
 public:
  StandardEnumerator(Parts parts, ComRef<IEnumVARIANT> rows) : parts_(std::move(parts)), rows_(std::move(rows)) {}

  RowRef Next() override {
    if (next_ == count_ && !isAtEnd_) Fetch();
    return next_ < count_ ? NeededRow(parts_, fetched_[next_++]) : nullptr;
  }

 private:
  void Fetch() {
    for (OwnedVariant& row : fetched_) ::VariantClear(&row);
    next_ = count_ = 0;
    ULONG count = 0;
    HRESULT result = Give(count);
    // There are enumerators that give one at a time and no more.
    if (most_ > 1 && (result == E_NOTIMPL || result == E_INVALIDARG)) {
      most_ = 1;
      result = Give(count);
    }
    CheckCall(result, u"the enumerator");
    count_ = std::min(count, most_);
    isAtEnd_ = count_ == 0;
  }
  HRESULT Give(ULONG& count) { return rows_->Next(most_, fetched_.data(), &count); }

  static constexpr ULONG kRows = 16;
  Parts parts_;
  ComRef<IEnumVARIANT> rows_;
  ULONG most_ = kRows;
  std::array<OwnedVariant, kRows> fetched_;
  ULONG next_ = 0, count_ = 0;
  bool isAtEnd_ = false;
};

/// By number, for lists of scripts.
class CountedRows final : public RowEnumerator {
 public:
  CountedRows(Parts parts, const LateBound& rows)
      : parts_(std::move(parts)), rows_(rows), count_(WholeNumber(rows_, Member::Count)) {}

  RowRef Next() override {
    if (next_ > count_) return nullptr;
    VARIANT arguments[] = {Argument(next_++)};
    OwnedVariant row;
    rows_.Call(Member::Item, arguments, row);
    return NeededRow(parts_, row);
  }

 private:
  Parts parts_;
  LateBound rows_;
  std::int32_t count_;
  std::int32_t next_ = 1;
};

class DispatchRowList final : public RowList {
 public:
  DispatchRowList(Parts parts, ComRef<IDispatch> rows)
      : parts_(std::move(parts)), rows_(std::move(rows), parts_->found) {}

  RowRef Add() override { return RowOf(parts_, Get(rows_, Member::Add)); }

  void RemoveAll() override {
    OwnedVariant nothing;
    rows_.Call(Member::RemoveAll, {}, nothing);
  }

  RowRef Item(const Text& key) override {
    Bstr text(key);
    VARIANT arguments[1];
    arguments[0].vt = VT_BYREF | VT_BSTR;
    arguments[0].pbstrVal = text.Place();
    return RowOf(parts_, Get(rows_, Member::Item, arguments));
  }

  std::unique_ptr<RowEnumerator> Enumerate() override {
    if (auto standard = rows_.Enumerator()) return std::make_unique<StandardEnumerator>(parts_, std::move(standard));
    return std::make_unique<CountedRows>(parts_, rows_);
  }

 private:
  Parts parts_;
  LateBound rows_;
};

class DispatchColumnList final : public ColumnList {
 public:
  DispatchColumnList(const Parts& parts, ComRef<IDispatch> columns) : columns_(std::move(columns), parts->found) {}

  void KeyColumn(const Variant& index) override {
    OwnedVariant value;
    ToVariant(index, value);
    VARIANT arguments[] = {value};
    columns_.Put(Member::KeyColumn, arguments);
  }

 private:
  LateBound columns_;
};

class DispatchColumn final : public Column {
 public:
  DispatchColumn(const Parts& parts, ComRef<IDispatch> column) : column_(std::move(column), parts->found) {}

  Variant Index() const override {
    OwnedVariant index;
    column_.Call(Member::Index, {}, index);
    // It goes back to the host as it is.
    return std::make_shared<HostValue>(index);
  }

 private:
  LateBound column_;
};

}  // namespace

std::shared_ptr<DispatchTable> DispatchTable::Of(IDispatch* object) {
  return object ? std::make_shared<DispatchTable>(object) : nullptr;
}

DispatchTable::DispatchTable(IDispatch* object)
    : host_(object), parts_(std::make_shared<HostTableParts>()), table_(host_, parts_->found) {}

std::int32_t DispatchTable::RowCount() { return WholeNumber(table_, Member::RowCount); }

RowListRef DispatchTable::Rows() {
  auto rows = Get(table_, Member::Rows);
  return rows ? std::make_shared<DispatchRowList>(parts_, std::move(rows)) : nullptr;
}

RowRef DispatchTable::Rows(std::int32_t number) {
  VARIANT arguments[] = {Argument(number)};
  return RowOf(parts_, Get(table_, Member::Rows, arguments));
}

ColumnListRef DispatchTable::Columns() {
  auto columns = Get(table_, Member::Columns);
  return columns ? std::make_shared<DispatchColumnList>(parts_, std::move(columns)) : nullptr;
}

ColumnRef DispatchTable::Columns(TextView name) {
  VARIANT arguments[] = {Argument(parts_->Name(name))};
  auto column = Get(table_, Member::Columns, arguments);
  return column ? std::make_shared<DispatchColumn>(parts_, std::move(column)) : nullptr;
}

}  // namespace ORXKMPrintProp::automation
