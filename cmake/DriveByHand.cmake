# Makes a program of a hand and what starts its toolkit: it does what `prnprop drive` does in the window of a view, and
# the same is to come of it.
# prnprop_drives_by_hand(TARGET [LAUNCHER]), a command that runs the tests' commands
function(prnprop_drives_by_hand target)
  set(views ${PROJECT_SOURCE_DIR}/tests/views)
  target_sources(${target} PRIVATE ${views}/hand_drive.cpp)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE PrnPropHost)

  file(GLOB scripts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/examples/scripts/*.drive ${views}/*.drive)
  add_test(NAME ${target}
           COMMAND ${ARGN} ${views}/compare-drives $<TARGET_FILE:prnprop> $<TARGET_FILE:${target}> ${scripts})
  add_test(NAME ${target}_random
           COMMAND ${ARGN} ${views}/compare-random $<TARGET_FILE:random_script> $<TARGET_FILE:prnprop>
                   $<TARGET_FILE:${target}> 300 1)
  set_tests_properties(${target} ${target}_random PROPERTIES WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} ENVIRONMENT
                                                             "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}")
endfunction()
