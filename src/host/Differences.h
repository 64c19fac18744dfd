#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/DifferenceWords.h"
#include "host/Snapshot.h"
#include "model/PrnPropCls.h"

namespace ORXKMPrintProp::host {

/// What has changed of what one page of the dialog shows, a line for each setting of the query, each item, and each
/// kind of break.
struct PageDifferences {
  std::int16_t page;  ///< 0 to 3, as tabs count
  Text caption;       ///< of the tab
  std::vector<Text> lines;
};

/// What has changed between two sets of settings, in plain words: only pages of which there is something to tell. The
/// captions are those of the dialog, by the text table in use.
///
/// What the settings mean is compared: codes and numbers by their values, the print order by what is printed, told in
/// as few moves as there can be. What has no effect is left out: a width while it is automatic, the second column where
/// only one prints, the level of a hierarchy that is not displayed, breaks at what is not printed. Items are the same
/// when their technical names are, of several with one name the first and so on. The layouts themselves are not told.
/// @throws RunTimeError from the text table.
std::vector<PageDifferences> DifferencesOf(const PrnPropCls& before, const PrnPropCls& after,
                                           const DifferenceWords& words);

/// The same between what two snapshots say. @throws LoadError too
std::vector<PageDifferences> DifferencesOf(const Snapshot& before, const Snapshot& after, const DifferenceWords& words);

/// In UTF-8, the lines of each page further in and below its caption.
std::vector<std::string> LinesOf(const std::vector<PageDifferences>& differences);

}  // namespace ORXKMPrintProp::host
