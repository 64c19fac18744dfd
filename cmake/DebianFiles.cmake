# Gives what is packed for Debian the form that it has there: in a folder of the package's name the documentation, the
# copyright and both changelogs; manual pages and changelogs are compressed, and nothing in binaries tells how they were
# built. Run by cpack.

# Debian's changelog has an entry for each version of ours.
file(STRINGS ${CPACK_PRNPROP_CHANGELOG} headings REGEX "^## .*[0-9]+-[0-9]+-[0-9]+$")
set(changelog "")
foreach(heading ${headings})
  string(REGEX MATCH "^## \\[(.*)\\] - (.*)$" heading ${heading})
  set(version ${CMAKE_MATCH_1})
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date --utc --rfc-email --date=${CMAKE_MATCH_2}
                  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(APPEND changelog "${CPACK_DEBIAN_PACKAGE_SOURCE} (${version}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium

  * Version ${version}; what it brings stands in changelog.gz.

 -- ${CPACK_DEBIAN_PACKAGE_MAINTAINER}  ${date}

")
endforeach()

foreach(component ${CPACK_COMPONENTS_ALL})
  string(TOUPPER ${component} name)
  set(package ${CPACK_DEBIAN_${name}_PACKAGE_NAME})
  set(prefix ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX})
  set(share ${prefix}/share)
  set(documentation ${share}/doc/${package})
  if(EXISTS ${share}/doc/${CPACK_PACKAGE_NAME})
    file(RENAME ${share}/doc/${CPACK_PACKAGE_NAME} ${documentation})
  endif()
  file(MAKE_DIRECTORY ${documentation})

  file(COPY_FILE ${CPACK_PRNPROP_CHANGELOG} ${documentation}/changelog)
  file(WRITE ${documentation}/changelog.Debian "${changelog}")
  file(GLOB_RECURSE compressed ${documentation}/changelog* ${share}/man/*)
  execute_process(COMMAND gzip -9n ${compressed} COMMAND_ERROR_IS_FATAL ANY)
  file(GLOB_RECURSE stripped ${prefix}/lib/*.a ${prefix}/bin/*)
  execute_process(COMMAND strip --strip-debug --remove-section=.comment --enable-deterministic-archives ${stripped}
                  COMMAND_ERROR_IS_FATAL ANY)

  file(READ ${CPACK_PRNPROP_COPYRIGHT} copyright)
  if(component STREQUAL program)
    # These are compiled into the program, and their licences want to be told.
    foreach(library libcli11-dev nlohmann-json3-dev)
      file(READ /usr/share/doc/${library}/copyright text)
      string(APPEND copyright "\nThe program has in it what the package ${library} has, of which this is told:\n\n${text}")
    endforeach()
  endif()
  file(WRITE ${documentation}/copyright "${copyright}")
endforeach()
# Whatever whoever packs lets others see.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_INSTALL_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
