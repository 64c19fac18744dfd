// The Characteristics page with many entries in the Qt view: what the user does, up to what is seen of it.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <cstdint>
#include <optional>

#include "loaded_page.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp {
namespace {

class Shown {
 public:
  explicit Shown(std::int64_t count) : loaded_(count, platform_), view_(loaded_.control.GetDialog()) {
    view_.show();
    Paint();
  }

  Loaded* operator->() { return &loaded_; }
  void Paint() {
    QApplication::processEvents();
    benchmark::DoNotOptimize(view_.grab());
  }
  void Press(const char* widget, int key, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(view_.findChild<QWidget*>(QLatin1String(widget)), &press);
  }

 private:
  qt::QtPlatform platform_;
  Loaded loaded_;
  qt::PrnPropView view_;
};

/// One entry after the other, from the first on.
void SelectEach(ListBox& list, std::int16_t step, bool selected = true) {
  for (std::int16_t i = 0; i < list.ListCount(); i = static_cast<std::int16_t>(i + step)) list.Selected(i, selected);
}

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

/// Every entry, or every second one.
void SelectAndPaint(benchmark::State& state) {
  Shown shown(state.range(0));
  for (auto _ : state) {
    SelectEach(shown->print, static_cast<std::int16_t>(state.range(1)));
    shown.Paint();
    state.PauseTiming();
    SelectEach(shown->print, 1, false);
    shown.Paint();
    state.ResumeTiming();
  }
}

/// The same, and they go to the sorted list.
void TransferAndPaint(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    std::optional<Shown> shown(std::in_place, state.range(0));
    state.ResumeTiming();
    SelectEach((*shown)->print, static_cast<std::int16_t>(state.range(1)));
    shown->Press("cmdRightToLeft(1)", Qt::Key_Return);
    shown->Paint();
    state.PauseTiming();
    shown.reset();
    state.ResumeTiming();
  }
}

/// A step down by keyboard.
void ReorderAndPaint(benchmark::State& state) {
  Shown shown(state.range(0));
  shown->print.ListIndex(0);
  for (auto _ : state) {
    shown.Press("lstPrint(1)", Qt::Key_Down, Qt::AltModifier);
    shown.Paint();
  }
}

constexpr std::int64_t kMost = 32766;
BENCHMARK(EnterAndPaint)->Arg(10)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(SelectAndPaint)->ArgsProduct({{1000, 8000, kMost}, {1, 2}})->Unit(benchmark::kMillisecond);
BENCHMARK(TransferAndPaint)->ArgsProduct({{1000, 8000, kMost}, {1, 2}})->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(ReorderAndPaint)->Arg(1000)->Arg(5000)->Arg(kMost)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ORXKMPrintProp

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
