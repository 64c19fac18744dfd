#include "support/stage.h"

#include <sstream>

namespace ORXKMPrintProp::test {

std::string Characteristics(const std::string& words) {
  std::istringstream in(words);
  std::string rows;
  int position = 0;
  for (std::string word; in >> word;) {
    const auto has = [&](char flag) { return word.find(flag) != std::string::npos; };
    const std::string name = word.substr(0, word.find_first_of("QPA-"));
    rows += "IOBJNM='" + name + "' IOBJTXT='" + name + "'";
    if (!has('-')) rows += " AXIS='Y' POSIT=" + std::to_string(++position);
    if (has('Q')) rows += " PR_QUERY_BREAK='X'";
    if (has('P')) rows += " PR_PAGE_BREAK='X'";
    if (has('A')) rows += " PR_BREAK_AREA='X'";
    rows += "\n";
  }
  return rows;
}

}  // namespace ORXKMPrintProp::test
