// The dialog in its Qt view: entering the Characteristics page with many entries, up to what is seen of it.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "loaded_page.h"
#include "views/qt/PrnPropView.h"

namespace ORXKMPrintProp {
namespace {

void EnterAndPaint(benchmark::State& state) {
  Loaded loaded(state.range(0));
  qt::PrnPropView view(loaded.control.GetDialog());
  view.show();
  SSTab& tabs = loaded.control.GetDialog().TabStrip();
  for (auto _ : state) {
    state.PauseTiming();
    tabs.UserPick(0);
    QApplication::processEvents();
    state.ResumeTiming();
    tabs.UserPick(1);
    QApplication::processEvents();
    benchmark::DoNotOptimize(view.grab());
  }
}
BENCHMARK(EnterAndPaint)->Arg(10)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ORXKMPrintProp

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
