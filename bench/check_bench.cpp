// How long `prnprop check` takes for many documents, by one thread and by all processors, beside what it takes to read
// and parse the same files alone; and the most memory that the program has had by then.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

#include "host/Check.h"
#include "host/ExitStatus.h"
#include "host/SettingsDocument.h"

namespace ORXKMPrintProp::bench {
namespace {

namespace fs = std::filesystem;

/// A folder of names for one and the same document, as long as it lives.
class Folder {
 public:
  explicit Folder(std::int64_t documents) {
    fs::create_directories(path_);
    fs::copy_file(PRNPROP_EXAMPLES "/sales.json", path_ / "0.json");
    for (std::int64_t i = 1; i < documents; ++i) {
      fs::create_hard_link(path_ / "0.json", path_ / (std::to_string(i) + ".json"));
    }
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { fs::remove_all(path_); }

  const fs::path& Path() const { return path_; }

 private:
  fs::path path_ = fs::temp_directory_path() / ("prnprop-check-" + std::to_string(::getpid()));
};

void ForgetPeak() {
  ::malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << 5;
}

/// In mebibytes.
double Peak() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

void Report(benchmark::State& state) {
  state.counters["peak_MiB"] = Peak();
  state.counters["per_document"] = benchmark::Counter(
      static_cast<double>(state.range(0)), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void ReadAndParse(benchmark::State& state) {
  const Folder folder(state.range(0));
  ForgetPeak();
  for (auto _ : state) {
    for (const auto& each : fs::directory_iterator(folder.Path())) {
      benchmark::DoNotOptimize(host::ReadSettings(each.path().string()));
    }
  }
  Report(state);
}

/// Documents, and threads: 0 for one for each processor.
void Check(benchmark::State& state) {
  const Folder folder(state.range(0));
  std::ostream nowhere(nullptr);
  ForgetPeak();
  for (auto _ : state) {
    const int status = host::Check(
        {.names = {folder.Path().string()}, .jobs = static_cast<std::size_t>(state.range(1))}, nowhere, nowhere);
    if (status != host::kSuccess) state.SkipWithError("the documents did not come through");
  }
  Report(state);
}

BENCHMARK(ReadAndParse)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Check)
    ->Args({1000, 1})
    ->Args({1000, 0})
    ->Args({10000, 1})
    ->Args({10000, 0})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace ORXKMPrintProp::bench

BENCHMARK_MAIN();
