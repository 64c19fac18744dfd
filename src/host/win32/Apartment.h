#pragma once

#include <windows.h>

#include <objbase.h>

namespace ORXKMPrintProp::host {

/// As long as it lives, the thread can use the system's component objects.
class Apartment {
 public:
  Apartment() { ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() { ::CoUninitialize(); }
};

}  // namespace ORXKMPrintProp::host
