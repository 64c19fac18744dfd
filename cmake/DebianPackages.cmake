# The packages for Debian, one of each component of what is installed: `cpack` makes them. In a build for the prefix
# /usr, as the preset `packages` is, they have their files where Debian has them.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL library qt_view program)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SOURCE orxkmprintprop)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "ORXKMPrintProp maintainers <maintainers@users.noreply.c-seed-0a206e5f.example>")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME liborxkmprintprop-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
    "batch-print settings of a query - development files
ORXQueryPrnProp takes the print settings of a query as four tables, lets a
user edit them on a dialog of four pages, and hands the same tables back.

This package has the headers and the static library, for CMake and for
pkg-config, and an example. What draws the dialog comes apart from it.")

set(CPACK_DEBIAN_QT_VIEW_PACKAGE_NAME liborxkmprintprop-qt-dev)
set(CPACK_DEBIAN_QT_VIEW_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_QT_VIEW_PACKAGE_DEPENDS
    "liborxkmprintprop-dev (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}), qt6-base-dev")
set(CPACK_COMPONENT_QT_VIEW_DESCRIPTION
    "batch-print settings of a query, dialog in Qt 6 - development files
ORXQueryPrnProp takes the print settings of a query as four tables, lets a
user edit them on a dialog of four pages, and hands the same tables back.

This package has the headers and the static library of the view that shows
the dialog in a window of Qt 6, for CMake.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME prnprop)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# What Qt says by itself, in other languages.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS qt6-translations-l10n)
set(CPACK_COMPONENT_PROGRAM_DESCRIPTION
    "look at and edit the batch-print settings of a query
A reporting client lets its users decide how a query prints: which of its
characteristics, attributes and structure elements, in which order, in how
many columns, and where a new page begins. prnprop edits such settings in a
window, checks documents of them, tells in plain words what would be printed
and what differs between two of them, and plays scripts.")

# What a package has beside what is installed, made from these.
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/DebianFiles.cmake)
set(CPACK_PRNPROP_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(CPACK_PRNPROP_COPYRIGHT ${PROJECT_SOURCE_DIR}/cmake/debian-copyright)
include(CPack)
