# Installs the headers that hosts and views need below include/ORXKMPrintProp, with that folder ahead of the others in
# the includes between them: whoever uses the library has no folder of a general name on his path.
function(orxkmprintprop_install_headers)
  foreach(folder ${ARGN})
    file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR}/src CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
    list(FILTER headers EXCLUDE REGEX "/(DialogTexts|TwoColumns)\\.h$")
    install(
      CODE "
      foreach(header ${headers})
        file(READ \"${PROJECT_SOURCE_DIR}/src/\${header}\" text)
        string(REGEX REPLACE \"#include \\\"([a-z]+/)\" \"#include \\\"ORXKMPrintProp/\\\\1\" text \"\${text}\")
        set(installed \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_INCLUDEDIR}/ORXKMPrintProp/\${header}\")
        message(STATUS \"Installing: \${installed}\")
        file(WRITE \"\${installed}\" \"\${text}\")
      endforeach()")
  endforeach()
endfunction()
