#include "host/SettingsColumns.h"

#include <algorithm>

#include "model/PrnPropCls.h"

namespace ORXKMPrintProp::host {
namespace {

void AddColumn(std::vector<Text>& columns, TextView name) {
  if (std::find(columns.begin(), columns.end(), name) == columns.end()) columns.emplace_back(name);
}

template <class Class>
void AddColumns(std::vector<Text>& columns, ColumnsOf<Class> added) {
  for (const auto& column : added) {
    if (column.write) AddColumn(columns, column.name);
  }
  for (const auto& column : added) AddColumn(columns, column.name);
}

}  // namespace

std::vector<Text> KnownColumns(std::string_view table) {
  std::vector<Text> columns;
  if (table == "general") {
    AddColumns(columns, PrnPropCls::Columns());
  } else if (table == "dimension") {
    AddColumns(columns, PrnCharCls::Columns());
    AddColumns(columns, PrnStructureCls::Columns());
  } else if (table == "member") {
    columns = {u"IOBJNM"};
    AddColumns(columns, PrnStrElemCls::Columns());
  } else if (table == "attribute") {
    columns = {u"IOBJNM"};
    AddColumns(columns, PrnAttrCls::Columns());
  } else {
    columns = {u"TARGETID", u"CAPTION"};
  }
  return columns;
}

std::vector<Text> StructureFirst(const std::vector<Text>& columns) {
  std::vector<Text> ordered;
  AddColumns(ordered, PrnStructureCls::Columns());
  // A document may name the column of structures in a table that has no others of theirs.
  std::erase_if(ordered,
                [&](const Text& column) { return std::find(columns.begin(), columns.end(), column) == columns.end(); });
  for (const Text& column : columns) AddColumn(ordered, column);
  return ordered;
}

}  // namespace ORXKMPrintProp::host
