// What the control may rely on in any table of a host.

#include "support/any_table.h"
#include "tables/RunTimeError.h"

namespace ORXKMPrintProp::test {

TEST_P(AnyTable, KeepsCellsOfEveryTypeInRowsThatCountFromOne) {
  EXPECT_EQ(Rows(), "1:'a', 2:'b', 3:'c', ") << "a cell starts empty";
  const char* const cells[] = {"'x y'", "''", "7", "-0.5", "True", ""};
  for (const char* const cell : cells) {
    RowAt(*table, 2)->Value(u"VALUE", VariantFrom(cell));
    EXPECT_EQ(Rows(), "1:'a', 2:'b'," + std::string(cell) + " 3:'c', ");
  }
  RowAt(*table, 3)->Value(u"VALUE", std::int16_t{12});
  EXPECT_EQ(RowAt(*table, 3)->Value(u"VALUE"), Variant(std::int16_t{12})) << "of the type that was set";
}

TEST_P(AnyTable, FailsForWhatIsNotThereAndChangesNothing) {
  const std::string before = Rows();
  for (const std::int32_t number : {-1, 0, 4}) EXPECT_THROW(RowAt(*table, number), RunTimeError) << number;
  for (const TextView column : {u"", u"NONE", u"VALUE "}) {
    EXPECT_THROW(RowAt(*table, 1)->Value(column), RunTimeError);
    EXPECT_THROW(RowAt(*table, 1)->Value(column, u"x"), RunTimeError);
    EXPECT_THROW(table->Columns(column), RunTimeError);
  }
  EXPECT_EQ(Rows(), before);
}

TEST_P(AnyTable, FindsARowByItsKeyColumn) {
  const auto found = [this](const Text& key) -> std::string {
    try {
      const RowRef row = RowsOf(*table)->Item(key);
      return row ? std::to_string(row->RowNumber()) : "none";
    } catch (const RunTimeError&) {
      return "none";
    }
  };
  RowAt(*table, 1)->Value(u"VALUE", u"c");
  table->Columns()->KeyColumn(table->Columns(u"KEY")->Index());
  EXPECT_EQ(found(u"a") + found(u"c") + found(u"x"), "13none");
  table->Columns()->KeyColumn(table->Columns(u"VALUE")->Index());
  EXPECT_EQ(found(u"a") + found(u"c") + found(u"x"), "none1none");
}

TEST_P(AnyTable, IsEmptiedWithItsColumnsAndFilledAnew) {
  const auto rows = EachRow(*table);
  EXPECT_EQ(rows->Next()->RowNumber(), 1);
  RowsOf(*table)->RemoveAll();
  EXPECT_EQ(table->RowCount(), 0);
  EXPECT_EQ(Rows(), "");
  const RowRef row = AddRow(*table);
  row->Value(u"VALUE", u"new");
  EXPECT_EQ(Rows(), "1:,'new' ");
  EXPECT_EQ(table->RowCount(), 1);
}

}  // namespace ORXKMPrintProp::test
