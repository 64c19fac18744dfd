#pragma once

#include "tables/Table.h"

namespace ORXKMPrintProp {

/// Shared: the host's text table with the columns `TARGETID` and `CAPTION`, none before the first
/// `ORXControlTexts`. Its key column is `TARGETID`.
extern TableRef gTextTable;

}  // namespace ORXKMPrintProp
