#include <gtest/gtest.h>

#include "control/SharedValues.h"
#include "support/loaded.h"
#include "tables/RunTimeError.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {
namespace {

TEST(Load, TakesAsManyRowsAsARowNumberHas) {
  const Settings settings("IOBJNM='A'", "IOBJNM='A'");
  const auto addRow = [&] {
    const RowRef row = AddRow(*settings.atr);
    row->Value(u"IOBJNM", u"A");
    for (const char16_t* column : {u"POSIT", u"PR_COL1_WIDTH", u"PR_COL2_WIDTH"}) row->Value(column, std::int32_t{0});
  };
  while (settings.atr->RowCount() < 32767) addRow();
  ORXQueryPrnProp control;
  EXPECT_TRUE(settings.LoadInto(control));
  control.ORXDimTable();
  ASSERT_EQ(settings.atr->RowCount(), 32767);
  addRow();
  EXPECT_THROW(settings.LoadInto(control), RunTimeError);
}

TEST(StructureElements, AreAddedWithTheirKey) {
  PrnStrElemCollCls elements;
  elements.Add(u"N", u"U", true, 3, u"Title", PP_PRN_ALIGN_CENTER, true, 12, u"key");
  elements.Add(u"M", u"");
  const auto& element = *elements.Item(TextView(u"KEY"));
  EXPECT_EQ(std::tuple(element.Name(), element.UID(), element.Text(), element.Hidden(), element.Position(),
                       element.ColTitle(), element.ColAlign(), element.ColAutoWidth(), element.ColWidth()),
            std::tuple(Text(u"N"), Text(u"U"), Text(), true, 3, Text(u"Title"), PP_PRN_ALIGN_CENTER, true, 12));
  EXPECT_THROW(elements.Add(u"O", u"", false, 0, u"", PP_PRN_ALIGN_LEFT, false, 0, u"Key"), RunTimeError);
  EXPECT_EQ(elements.Count(), 2);
}

}  // namespace
}  // namespace ORXKMPrintProp::test
