# What is not the project's own. Whatever is missing is told in a sentence with the package that has it
# on Debian: without some of it nothing is built, without the rest a part is left out.

find_path(XXHASH_HEADERS xxhash.h)
find_library(XXHASH_LIBRARY xxhash)
if(NOT XXHASH_HEADERS OR NOT XXHASH_LIBRARY)
  message(FATAL_ERROR "xxHash is missing, which all checksums are made with. Install libxxhash-dev.")
endif()

find_path(JSON_HEADERS nlohmann/json.hpp)
if(NOT JSON_HEADERS)
  message(FATAL_ERROR "JSON for Modern C++ is missing, which answers of the console and figures of the "
                      "tool are written with. Install nlohmann-json3-dev.")
endif()

find_path(EDITLINE_HEADERS histedit.h)
find_library(EDITLINE_LIBRARY edit)
if(NOT EDITLINE_HEADERS OR NOT EDITLINE_LIBRARY)
  message(STATUS "libedit is missing: lines typed at the console have no history and no completion. "
                 "libedit-dev has it.")
endif()

find_package(Qt6 6.4 COMPONENTS Widgets Multimedia DBus Test QUIET)
if(NOT Qt6_FOUND)
  message(STATUS "Qt 6.4 or its Multimedia is missing: the window is left out, all else is built. "
                 "qt6-base-dev and qt6-multimedia-dev have it.")
endif()

find_package(GTest QUIET)
if(NOT GTest_FOUND)
  message(STATUS "GoogleTest is missing: tests and benchmarks are left out. libgtest-dev has it.")
endif()
