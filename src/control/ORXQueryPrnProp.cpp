#include "control/ORXQueryPrnProp.h"

#include <algorithm>
#include <memory>
#include <type_traits>
#include <utility>

#include "control/SharedValues.h"
#include "pages/Pages.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp {

namespace {

/// As variants compare: numbers of any type by their value, and a text equals no number.
bool IsTotalsRowButton(const Variant& buttonId) {
  return std::visit(
      [](const auto& value) {
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
          return static_cast<double>(value) == kTotalsRowButton;
        } else if constexpr (std::is_same_v<std::decay_t<decltype(value)>, ObjectRef>) {
          return IsTotalsRowButton(PlainValueOf(value, Object::Wanted::Number));
        } else {
          return false;
        }
      },
      buttonId);
}

std::int16_t LayoutSlot(const Variant& buttonId) {
  if (std::holds_alternative<std::monostate>(buttonId)) return 0;
  try {
    return ToInteger(buttonId);
  } catch (const RunTimeError& error) {
    // A number too large for 16 bits is a button that there is not, like any other.
    throw error.Kind() == ErrorKind::Overflow ? RunTimeError(ErrorKind::Index, error.Message()) : error;
  }
}

/// While it lives, tab changes are ignored.
struct TabSetup {
  TabSetup() { gTabSetup = true; }
  TabSetup(const TabSetup&) = delete;
  TabSetup& operator=(const TabSetup&) = delete;
  ~TabSetup() { gTabSetup = false; }
};

}  // namespace

ORXQueryPrnProp::ORXQueryPrnProp(const Platform& platform) : dialog_(platform) {
  const PageEvents events{[this](std::int16_t ButtonID, const Text& CharIObjName) {
                            Raise([&](auto& listener) { listener.ORXPrintLayoutGet(ButtonID, CharIObjName); });
                          },
                          [this] { Raise([](auto& listener) { listener.ORXOrderChanged(); }); }};
  pages_ = std::make_unique<Pages>(dialog_, events);
  dialog_.TabStrip().Click = [this](std::int16_t PreviousTab) {
    if (!gTabSetup) pages_->ChangeTab(PreviousTab);
  };
  {
    const TabSetup setup;
    dialog_.TabStrip().Tab(0);
  }
  dialog_.ApplyDialogFont();
}

ORXQueryPrnProp::~ORXQueryPrnProp() = default;

template <class Event>
void ORXQueryPrnProp::Raise(Event event) {
  // A handler may connect and disconnect: who is gone by its turn hears nothing.
  const auto listeners = listeners_;
  for (ORXQueryPrnPropEvents* const listener : listeners) {
    if (std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end()) event(*listener);
  }
}

bool ORXQueryPrnProp::ORXSetPrnTables(TableRef GenPropTable, TableRef DimTable, TableRef MemTable, TableRef AtrTable) {
  Tables tables{std::move(GenPropTable), std::move(DimTable), std::move(MemTable), std::move(AtrTable)};
  for (const TableRef& table : {tables.GenPropTable, tables.DimTable, tables.MemTable, tables.AtrTable}) Needed(table);

  TableOperation::OvertakeAll();
  TableOperation operation;
  if (!mTextsDone) dialog_.ApplyTexts();
  mTextsDone = true;
  TableOperation::CheckNotOvertaken();

  gPrnProp.reset();
  // Held, since a table may load other settings from inside an operation.
  const auto root = std::make_shared<PrnPropCls>();
  gPrnProp = root;
  const bool loaded = root->FromTable(*tables.GenPropTable, *tables.DimTable, *tables.MemTable, *tables.AtrTable);

  const Tables former = std::exchange(mTables, tables);
  const int load = ++loads_;
  pages_->SetLoaded();
  try {
    RemoveRows(*tables.GenPropTable);
    if (loaded) pages_->FillAllPages();
  } catch (const Overtaken&) {
    if (load == loads_) mTables = former;
    throw;
  }
  return loaded;
}

TableRef ORXQueryPrnProp::ReadBack(const TableRef Tables::*table) {
  if (!gPrnProp || !mTables.GenPropTable) return nullptr;
  TableOperation::CheckNoneUnderWay();
  pages_->StoreCurrentPage();
  TableOperation operation;
  const std::shared_ptr<PrnPropCls> root = gPrnProp;
  // The fields may change under the call.
  const Tables tables = mTables;
  root->ToTable(*tables.GenPropTable, *tables.DimTable, *tables.MemTable, *tables.AtrTable);
  return tables.*table;
}

TableRef ORXQueryPrnProp::ORXGenPropTable() { return ReadBack(&Tables::GenPropTable); }
TableRef ORXQueryPrnProp::ORXDimTable() { return ReadBack(&Tables::DimTable); }
TableRef ORXQueryPrnProp::ORXMemTable() { return ReadBack(&Tables::MemTable); }
TableRef ORXQueryPrnProp::ORXAtrTable() { return ReadBack(&Tables::AtrTable); }

bool ORXQueryPrnProp::ORXControlTexts(TableRef TextTable) {
  const TableRef table = Needed(std::move(TextTable));
  const TableRef former = std::exchange(gTextTable, table);
  try {
    const Variant index = Needed(table->Columns(u"TARGETID"))->Index();
    Needed(table->Columns())->KeyColumn(index);
    dialog_.ApplyTexts();
    mTextsDone = true;
  } catch (...) {
    // A table that can't be used must not fail every later load too.
    if (gTextTable == table) gTextTable = former;
    throw;
  }
  return false;
}

Variant ORXQueryPrnProp::ORXSetPrintLayout(Text FBLayout, const Variant& ButtonID, const Text& CharIObjName) {
  if (!gPrnProp || !mTables.GenPropTable)
    throw RunTimeError(ErrorKind::Index, u"No settings are loaded, so there is no place for a layout.");
  if (!IsTotalsRowButton(ButtonID)) {
    gPrnProp->FBLayout(LayoutSlot(ButtonID), std::move(FBLayout));
    return {};
  }
  const auto& characteristics = gPrnProp->Characteristics();
  const auto found = std::find_if(characteristics.begin(), characteristics.end(),
                                  [&](const auto& characteristic) { return characteristic->Name() == CharIObjName; });
  if (found != characteristics.end()) (*found)->FBLayout(std::move(FBLayout));
  return {};
}

void ORXQueryPrnProp::ORXSetReadOnly(bool ReadOnly) { pages_->SetReadOnly(ReadOnly); }

bool ORXQueryPrnProp::IsReadOnly() const { return pages_->IsReadOnly(); }

void ORXQueryPrnProp::Connect(ORXQueryPrnPropEvents& listener) { listeners_.push_back(&listener); }

void ORXQueryPrnProp::Disconnect(ORXQueryPrnPropEvents& listener) { std::erase(listeners_, &listener); }

}  // namespace ORXKMPrintProp
