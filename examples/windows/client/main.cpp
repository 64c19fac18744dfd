// A host of the component: it hands in tables of its own, hears the events, and reads the settings back.
#include <olectl.h>

#include <cstdio>
#include <cwchar>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "DialogUser.h"
#include "ORXKMPrintProp.h"

using ORXKMPrintProp::server::IDialogUser;

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

/// Hears the events: a layout button is answered with a layout.
class Sink : public Object {
 public:
  explicit Sink(_ORXQueryPrnProp& control) : control_(control) {}
  STDMETHODIMP QueryInterface(REFIID id, void** object) override {
    return Object::QueryInterface(id == __uuidof(__ORXQueryPrnProp) ? IID_IDispatch : id, object);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    if (id == 2) {
      std::printf("the print order changed\n");
      return S_OK;
    }
    if (id != 1) return DISP_E_MEMBERNOTFOUND;
    std::printf("asked for layout %d\n", arguments->rgvarg[1].iVal);
    const BSTR layout = SysAllocString(L"<page/>");
    VARIANT nothing;
    const HRESULT stored =
        control_.ORXSetPrintLayout(layout, arguments->rgvarg[1], arguments->rgvarg[0].bstrVal, &nothing);
    SysFreeString(layout);
    return stored;
  }

 private:
  _ORXQueryPrnProp& control_;
};

/// Tells the failure of a call, with the words of the component.
bool Succeeds(HRESULT result) {
  if (SUCCEEDED(result)) return true;
  BSTR words = nullptr;
  IErrorInfo* error = nullptr;
  if (GetErrorInfo(0, &error) == S_OK) {
    error->GetDescription(&words);
    error->Release();
  }
  std::printf("failed with 0x%08lX: %ls\n", static_cast<unsigned long>(result), words ? words : L"");
  SysFreeString(words);
  return false;
}

/// There is no window here: this program is the user, too.
bool Use(_ORXQueryPrnProp& control, const wchar_t* widget, short place = 0) {
  IDialogUser* user = nullptr;
  if (!Succeeds(control.QueryInterface(__uuidof(IDialogUser), reinterpret_cast<void**>(&user)))) return false;
  const BSTR name = SysAllocString(widget);
  const bool used = Succeeds(user->Use(name, place));
  SysFreeString(name);
  user->Release();
  return used;
}

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

bool Work(_ORXQueryPrnProp& control) {
  const Tables tables;
  VARIANT_BOOL loaded = VARIANT_FALSE;
  if (!Succeeds(control.ORXSetPrnTables(tables.general, tables.dimension, tables.member, tables.attribute, &loaded)) ||
      !loaded) {
    return false;
  }
  if (!Use(control, L"cmdPrintLayout(0)") || !Use(control, L"tstPrint", 1) || !Use(control, L"lstAvail(1)", 0) ||
      !Use(control, L"cmdLeftToRight(1)")) {
    return false;
  }
  IDispatch* given = nullptr;
  if (!Succeeds(control.get_ORXDimTable(&given))) return false;
  std::printf("the very table: %s\n", given == tables.dimension ? "yes" : "no");
  given->Release();
  for (Row* const row : tables.dimension->All()) {
    std::printf("%ls %ls\n", row->Text(L"POSIT").c_str(), row->Text(L"IOBJNM").c_str());
  }
  std::printf("top page %ls\n", tables.general->All()[0]->Text(L"FRONTPAGE_LAYOUT").c_str());
  return true;
}

int main() {
  CoInitialize(nullptr);
  _ORXQueryPrnProp* control = nullptr;
  if (!Succeeds(CoCreateInstance(__uuidof(ORXQueryPrnProp), nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ORXQueryPrnProp),
                                 reinterpret_cast<void**>(&control)))) {
    return 1;
  }
  Sink* const sink = new Sink(*control);
  IConnectionPointContainer* container = nullptr;
  IConnectionPoint* point = nullptr;
  DWORD connection = 0;
  control->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
  container->FindConnectionPoint(__uuidof(__ORXQueryPrnProp), &point);
  point->Advise(sink, &connection);

  const bool worked = Work(*control);
  point->Unadvise(connection);
  point->Release();
  container->Release();
  control->Release();
  CoUninitialize();
  return worked ? 0 : 1;
}
