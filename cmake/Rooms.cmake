# Each folder of src/ is one library. A room's headers are reached through a link of its own, so that a
# room which does not name another cannot include it: the build keeps the arrows of the house.

add_library(house_rules INTERFACE)
target_compile_options(house_rules INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Werror)
# GCC 12 sees faults inside std::string that are not there once it optimises.
target_compile_options(house_rules INTERFACE -Wno-restrict -Wno-maybe-uninitialized)

function(room_headers name)
  set(gate ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${gate})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${name} ${gate}/${name} SYMBOLIC)
  add_library(${name}_headers INTERFACE)
  target_include_directories(${name}_headers INTERFACE ${gate})
endfunction()

# room(NAME [USES ROOM...] [LINKS LIBRARY...])
function(room name)
  cmake_parse_arguments(ROOM "" "" "USES;LINKS" ${ARGN})
  room_headers(${name})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${name}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources} ${CMAKE_BINARY_DIR}/rooms/${name}.cpp)
  if(NOT EXISTS ${CMAKE_BINARY_DIR}/rooms/${name}.cpp)
    file(WRITE ${CMAKE_BINARY_DIR}/rooms/${name}.cpp "// A room may stand empty.\n")
  endif()
  target_link_libraries(${name} PRIVATE house_rules PUBLIC ${name}_headers ${ROOM_USES} ${ROOM_LINKS})
endfunction()

function(qt_room name)
  room(${name} ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
endfunction()

# program(NAME SOURCE ROOM...)
function(program name source)
  if(NOT EXISTS ${PROJECT_SOURCE_DIR}/${source})
    return()
  endif()
  add_executable(${name} ${PROJECT_SOURCE_DIR}/${source})
  target_link_libraries(${name} PRIVATE house_rules ${ARGN})
endfunction()
