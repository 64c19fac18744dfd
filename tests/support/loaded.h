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
  std::string Brief() const {
    return "general:\n" + BriefOf(Kind::General, *gen) + "dimension:\n" + BriefOf(Kind::Dimension, *dim) + "member:\n" +
           BriefOf(Kind::Member, *mem) + "attribute:\n" + BriefOf(Kind::Attribute, *atr);
  }

  TableRef gen, dim, mem, atr;
};

}  // namespace ORXKMPrintProp::test
