#include "automation/DispatchTable.h"
#include "automation/foreign_objects.h"
#include "support/any_table.h"

namespace ORXKMPrintProp::test {

using automation::DispatchTable;

TableMaker Made(const char* name, Known known) {
  return {name, [known](const std::vector<Text>& columns) {
            return DispatchTable::Of(Foreign(MakeHostTable(MemoryTable::Create(columns)), known, std::make_shared<HostWatch>()).Get());
          }};
}

INSTANTIATE_TEST_SUITE_P(OfAHost, AnyTable,
                         testing::Values(TableMaker{"Plain",
                                                    [](const std::vector<Text>& columns) {
                                                      return DispatchTable::Of(MakeHostTable(MemoryTable::Create(columns)).Get());
                                                    }},
                                         Made("KnownByNames", Known::ByNames),
                                         Made("KnownByNumbers", Known::ByNumbers),
                                         Made("OfAScript", Known::AsScriptsHave)),
                         NameOfTable);

TEST(HostTables, AreAskedOnceForEachMemberAndOnceForACell) {
  const auto watch = std::make_shared<HostWatch>();
  const auto table = DispatchTable::Of(Foreign(MakeHostTable(MemoryTable::Create({u"A", u"B"})), Known::ByNumbers, watch).Get());
  for (int i = 0; i < 20; ++i) AddRow(*table)->Value(u"A", u"x");
  watch->calls.clear();
  const auto rows = EachRow(*table);
  while (const RowRef row = rows->Next()) row->Value(u"B");
  const auto count = [&](const std::string& call) { return std::count(watch->calls.begin(), watch->calls.end(), call); };
  EXPECT_EQ(count("Value(B)"), 20);
  EXPECT_EQ(count("Rows") + count("_NewEnum"), 2);
  EXPECT_EQ(watch->calls.size(), 22u + static_cast<std::size_t>(count("Next"))) << "no look-up again";
}

}  // namespace ORXKMPrintProp::test
