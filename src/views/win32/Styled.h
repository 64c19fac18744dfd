#pragma once

#include <windows.h>

namespace ORXKMPrintProp::win32 {

/// The module that this code is in: a library's file, or the program's.
HMODULE OwnModule();

/// As long as it lives, windows are made as the manifest of this code's file says, with the user's visual style; in a
/// program, or without a manifest, as elsewhere.
class Styled {
 public:
  Styled();
  Styled(const Styled&) = delete;
  Styled& operator=(const Styled&) = delete;
  ~Styled();

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
};

}  // namespace ORXKMPrintProp::win32
