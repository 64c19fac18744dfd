// Tables as a host of its own may have them: the component calls them late-bound, by their members' names.
#pragma once

#include <ole2.h>

#include <cwchar>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// An object that is called by its members' names.
class Object : public IDispatch {
 public:
  /// What a member does: its arguments stand in reverse, the value of a property that is set ahead of them.
  using Member = std::function<HRESULT(DISPPARAMS& arguments, VARIANT* result)>;

  virtual ~Object() = default;
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    const bool has = id == IID_IUnknown || id == IID_IDispatch;
    *object = has ? this : nullptr;
    if (has) AddRef();
    return has ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    if (references_ > 1) return --references_;
    delete this;
    return 0;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return *count = 0, S_OK; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR** names, UINT, LCID, DISPID* ids) override {
    for (std::size_t i = 0; i < members_.size(); ++i) {
      if (members_[i].first == names[0]) return ids[0] = static_cast<DISPID>(i + 1), S_OK;
    }
    return ids[0] = DISPID_UNKNOWN, DISP_E_UNKNOWNNAME;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    if (id < 1 || static_cast<std::size_t>(id) > members_.size()) return DISP_E_MEMBERNOTFOUND;
    return members_[static_cast<std::size_t>(id) - 1].second(*arguments, result);
  }

 protected:
  void Add(std::wstring name, Member member) { members_.emplace_back(std::move(name), std::move(member)); }
  static HRESULT Give(VARIANT* result, IDispatch* object) {
    object->AddRef();
    result->vt = VT_DISPATCH;
    result->pdispVal = object;
    return S_OK;
  }
  static HRESULT Give(VARIANT* result, std::size_t number) {
    result->vt = VT_I4;
    result->lVal = static_cast<LONG>(number);
    return S_OK;
  }

 private:
  std::vector<std::pair<std::wstring, Member>> members_;
  ULONG references_ = 0;
};

/// A cell that has not been set is empty; every column is there.
class Row : public Object {
 public:
  explicit Row(std::size_t number) {
    Add(L"RowNumber", [number](DISPPARAMS&, VARIANT* result) { return Give(result, number); });
    Add(L"Value", [this](DISPPARAMS& arguments, VARIANT* result) {
      VARIANT& cell = cells_[arguments.rgvarg[arguments.cArgs - 1].bstrVal];
      return arguments.cArgs == 2 ? VariantCopy(&cell, &arguments.rgvarg[0]) : VariantCopy(result, &cell);
    });
  }
  ~Row() override {
    for (auto& [column, cell] : cells_) VariantClear(&cell);
  }

  void Set(const wchar_t* column, const wchar_t* text) {
    VARIANT& cell = cells_[column];
    cell.vt = VT_BSTR;
    cell.bstrVal = SysAllocString(text);
  }
  std::wstring Text(const wchar_t* column) {
    VARIANT text{};
    VariantChangeType(&text, &cells_[column], 0, VT_BSTR);
    const std::wstring copy(text.bstrVal ? text.bstrVal : L"");
    VariantClear(&text);
    return copy;
  }

 private:
  std::map<std::wstring, VARIANT> cells_;
};

/// A table that is its own list of rows. It has no enumerator: `Count` and `Item` do.
class Table : public Object {
 public:
  Table() {
    Add(L"RowCount", [this](DISPPARAMS&, VARIANT* result) { return Give(result, rows_.size()); });
    Add(L"Count", [this](DISPPARAMS&, VARIANT* result) { return Give(result, rows_.size()); });
    Add(L"Rows", [this](DISPPARAMS& arguments, VARIANT* result) {
      return arguments.cArgs == 0 ? Give(result, this) : GiveRow(arguments, result);
    });
    Add(L"Item", [this](DISPPARAMS& arguments, VARIANT* result) { return GiveRow(arguments, result); });
    Add(L"Add", [this](DISPPARAMS&, VARIANT* result) { return Give(result, &AddRow()); });
    Add(L"RemoveAll", [this](DISPPARAMS&, VARIANT*) { return RemoveAll(), S_OK; });
  }
  ~Table() override { RemoveAll(); }

  Row& AddRow() {
    rows_.push_back(new Row(rows_.size() + 1));
    rows_.back()->AddRef();
    return *rows_.back();
  }
  const std::vector<Row*>& All() const { return rows_; }

 private:
  void RemoveAll() {
    for (Row* const row : rows_) row->Release();
    rows_.clear();
  }
  HRESULT GiveRow(DISPPARAMS& arguments, VARIANT* result) {
    VARIANT number{};
    const HRESULT converted = VariantChangeType(&number, &arguments.rgvarg[0], 0, VT_I4);
    if (FAILED(converted)) return converted;
    const auto place = static_cast<std::size_t>(number.lVal) - 1;
    return place < rows_.size() ? Give(result, rows_[place]) : DISP_E_BADINDEX;
  }

  std::vector<Row*> rows_;
};

/// The four tables of a query, which live as long as somebody holds them.
struct Tables {
  Tables() {
    for (Table* const table : All()) table->AddRef();
    Row& page = general->AddRow();
    for (const wchar_t* const margin : {L"MARGIN_TOP", L"MARGIN_BOTTOM", L"MARGIN_LEFT", L"MARGIN_RIGHT"}) {
      page.Set(margin, L"10");
    }
    for (const wchar_t* const name : {L"REGION", L"CUSTOMER", L"MONTH"}) {
      Row& row = dimension->AddRow();
      for (const wchar_t* const text : {L"IOBJNM", L"IOBJTXT"}) row.Set(text, name);
      for (const wchar_t* const number : {L"POSIT", L"PR_COL1_WIDTH", L"PR_COL2_WIDTH", L"STRT_LVL"}) {
        row.Set(number, L"0");
      }
      row.Set(L"AXIS", name == std::wstring(L"MONTH") ? L"" : L"Y");
    }
  }
  ~Tables() {
    for (Table* const table : All()) table->Release();
  }
  Tables(const Tables&) = delete;
  Tables& operator=(const Tables&) = delete;

  std::vector<Table*> All() const { return {general, dimension, member, attribute}; }

  Table* general = new Table;
  Table* dimension = new Table;
  Table* member = new Table;
  Table* attribute = new Table;
};
