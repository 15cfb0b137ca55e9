# What is not the project's own. Whatever is missing is told in a sentence with the package that has it
# on Debian: without some of it nothing is built, without the rest a part is left out.

find_path(XXHASH_HEADERS xxhash.h)
find_library(XXHASH_LIBRARY xxhash)
if(NOT XXHASH_HEADERS)
  message(FATAL_ERROR "xxHash is missing, which all checksums are made with. Install libxxhash-dev.")
endif()
# Its header alone does, where there is no library of it.
set(packing ${PROJECT_SOURCE_DIR}/src/records/store/packing.cpp)
if(NOT XXHASH_LIBRARY)
  set(XXHASH_LIBRARY "")
  set_source_files_properties(${packing} PROPERTIES COMPILE_DEFINITIONS XXH_INLINE_ALL
                              SKIP_UNITY_BUILD_INCLUSION ON)
endif()
# It can choose the fastest code for the machine at hand where it was built so.
include(CheckCXXSymbolExists)
set(CMAKE_REQUIRED_LIBRARIES ${XXHASH_LIBRARY})
check_cxx_symbol_exists(XXH3_64bits_dispatch xxh_x86dispatch.h FASTEST_HASH)
unset(CMAKE_REQUIRED_LIBRARIES)
if(FASTEST_HASH)
  set_source_files_properties(${packing} PROPERTIES COMPILE_DEFINITIONS GRAPPLEMONT_FASTEST_HASH)
endif()

find_package(ZLIB)
if(NOT ZLIB_FOUND)
  message(FATAL_ERROR "zlib is missing, which exported games are made small with. Install zlib1g-dev.")
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
