#include "support/any_table.h"
#include "tables/MemoryTable.h"

namespace ORXKMPrintProp::test {

INSTANTIATE_TEST_SUITE_P(Each, AnyTable, testing::Values(TableMaker{"InMemory", MemoryTable::Create}), NameOfTable);

}  // namespace ORXKMPrintProp::test
