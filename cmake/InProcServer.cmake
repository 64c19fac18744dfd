include(${CMAKE_CURRENT_LIST_DIR}/WindowsResources.cmake)

# A library of component classes, with version information.
# prnprop_in_proc_server(TARGET NAME of-the-file DESCRIPTION text SOURCES file... [RESOURCES line...] [DEPENDS file...])
function(prnprop_in_proc_server target)
  cmake_parse_arguments(SERVER "" "NAME;DESCRIPTION" "SOURCES;RESOURCES;DEPENDS" ${ARGN})
  add_library(${target} SHARED ${SERVER_SOURCES} ${PROJECT_SOURCE_DIR}/src/automation/InProcServer.def)
  prnprop_windows_resources(
    ${target} FILE ${SERVER_NAME}.dll
    DESCRIPTION ${SERVER_DESCRIPTION}
    RESOURCES ${SERVER_RESOURCES}
    DEPENDS ${SERVER_DEPENDS})
  set_target_properties(
    ${target} PROPERTIES PREFIX "" OUTPUT_NAME ${SERVER_NAME} RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
  target_link_libraries(${target} PRIVATE PrnPropAutomation)
  install(TARGETS ${target} RUNTIME DESTINATION . COMPONENT component)
  target_link_options(${target} PRIVATE -s -Wl,--kill-at)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # The entry points are exported without the number of bytes that they take from the stack.
    target_link_options(${target} PRIVATE -Wl,--enable-stdcall-fixup)
  endif()
endfunction()
