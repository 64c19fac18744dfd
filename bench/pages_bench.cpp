// The widgets and the Characteristics page with many entries. `per_entry` shows how the cost grows.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>

#include "control/ORXQueryPrnProp.h"
#include "model/PrnPropCls.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp {
namespace {

void ReportPerEntry(benchmark::State& state) {
  state.counters["per_entry"] = benchmark::Counter(
      static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Entries come one by one, to wherever `place` says.
template <class Place>
void Fill(ListBox& list, std::int64_t count, Place place) {
  for (std::int64_t i = 0; i < count; ++i) list.AddItem(u"An entry of the list", place(list));
}

void AddAtTheEnd(benchmark::State& state) {
  const Dialog dialog;
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  for (auto _ : state) {
    Fill(list, state.range(0), [](const ListBox&) { return std::optional<std::int16_t>(); });
    state.PauseTiming();
    list.Clear();
    state.ResumeTiming();
  }
  ReportPerEntry(state);
}

void AddByIndex(benchmark::State& state) {
  const Dialog dialog;
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  for (auto _ : state) {
    // In the middle, where a transfer puts its entries.
    Fill(list, state.range(0), [](const ListBox& l) { return static_cast<std::int16_t>(l.ListCount() / 2); });
    state.PauseTiming();
    list.Clear();
    state.ResumeTiming();
  }
  ReportPerEntry(state);
}

void RemoveFromTheEnd(benchmark::State& state) {
  const Dialog dialog;
  auto& list = dialog.Get<ListBox>(u"lstPrint", 1);
  for (auto _ : state) {
    state.PauseTiming();
    Fill(list, state.range(0), [](const ListBox&) { return std::optional<std::int16_t>(); });
    state.ResumeTiming();
    while (list.ListCount() > 0) list.RemoveItem(static_cast<std::int16_t>(list.ListCount() - 1));
  }
  ReportPerEntry(state);
}

/// A control with that many print characteristics, whose positions are in no order, on the Characteristics page.
class Loaded {
 public:
  explicit Loaded(std::int64_t count) {
    std::vector<Text> dimension;
    for (const auto& column : PrnCharCls::Columns()) dimension.emplace_back(column.name);
    dimension.emplace_back(u"IS_STRUCTURE");
    const auto general = MemoryTable::Create({u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT", u"TITLE",
                                              u"PRINT_DIRECTION", u"MAX_PAGES", u"HIDE_ZERO", u"USE_COLORS", u"SUMPOSIT",
                                              u"NOMULTTXT", u"SIGNPRSNT", u"NO_LINES", u"CURUNITPOSITION"});
    const RowRef row = AddRow(*general);
    for (const char16_t* margin : {u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT"}) {
      row->Value(margin, std::int16_t{10});
    }
    const auto characteristics = MemoryTable::Create(dimension);
    for (std::int64_t i = 0; i < count; ++i) AddCharacteristic(*characteristics, i, count);
    control.ORXSetPrnTables(general, characteristics, MemoryTable::Create({u"IOBJNM"}), MemoryTable::Create({u"IOBJNM"}));
    control.GetDialog().TabStrip().UserPick(1);
  }

  ORXQueryPrnProp control;
  ListBox& print = control.GetDialog().Get<ListBox>(u"lstPrint", 1);
  ListBox& available = control.GetDialog().Get<ListBox>(u"lstAvail", 1);

 private:
  static void AddCharacteristic(Table& table, std::int64_t i, std::int64_t count) {
    const RowRef row = AddRow(table);
    const auto scattered = static_cast<std::int16_t>(i * 7919 % count);
    row->Value(u"IOBJTXT", u"Characteristic " + ToText(std::int32_t{scattered}));
    row->Value(u"AXIS", u"Y");
    row->Value(u"POSIT", scattered);
    for (const char16_t* column : {u"PR_COL1_WIDTH", u"PR_COL2_WIDTH", u"STRT_LVL"}) row->Value(column, std::int16_t{0});
  }
};

void EnterThePage(benchmark::State& state) {
  Loaded loaded(state.range(0));
  SSTab& tabs = loaded.control.GetDialog().TabStrip();
  for (auto _ : state) {
    state.PauseTiming();
    tabs.UserPick(0);
    state.ResumeTiming();
    tabs.UserPick(1);
  }
  ReportPerEntry(state);
}

void CommitThePage(benchmark::State& state) {
  Loaded loaded(state.range(0));
  SSTab& tabs = loaded.control.GetDialog().TabStrip();
  for (auto _ : state) {
    tabs.UserPick(0);
    state.PauseTiming();
    tabs.UserPick(1);
    state.ResumeTiming();
  }
  ReportPerEntry(state);
}

/// Every second entry goes to the sorted list.
void Transfer(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto loaded = std::make_unique<Loaded>(state.range(0));
    for (std::int16_t i = 0; i < loaded->print.ListCount(); i = static_cast<std::int16_t>(i + 2)) {
      loaded->print.Selected(i, true);
    }
    auto& button = loaded->control.GetDialog().Get<CommandButton>(u"cmdRightToLeft", 1);
    state.ResumeTiming();
    button.UserPress();
    state.PauseTiming();
    loaded.reset();
    state.ResumeTiming();
  }
  ReportPerEntry(state);
}

void EverySize(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1000)->Arg(8000)->Arg(32766)->Unit(benchmark::kMillisecond);
}

BENCHMARK(AddAtTheEnd)->Apply(EverySize);
BENCHMARK(AddByIndex)->Apply(EverySize);
BENCHMARK(RemoveFromTheEnd)->Apply(EverySize);
BENCHMARK(EnterThePage)->Apply(EverySize);
BENCHMARK(CommitThePage)->Apply(EverySize);
BENCHMARK(Transfer)->Apply(EverySize)->Iterations(3);

}  // namespace
}  // namespace ORXKMPrintProp

BENCHMARK_MAIN();
