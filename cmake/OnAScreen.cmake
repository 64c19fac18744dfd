# Tests of Windows programs in windows: one at a time, in a Wine prefix of their own. What runs without a display beside
# them would leave that prefix without one.
function(prnprop_on_a_screen)
  set_tests_properties(
    ${ARGN} PROPERTIES SKIP_RETURN_CODE 77 TIMEOUT 600 RESOURCE_LOCK screen
                       ENVIRONMENT_MODIFICATION PRNPROP_WINE=set:${PROJECT_SOURCE_DIR}/build/wine-on-a-screen)
endfunction()
