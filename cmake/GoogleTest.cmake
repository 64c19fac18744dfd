# GoogleTest, and how its programs become tests.
if(WIN32)
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  foreach(target gtest gtest_main)
    target_compile_options(${target} PRIVATE -w)
  endforeach()
else()
  find_package(GTest REQUIRED)
  include(GoogleTest)
endif()

# Each case is a test of its own, but where a program takes its time to start: there it is one test.
function(prnprop_discover_tests target)
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${target} COMMAND ${target} --gtest_brief=1)
  else()
    # A machine that does much else takes its time, too.
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 120 ${ARGN})
  endif()
endfunction()
