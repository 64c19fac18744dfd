#include "samples.h"

#include "model/PrnPropCls.h"
#include "tables/Conversions.h"
#include "tables/TableCalls.h"

namespace ORXKMPrintProp::bench {
namespace {

/// The columns that are written, behind the one that names the owner if there is one.
template <class Class>
std::vector<Text> WrittenColumns(const char16_t* owner = nullptr) {
  std::vector<Text> names;
  if (owner) names.emplace_back(owner);
  for (const auto& column : Class::Columns()) {
    if (column.write) names.emplace_back(column.name);
  }
  return names;
}

Text NumberedName(const char16_t* prefix, std::int64_t number) {
  return prefix + ToText(static_cast<std::int32_t>(number));
}

Text CellOf(const Text& column, std::int64_t row) {
  if (column == u"POSIT" || column == u"PR_COL1_WIDTH" || column == u"PR_COL2_WIDTH" || column == u"STRT_LVL") {
    return ToText(static_cast<std::int32_t>(row % 100));
  }
  if (column == u"PR_COL1_HEADER" || column == u"PR_COL2_HEADER") return NumberedName(u"Title of ", row);
  if (column.ends_with(u"ALIGN")) return u"R";
  if (column == u"IOBJPRSNT") return u"3";
  if (column == u"AXIS") return u"Y";
  if (column == u"HIENM" || column == u"VERSION" || column == u"DATETO") return u"20261231";
  return row % 2 == 0 ? u"X" : u" ";
}

Sample MakeSample(std::vector<Text> columns, std::int64_t rows, const char16_t* name, const char16_t* text) {
  Sample sample{std::move(columns), {}};
  for (std::int64_t row = 1; row <= rows; ++row) {
    auto& cells = sample.rows.emplace_back();
    for (const Text& column : sample.columns) {
      if (column == u"IOBJNM") {
        cells.push_back(NumberedName(u"CHAR_", row));
      } else if (column == name) {
        cells.push_back(NumberedName(u"NAME_", row));
      } else if (column == text) {
        cells.push_back(NumberedName(u"Display text ", row));
      } else {
        cells.push_back(CellOf(column, row));
      }
    }
  }
  return sample;
}

}  // namespace

std::vector<Sample> MakeSamples(std::int64_t rows) {
  auto dimensionColumns = WrittenColumns<PrnCharCls>();
  dimensionColumns.emplace_back(u"IS_STRUCTURE");
  std::vector<Sample> samples{
      MakeSample(dimensionColumns, rows, u"", u"IOBJTXT"),
      MakeSample(WrittenColumns<PrnAttrCls>(u"IOBJNM"), rows, u"ATTRINM", u"ATTRITXT"),
      MakeSample(WrittenColumns<PrnStrElemCls>(u"IOBJNM"), rows, u"CHAVL", u"CHAVLTXT"),
  };
  for (auto& row : samples[0].rows) row.back() = u" ";
  samples[0].rows.back().back() = u"X";
  for (auto& row : samples[2].rows) row[0] = samples[0].rows.back()[0];
  return samples;
}

std::shared_ptr<MemoryTable> TableOf(const Sample& sample) {
  auto table = MemoryTable::Create(sample.columns);
  for (const auto& cells : sample.rows) {
    const RowRef row = AddRow(*table);
    for (std::size_t i = 0; i < cells.size(); ++i) row->Value(sample.columns[i], cells[i]);
  }
  return table;
}

std::shared_ptr<MemoryTable> GeneralTable() {
  auto table = MemoryTable::Create(WrittenColumns<PrnPropCls>());
  const RowRef row = AddRow(*table);
  for (const char16_t* margin : {u"MARGIN_TOP", u"MARGIN_BOTTOM", u"MARGIN_LEFT", u"MARGIN_RIGHT"}) {
    row->Value(margin, std::int16_t{10});
  }
  return table;
}

}  // namespace ORXKMPrintProp::bench
