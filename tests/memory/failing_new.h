#pragma once

#include <cstddef>

namespace ORXKMPrintProp::test {

inline std::size_t gAllocations = 0;  ///< while they are counted
inline std::size_t gFailing = 0;      ///< which of them fails, 0 for none
inline bool gIsCounting = false;

}  // namespace ORXKMPrintProp::test
