// The widgets and the Characteristics page with many entries. `per_entry` shows how the cost grows.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>

#include "loaded_page.h"

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
