#pragma once

#include <ole2.h>

namespace ORXKMPrintProp::automation {

/// One of this library's objects, as long as it lives: so it is known when the library can go, and when to let go of
/// what threads hold.
class LiveObjects {
 public:
  LiveObjects();
  LiveObjects(const LiveObjects&) = delete;
  LiveObjects& operator=(const LiveObjects&) = delete;
  ~LiveObjects();

  /// In all threads, with the locks that hosts hold.
  static long Count();
  static void Lock(bool lock);
  /// Called on a thread when the last object that it has made goes.
  static void (*onLastOfThread)();
  /// What the first one that asks has loaded is there for all, as long as one of them lives, on whatever thread.
  /// @throws what `load` throws.
  static ITypeLib& TypeLibrary(ITypeLib* (*load)());
};

}  // namespace ORXKMPrintProp::automation
