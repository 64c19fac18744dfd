#include "failing_new.h"

#include <cstdlib>
#include <new>

using namespace ORXKMPrintProp::test;

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  if (gIsCounting && ++gAllocations == gFailing) return nullptr;
  return std::malloc(size > 0 ? size : 1);
}
void* operator new(std::size_t size) {
  if (void* const memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
