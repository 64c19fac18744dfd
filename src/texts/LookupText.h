#pragma once

#include <span>

#include "tables/PerThread.h"
#include "tables/Table.h"

namespace ORXKMPrintProp {

/// Shared: the host's text table with the columns `TARGETID` and `CAPTION`, none before the first
/// `ORXControlTexts`. Its key column is `TARGETID`.
extern thread_local PerThread<TableRef> gTextTable;

namespace ModPrnGen {

/// The text to show for the key: that of the text table, or the default where the table has no such key.
///
/// An "&" in the text is a placeholder, read with the number in the two characters behind it: it and the one
/// character after it give way to the value of that number, which for a number without a value is the empty text.
/// An "&" without a number counts as number 0, the default. What has been put in is not looked at again.
/// @param Key as it stands in `TARGETID`.
/// @param Values the default text, then the values for the placeholders 1, 2 ...; at least one.
/// @throws RunTimeError (Index) without a default, (Type) for one that is an object; from a row of the table that has
/// no cell `CAPTION`. A look-up that fails counts as an unknown key.
Text LookupText(const Text& Key, std::span<const Variant> Values);

/// The same with a default alone.
Text LookupText(TextView Key, TextView Default);

}  // namespace ModPrnGen
}  // namespace ORXKMPrintProp
