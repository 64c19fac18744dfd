#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "support/table_text.h"
#include "tables/Table.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::test {

/// One kind of table. What the control may rely on in any of them is tested for each kind for which the suite AnyTable
/// is instantiated.
struct TableMaker {
  const char* name;
  std::function<TableRef(const std::vector<Text>& columns)> make;
};

class AnyTable : public testing::TestWithParam<TableMaker> {
 protected:
  AnyTable() {
    for (const char16_t* const key : {u"a", u"b", u"c"}) AddRow(*table)->Value(u"KEY", key);
  }

  /// The rows in order, each with its number and its cells.
  std::string Rows() const {
    std::string text;
    const auto rows = EachRow(*table);
    while (const RowRef row = rows->Next()) {
      text += std::to_string(row->RowNumber()) + ":" + ToString(row->Value(u"KEY")) + "," +
              ToString(row->Value(u"VALUE")) + " ";
    }
    return text;
  }

  TableRef table = GetParam().make({u"KEY", u"VALUE"});
};

inline std::string NameOfTable(const testing::TestParamInfo<TableMaker>& maker) { return maker.param.name; }

}  // namespace ORXKMPrintProp::test
