# A library of component classes, with version information.
# prnprop_in_proc_server(TARGET NAME of-the-file DESCRIPTION text SOURCES file... [RESOURCES line...])
function(prnprop_in_proc_server target)
  cmake_parse_arguments(SERVER "" "NAME;DESCRIPTION" "SOURCES;RESOURCES" ${ARGN})
  string(REPLACE "." "," numbers ${PROJECT_VERSION})
  list(JOIN SERVER_RESOURCES "\n" resources)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/server.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${SERVER_NAME}.rc)
  add_library(${target} SHARED ${SERVER_SOURCES} ${PROJECT_SOURCE_DIR}/src/automation/InProcServer.def
                               ${CMAKE_CURRENT_BINARY_DIR}/${SERVER_NAME}.rc)
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
