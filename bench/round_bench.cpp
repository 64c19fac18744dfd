// The way of settings through the control, load and read-back, beside two others for the same cells: a plain copy
// of the texts, and a database in memory. Rows are per table: dimension, attribute and member have as many each.

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "control/ORXQueryPrnProp.h"
#include "model/PrnPropCls.h"
#include "samples.h"
#include "tables/Conversions.h"
#include "tables/MemoryTable.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::bench {
namespace {

std::int64_t CellCount(const std::vector<Sample>& samples) {
  std::int64_t cells = 0;
  for (const Sample& sample : samples) cells += static_cast<std::int64_t>(sample.columns.size() * sample.rows.size());
  return cells;
}

void Report(benchmark::State& state, std::int64_t cells) {
  state.counters["per_cell"] = benchmark::Counter(
      static_cast<double>(cells), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void Check(bool condition) {
  if (!condition) throw std::runtime_error("the settings did not go through");
}

/// Tables whose read-back can be loaded again, so that each round does the same work.
struct LoadedTables {
  explicit LoadedTables(const std::vector<Sample>& samples)
      : general(GeneralTable()), dim(TableOf(samples[0])), atr(TableOf(samples[1])), mem(TableOf(samples[2])) {}

  TableRef general, dim, atr, mem;
};

/// What the heap has grown by after the action, in bytes.
template <class Action>
std::int64_t HeapOf(Action action) {
  const auto before = mallinfo2().uordblks;
  action();
  return static_cast<std::int64_t>(mallinfo2().uordblks) - static_cast<std::int64_t>(before);
}

void Load(benchmark::State& state) {
  const auto samples = MakeSamples(state.range(0));
  const LoadedTables tables(samples);
  ORXQueryPrnProp control;
  for (auto _ : state) {
    Check(control.ORXSetPrnTables(tables.general, tables.dim, tables.mem, tables.atr));
    state.PauseTiming();
    control.ORXGenPropTable();
    state.ResumeTiming();
  }
  Report(state, CellCount(samples));
}

void ReadBack(benchmark::State& state) {
  const auto samples = MakeSamples(state.range(0));
  const LoadedTables tables(samples);
  ORXQueryPrnProp control;
  Check(control.ORXSetPrnTables(tables.general, tables.dim, tables.mem, tables.atr));
  for (auto _ : state) Check(control.ORXDimTable() != nullptr);
  Report(state, CellCount(samples));
}

void Both(benchmark::State& state) {
  const auto samples = MakeSamples(state.range(0));
  const LoadedTables tables(samples);
  ORXQueryPrnProp control;
  for (auto _ : state) {
    Check(control.ORXSetPrnTables(tables.general, tables.dim, tables.mem, tables.atr));
    Check(control.ORXDimTable() != nullptr);
  }
  Report(state, CellCount(samples));
  gPrnProp.reset();
  state.counters["bytes_per_row"] =
      static_cast<double>(
          HeapOf([&] { Check(control.ORXSetPrnTables(tables.general, tables.dim, tables.mem, tables.atr)); })) /
      static_cast<double>(3 * state.range(0));
}

/// The texts of all cells, copied once.
void PlainCopy(benchmark::State& state) {
  const auto samples = MakeSamples(state.range(0));
  for (auto _ : state) {
    for (const Sample& sample : samples) {
      Rows copy = sample.rows;
      benchmark::DoNotOptimize(copy);
    }
  }
  Report(state, CellCount(samples));
}

class Database {
 public:
  Database() { Check(sqlite3_open(":memory:", &db_) == SQLITE_OK); }
  ~Database() { sqlite3_close(db_); }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void Run(const std::string& statement) {
    Check(sqlite3_exec(db_, statement.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK);
  }

  void Create(const std::string& table, const Sample& sample) {
    std::string columns;
    for (const Text& column : sample.columns) columns += (columns.empty() ? "" : ", ") + ToAscii(column) + " TEXT";
    Run("CREATE TABLE " + table + " (" + columns + ")");
    Write(table, sample.rows);
  }

  Rows Read(const std::string& table) {
    Rows rows;
    sqlite3_stmt* const statement = Prepare("SELECT * FROM " + table);
    const int width = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
      auto& cells = rows.emplace_back();
      cells.reserve(static_cast<std::size_t>(width));
      for (int i = 0; i < width; ++i) {
        const void* const cell = sqlite3_column_text16(statement, i);
        const auto length = static_cast<std::size_t>(sqlite3_column_bytes16(statement, i)) / sizeof(char16_t);
        cells.emplace_back(static_cast<const char16_t*>(cell), length);
      }
    }
    sqlite3_finalize(statement);
    return rows;
  }

  void Write(const std::string& table, const Rows& rows) {
    Run("BEGIN");
    Run("DELETE FROM " + table);
    std::string places;
    for (std::size_t i = 0; i < rows.front().size(); ++i) places += i == 0 ? "?" : ", ?";
    sqlite3_stmt* const statement = Prepare("INSERT INTO " + table + " VALUES (" + places + ")");
    for (const auto& cells : rows) {
      for (std::size_t i = 0; i < cells.size(); ++i) {
        const int bytes = static_cast<int>(cells[i].size() * sizeof(char16_t));
        sqlite3_bind_text16(statement, static_cast<int>(i) + 1, cells[i].data(), bytes, SQLITE_STATIC);
      }
      Check(sqlite3_step(statement) == SQLITE_DONE);
      sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    Run("COMMIT");
  }

 private:
  sqlite3_stmt* Prepare(const std::string& text) {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(db_, text.c_str(), -1, &statement, nullptr) == SQLITE_OK);
    return statement;
  }

  sqlite3* db_ = nullptr;
};

/// Reads all rows, then deletes and inserts them again with one prepared statement in one transaction.
void Sqlite(benchmark::State& state) {
  const auto samples = MakeSamples(state.range(0));
  const std::string names[] = {"dimension", "attribute", "member"};
  Database database;
  for (std::size_t i = 0; i < samples.size(); ++i) database.Create(names[i], samples[i]);
  for (auto _ : state) {
    for (const std::string& name : names) database.Write(name, database.Read(name));
  }
  Report(state, CellCount(samples));
}

void EverySize(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10)->Arg(100)->Arg(1000)->Arg(10000)->Arg(32767)->Unit(benchmark::kMillisecond);
}

BENCHMARK(Load)->Apply(EverySize);
BENCHMARK(ReadBack)->Apply(EverySize);
BENCHMARK(Both)->Apply(EverySize);
BENCHMARK(PlainCopy)->Apply(EverySize);
BENCHMARK(Sqlite)->Apply(EverySize);

}  // namespace
}  // namespace ORXKMPrintProp::bench

BENCHMARK_MAIN();
