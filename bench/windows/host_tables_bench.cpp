// Load and read-back of a host's tables that are called late-bound, beside the same tables through the contract.
// Rows are per table: dimension, attribute and member have as many each. Prints the medians of some runs in turn.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "automation/DispatchTable.h"
#include "control/ORXQueryPrnProp.h"
#include "control/SharedValues.h"
#include "samples.h"
#include "tables/TableCalls.h"
#include "tableserver/TableObjects.h"

namespace ORXKMPrintProp::bench {
namespace {

using automation::ComRef;
using automation::DispatchTable;

/// The same table as one of a host.
TableRef HostTable(const std::shared_ptr<MemoryTable>& table) {
  const auto object = ComRef<IUnknown>::Taken(tableserver::MakeTable(table)).As<IDispatch>();
  return DispatchTable::Of(object.Get());
}

struct Tables {
  TableRef general, dimension, attribute, member;
};

double RoundInMilliseconds(const Tables& tables) {
  ORXQueryPrnProp control;
  const auto start = std::chrono::steady_clock::now();
  if (!control.ORXSetPrnTables(tables.general, tables.dimension, tables.member, tables.attribute)) return -1;
  if (!control.ORXDimTable()) return -1;
  const double taken = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  ReleaseSharedValues();
  return taken;
}

double Median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  return times[times.size() / 2];
}

void Measure(std::int64_t rows) {
  const auto samples = MakeSamples(rows);
  std::vector<double> direct, late;
  for (int run = 0; run < 7; ++run) {
    const auto general = GeneralTable(), dimension = TableOf(samples[0]), attribute = TableOf(samples[1]),
               member = TableOf(samples[2]);
    late.push_back(RoundInMilliseconds(
        {HostTable(general), HostTable(dimension), HostTable(attribute), HostTable(member)}));
    direct.push_back(RoundInMilliseconds({GeneralTable(), dimension, attribute, member}));
  }
  std::printf("%6d rows: direct %8.2f ms, late-bound %8.2f ms, ratio %.2f, late-bound a row %.2f us\n",
              static_cast<int>(rows), Median(direct), Median(late), Median(late) / Median(direct),
              1000 * Median(late) / (3.0 * static_cast<double>(rows)));
}

}  // namespace
}  // namespace ORXKMPrintProp::bench

int main() {
  for (const std::int64_t rows : {1000, 32767}) ORXKMPrintProp::bench::Measure(rows);
}
