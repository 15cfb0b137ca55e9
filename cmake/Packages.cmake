# Packages by CPack: `cpack -G DEB` and `cpack -G TGZ` in the build folder of the preset package.
# debian/ makes the same three by Debian's own tools.

set(CPACK_PACKAGE_NAME grapplemont)
set(CPACK_PACKAGE_CONTACT "The Grapplemont developers <grapplemont@grapplemont.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "management simulation of professional wrestling, told in prose")
set(CPACK_PACKAGE_HOMEPAGE_URL "${GRAPPLEMONT_HOMEPAGE}")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSES/GPL-3.0-or-later.txt)
set(CPACK_RESOURCE_FILE_README ${PROJECT_SOURCE_DIR}/README.md)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_COMPONENTS_ALL tools data)
if(TARGET grapplemont)
  list(PREPEND CPACK_COMPONENTS_ALL window)
endif()

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/Compressed.cmake)
set(CPACK_GRAPPLEMONT_CHANGELOG ${PROJECT_SOURCE_DIR}/debian/changelog)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(same "(= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME grapplemont)
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME grapplemont-tools)
set(CPACK_DEBIAN_DATA_PACKAGE_NAME grapplemont-data)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "grapplemont-data ${same}, fonts-inter, fonts-dejavu-core")
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "grapplemont-tools ${same}, qt6-wayland")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "grapplemont-data ${same}")
set(CPACK_DEBIAN_DATA_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DATA_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_WINDOW_DESCRIPTION
    "You run one promotion, one day at a time, in a world of rivals.\n\
This package holds the game in its window.")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
    "You run one promotion, one day at a time, in a world of rivals.\n\
This package holds the same game as lines of text, for terminals and\n\
scripts, and the tool that builds, checks and plays worlds.")
set(CPACK_COMPONENT_DATA_DESCRIPTION
    "You run one promotion, one day at a time, in a world of rivals.\n\
This package holds the world, the pictures and the documents.")

include(CPack)
