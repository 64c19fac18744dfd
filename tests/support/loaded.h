#pragma once

#include <string>

#include "control/ORXQueryPrnProp.h"
#include "support/table_text.h"

namespace ORXKMPrintProp::test {

/// Four tables of a host, from the notation of table_text.h.
struct Settings {
  explicit Settings(const std::string& dimension = "", const std::string& attribute = "",
                    const std::string& member = "", const std::string& general = "TITLE='T'")
      : gen(TableFrom(Kind::General, general)),
        dim(TableFrom(Kind::Dimension, dimension)),
        mem(TableFrom(Kind::Member, member)),
        atr(TableFrom(Kind::Attribute, attribute)) {}

  bool LoadInto(ORXQueryPrnProp& control) const { return control.ORXSetPrnTables(gen, dim, mem, atr); }

  /// The cells of all four tables that differ from those of items about which nothing is set.
  std::string Brief() const;

  TableRef gen, dim, mem, atr;
};

/// The tables that a control takes and gives back.
struct TableOfControl {
  const char* name;
  Kind kind;
  TableRef Settings::*table;
  TableRef (ORXQueryPrnProp::*read)();
};
inline constexpr TableOfControl kTables[] = {
    {"general", Kind::General, &Settings::gen, &ORXQueryPrnProp::ORXGenPropTable},
    {"dimension", Kind::Dimension, &Settings::dim, &ORXQueryPrnProp::ORXDimTable},
    {"member", Kind::Member, &Settings::mem, &ORXQueryPrnProp::ORXMemTable},
    {"attribute", Kind::Attribute, &Settings::atr, &ORXQueryPrnProp::ORXAtrTable},
};

inline std::string Settings::Brief() const {
  std::string text;
  for (const TableOfControl& each : kTables) text += each.name + (":\n" + BriefOf(each.kind, *(this->*each.table)));
  return text;
}

}  // namespace ORXKMPrintProp::test
