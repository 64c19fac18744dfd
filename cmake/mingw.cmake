# Toolchain: Windows, from Linux, by mingw-w64. PRNPROP_MINGW is x86_64 or i686. Everything is linked into the binaries,
# which then need the system's own libraries alone.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${PRNPROP_MINGW})
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PRNPROP_MINGW)

set(CMAKE_C_COMPILER ${PRNPROP_MINGW}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${PRNPROP_MINGW}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${PRNPROP_MINGW}-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

set(CMAKE_FIND_ROOT_PATH /usr/${PRNPROP_MINGW}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()

# What is built runs under Wine. There is none for programs of 32 bits.
if(PRNPROP_MINGW STREQUAL x86_64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/under-wine)
endif()
