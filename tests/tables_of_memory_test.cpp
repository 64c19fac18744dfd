#include "support/any_table.h"
#include "support/watched_table.h"
#include "tables/MemoryTable.h"

namespace ORXKMPrintProp::test {

TableRef MadeWatched(const std::vector<Text>& columns) {
  return Watched("table", MemoryTable::Create(columns), std::make_shared<Watch>());
}

INSTANTIATE_TEST_SUITE_P(Each, AnyTable,
                         testing::Values(TableMaker{"InMemory", MemoryTable::Create},
                                         TableMaker{"Watched", MadeWatched}),
                         NameOfTable);

}  // namespace ORXKMPrintProp::test
