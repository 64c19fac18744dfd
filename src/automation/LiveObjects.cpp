#include "automation/LiveObjects.h"

#include <algorithm>
#include <mutex>

namespace ORXKMPrintProp::automation {
namespace {

std::mutex gMutex;
long gLive = 0;
long gLocks = 0;
// There are systems where a library that ends on one thread while another loads it breaks.
ITypeLib* gTypeLibrary = nullptr;
thread_local long gLiveOfThread = 0;

}  // namespace

void (*LiveObjects::onLastOfThread)() = nullptr;

LiveObjects::LiveObjects() {
  const std::lock_guard lock(gMutex);
  ++gLive;
  ++gLiveOfThread;
}

LiveObjects::~LiveObjects() {
  if (--gLiveOfThread == 0 && onLastOfThread) onLastOfThread();
  const std::lock_guard lock(gMutex);
  if (gLive == 1 && gTypeLibrary) {
    gTypeLibrary->Release();
    gTypeLibrary = nullptr;
  }
  --gLive;
}

long LiveObjects::Count() {
  const std::lock_guard lock(gMutex);
  return gLive + gLocks;
}

void LiveObjects::Lock(bool lock) {
  const std::lock_guard guard(gMutex);
  gLocks = std::max(gLocks + (lock ? 1 : -1), 0L);
}

ITypeLib& LiveObjects::TypeLibrary(ITypeLib* (*load)()) {
  const std::lock_guard lock(gMutex);
  if (!gTypeLibrary) gTypeLibrary = load();
  return *gTypeLibrary;
}

}  // namespace ORXKMPrintProp::automation
