#pragma once

namespace ORXKMPrintProp::test {

/// A program that takes what `prnprop drive` takes and prints the same, but the user acts by hand in the window of the
/// view under test, and the states are those that the window shows. The toolkit must be up already.
/// @return an ExitStatus
int DriveByHand(int argc, char** argv);

}  // namespace ORXKMPrintProp::test
