#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace ORXKMPrintProp::win32::test {

struct PaintedEntry {
  std::wstring text;
  bool isSelected = false;
};

/// What a list that has painted itself shows on the screen, compared with what it tells of its entries. An entry that
/// looks otherwise than it is told says so in its text. What is out of sight is as it is told.
std::vector<PaintedEntry> EntriesOf(HWND list);

}  // namespace ORXKMPrintProp::win32::test
