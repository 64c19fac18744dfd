#include "tableserver/TableObjects.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "automation/DispatchObject.h"
#include "automation/Enumerator.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::tableserver {
namespace {

using namespace automation;

constexpr WORD kGet = DISPATCH_PROPERTYGET;
constexpr WORD kSet = DISPATCH_PROPERTYPUT;
constexpr WORD kMethod = DISPATCH_METHOD;

template <class Class>
class Part : public DispatchObject<Class> {
 public:
  static constexpr TextView kSource = u"PrnPropTables.Table";
};

template <class Made, class... Of>
void Give(VARIANT& result, Of&&... of) {
  result.pdispVal = new Made(std::forward<Of>(of)...);
  result.vt = VT_DISPATCH;
}

Text TextFrom(const VARIANT& value) { return ToText(PlainFromVariant(value)); }

class RowObject final : public Part<RowObject> {
 public:
  explicit RowObject(RowRef row) : row_(std::move(row)) {}

  void Value(const Arguments& arguments, VARIANT& result) {
    Text converted;
    ToVariant(row_->Value(Column(arguments[0], converted)), result);
  }
  void SetValue(const Arguments& arguments, VARIANT&) {
    Text converted;
    row_->Value(Column(arguments[0], converted), FromVariant(arguments[1]));
  }
  void RowNumber(const Arguments&, VARIANT& result) { ToVariant(row_->RowNumber(), result); }

  static constexpr DispatchMember<RowObject> kMembers[] = {
      {L"Value", DISPID_VALUE, kGet, 1, 1, &RowObject::Value},
      {L"Value", DISPID_VALUE, kSet, 2, 2, &RowObject::SetValue},
      {L"RowNumber", 3, kGet, 0, 0, &RowObject::RowNumber},
  };

 private:
  /// A name is a text as a rule, which then needs no copy.
  static TextView Column(const VARIANT& name, Text& converted) {
    return name.vt == VT_BSTR ? ViewOf(name.bstrVal) : converted = TextFrom(name);
  }

  RowRef row_;
};

/// The rows for an enumerator.
struct RowSource {
  TableRef table;

  std::size_t Count() const { return static_cast<std::size_t>(table->RowCount()); }
  void Give(std::size_t place, VARIANT& given) const {
    tableserver::Give<RowObject>(given, table->Rows(static_cast<std::int32_t>(place) + 1));
  }
  static void TakeBack(VARIANT& given) { ::VariantClear(&given); }
};

class RowListObject final : public Part<RowListObject> {
 public:
  explicit RowListObject(TableRef table) : table_(std::move(table)) {}

  void Add(const Arguments&, VARIANT& result) { Give<RowObject>(result, AddRow(*table_)); }
  void RemoveAll(const Arguments&, VARIANT&) { RemoveRows(*table_); }
  void Item(const Arguments& arguments, VARIANT& result) {
    const Variant which = PlainFromVariant(arguments[0]);
    const Text* const key = std::get_if<Text>(&which);
    if (RowRef row = key ? RowsOf(*table_)->Item(*key) : table_->Rows(ToInteger(which))) {
      Give<RowObject>(result, std::move(row));
    } else {
      result.vt = VT_DISPATCH;
      result.pdispVal = nullptr;
    }
  }
  void Count(const Arguments&, VARIANT& result) { ToVariant(table_->RowCount(), result); }
  void NewEnum(const Arguments&, VARIANT& result) {
    result.punkVal = new Enumerator<IEnumVARIANT, VARIANT, RowSource>({table_});
    result.vt = VT_UNKNOWN;
  }

  static constexpr DispatchMember<RowListObject> kMembers[] = {
      {L"Item", 1, kGet, 1, 1, &RowListObject::Item},
      {L"Count", 2, kGet, 0, 0, &RowListObject::Count},
      {L"Add", 3, kMethod, 0, 0, &RowListObject::Add},
      {L"RemoveAll", 4, kMethod, 0, 0, &RowListObject::RemoveAll},
      {L"_NewEnum", DISPID_NEWENUM, kGet, 0, 0, &RowListObject::NewEnum},
  };

 private:
  TableRef table_;
};

class ColumnObject final : public Part<ColumnObject> {
 public:
  explicit ColumnObject(ColumnRef column) : column_(std::move(column)) {}
  void Index(const Arguments&, VARIANT& result) { ToVariant(column_->Index(), result); }

  static constexpr DispatchMember<ColumnObject> kMembers[] = {{L"Index", 1, kGet, 0, 0, &ColumnObject::Index}};

 private:
  ColumnRef column_;
};

class ColumnListObject final : public Part<ColumnListObject> {
 public:
  explicit ColumnListObject(ColumnListRef columns) : columns_(std::move(columns)) {}
  void SetKeyColumn(const Arguments& arguments, VARIANT&) {
    columns_->KeyColumn(std::int32_t{ToInteger(PlainFromVariant(arguments[0]))});
  }

  static constexpr DispatchMember<ColumnListObject> kMembers[] = {
      {L"KeyColumn", 1, kSet, 1, 1, &ColumnListObject::SetKeyColumn}};

 private:
  ColumnListRef columns_;
};

class TableObject final : public Part<TableObject> {
 public:
  explicit TableObject(std::shared_ptr<MemoryTable> table) : table_(std::move(table)) {}

  void RowCount(const Arguments&, VARIANT& result) { ToVariant(table_->RowCount(), result); }
  void Rows(const Arguments&, VARIANT& result) { Give<RowListObject>(result, table_); }
  void RowByNumber(const Arguments& arguments, VARIANT& result) {
    Give<RowObject>(result, table_->Rows(ToInteger(PlainFromVariant(arguments[0]))));
  }
  void Columns(const Arguments&, VARIANT& result) { Give<ColumnListObject>(result, table_->Columns()); }
  void ColumnByName(const Arguments& arguments, VARIANT& result) {
    Give<ColumnObject>(result, table_->Columns(TextFrom(arguments[0])));
  }
  void AddColumn(const Arguments& arguments, VARIANT&) {
    table_->AddColumn(TextFrom(arguments[0]));
  }

  static constexpr DispatchMember<TableObject> kMembers[] = {
      {L"RowCount", 1, kGet, 0, 0, &TableObject::RowCount},
      {L"Rows", 6, kGet, 0, 0, &TableObject::Rows},
      {L"Rows", 6, kGet, 1, 1, &TableObject::RowByNumber},
      {L"Columns", 4, kGet, 0, 0, &TableObject::Columns},
      {L"Columns", 4, kGet, 1, 1, &TableObject::ColumnByName},
      {L"AddColumn", 100, kMethod, 1, 1, &TableObject::AddColumn},
  };

 private:
  std::shared_ptr<MemoryTable> table_;
};

}  // namespace

IUnknown* MakeTable(std::shared_ptr<MemoryTable> table) { return new TableObject(std::move(table)); }

}  // namespace ORXKMPrintProp::tableserver
