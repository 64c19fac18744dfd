#pragma once

#include <windows.h>

#include <oleacc.h>

#include "tables/Text.h"

namespace ORXKMPrintProp::win32 {

/// The names that screen readers give to windows, in the place of those that the system finds by itself. On systems
/// without them, and on threads without component objects, these stay.
class AccessibleNames {
 public:
  AccessibleNames();
  AccessibleNames(const AccessibleNames&) = delete;
  AccessibleNames& operator=(const AccessibleNames&) = delete;
  ~AccessibleNames();

  void Give(HWND window, const Text& name);
  void Forget(HWND window);

 private:
  IAccPropServices* services_ = nullptr;
};

}  // namespace ORXKMPrintProp::win32
