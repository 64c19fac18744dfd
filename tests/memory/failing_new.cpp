#include "failing_new.h"

#include <cstdlib>
#include <new>

using namespace ORXKMPrintProp::test;

void* operator new(std::size_t size) {
  if (gIsCounting && ++gAllocations == gFailing) throw std::bad_alloc();
  if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
