# Each room of src/ is a library for its rules (src/ROOM/) and, where it has some, one for its screens
# (src/ROOM/screens/), named ROOM_screens. A large room has sub-folders, each a library of its own,
# named ROOM_FOLDER. The headers of a folder are reached through links of their own, so that what does
# not name a folder cannot include it: the build keeps the arrows of the house.

add_library(house_rules INTERFACE)
# Another compiler, or the next one, knows warnings that nobody here has seen: who just builds the game
# is not stopped by them. The presets that the project is worked on with are.
option(GRAPPLEMONT_WERROR "Stop at warnings" OFF)
target_compile_options(house_rules INTERFACE -Wall -Wextra -Wpedantic -Wconversion
                                             $<$<BOOL:${GRAPPLEMONT_WERROR}>:-Werror>)
# GCC 12 sees faults inside std::string that are not there once it optimises.
set(gcc_only -Wno-restrict -Wno-maybe-uninitialized -Wno-stringop-overflow)
target_compile_options(house_rules INTERFACE "$<$<CXX_COMPILER_ID:GNU>:${gcc_only}>")
# Told by the presets that stop at warnings, without stopping: what optimised code seems to do with a
# pointer is often no fault. GCC's full -Wshadow also minds the words of an enum class.
set(told_gcc -Wshadow=local -Wno-error=shadow=local)
set(told_clang -Wshadow -Wno-error=shadow)
set(told -Wnull-dereference -Wno-error=null-dereference)
if(GRAPPLEMONT_WERROR)
  target_compile_options(house_rules INTERFACE
    ${told} "$<$<CXX_COMPILER_ID:GNU>:${told_gcc}>" "$<$<CXX_COMPILER_ID:Clang>:${told_clang}>")
endif()
# Clang counts among conversions what GCC does not where the language is C++.
target_compile_options(house_rules INTERFACE $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)

if(WIN32)
  target_compile_definitions(house_rules INTERFACE UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
                                                   _POSIX_C_SOURCE=200809L)
  # The standard library's headers are the cross compiler's own; these are not with them.
  target_include_directories(house_rules SYSTEM INTERFACE ${XXHASH_HEADERS} ${JSON_HEADERS})
endif()

# What nearly every file reads is read by the compiler once: one header for rules, one that adds the
# screen model, one that adds GoogleTest. `precompile(TARGET HEADER)` makes such a target, and
# `precompiled(TARGET FROM)` lets another use it.
option(GRAPPLEMONT_PCH "Precompile the headers that nearly every file reads" ON)
function(precompile name header)
  file(WRITE ${CMAKE_BINARY_DIR}/pch/${name}.cpp.new "// Holds ${header}.\n")
  file(COPY_FILE ${CMAKE_BINARY_DIR}/pch/${name}.cpp.new ${CMAKE_BINARY_DIR}/pch/${name}.cpp
       ONLY_IF_DIFFERENT)
  add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/pch/${name}.cpp)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake)
  target_link_libraries(${name} PRIVATE house_rules ${ARGN})
  # In angle brackets the name stands as it is: a checkout elsewhere compiles the same text, and a
  # shared compiler cache serves both.
  if(GRAPPLEMONT_PCH)
    target_precompile_headers(${name} PRIVATE "<${header}>")
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()
function(precompiled name from)
  if(GRAPPLEMONT_PCH)
    target_precompile_headers(${name} REUSE_FROM ${from})
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()

# Compiling the files of a target some at a time takes a quarter of the work of compiling each for
# itself. Who changes one file all day is served better without (the debug preset).
option(GRAPPLEMONT_UNITY "Compile several files of a folder at a time" OFF)
function(some_at_a_time name)
  if(GRAPPLEMONT_UNITY)
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
  endif()
endfunction()
# Its table speaks in the bare words of its enumerations, which nobody else should see.
set_source_files_properties(src/info/meetingpoints.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)

# The headers of src/FOLDER, without those of its sub-folders, as the target NAME.
function(headers_of_folder name folder)
  set(gate ${CMAKE_BINARY_DIR}/rooms/${name}/${folder})
  file(GLOB headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.h)
  file(GLOB links ${gate}/*.h)
  foreach(link ${links})
    if(NOT EXISTS ${link})
      file(REMOVE ${link})
    endif()
  endforeach()
  file(MAKE_DIRECTORY ${gate})
  foreach(header ${headers})
    cmake_path(GET header FILENAME file)
    file(CREATE_LINK ${header} ${gate}/${file} SYMBOLIC)
  endforeach()
  add_library(${name} INTERFACE)
  target_include_directories(${name} INTERFACE ${CMAKE_BINARY_DIR}/rooms/${name})
endfunction()

# One file each speaks to the machine.
set(other_system win)
if(WIN32)
  set(other_system unix)
endif()

# library_of_folder(NAME FOLDER PCH [LINK...]): one library for src/FOLDER, without its sub-folders.
function(library_of_folder name folder pch)
  headers_of_folder(${name}_headers ${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$|/${other_system}disk\\.cpp$")
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PRIVATE house_rules PUBLIC ${name}_headers ${ARGN})
  precompiled(${name} ${pch})
  some_at_a_time(${name})
endfunction()

# room(NAME PCH [LINK...]): src/NAME and the sub-folders that NAME_folders lists, in their order; "."
# is the room's own folder. Each may use those before it. A LINK is a room or a library.
function(room name pch)
  if(NOT ${name}_folders)
    library_of_folder(${name} ${name} ${pch} ${ARGN})
    return()
  endif()
  set(above ${ARGN})
  add_library(${name} INTERFACE)
  add_library(${name}_headers INTERFACE)
  foreach(folder ${${name}_folders})
    set(part ${name}_${folder})
    set(path ${name}/${folder})
    if(folder STREQUAL ".")
      set(part ${name}_room)
      set(path ${name})
    endif()
    library_of_folder(${part} ${path} ${pch} ${above})
    list(APPEND above ${part})
    target_link_libraries(${name} INTERFACE ${part})
    target_link_libraries(${name}_headers INTERFACE ${part}_headers)
  endforeach()
endfunction()

# house(ROOM...): the rooms of the game in their order. Each may use those before it, and its screens
# also their screens and the screen model.
function(house)
  set(above records)
  set(screens_above ui)
  foreach(name ${ARGN})
    room(${name} pch_rules ${above})
    list(APPEND above ${name})
    if(IS_DIRECTORY ${PROJECT_SOURCE_DIR}/src/${name}/screens)
      library_of_folder(${name}_screens ${name}/screens pch_screens ${above} ${screens_above})
      list(APPEND screens_above ${name}_screens)
    endif()
  endforeach()
  set(all_rules ${above} PARENT_SCOPE)
  set(all_screens ${screens_above} PARENT_SCOPE)
endfunction()

# program(NAME SOURCE ROOM...)
function(program name source)
  add_executable(${name} ${PROJECT_SOURCE_DIR}/${source})
  target_link_libraries(${name} PRIVATE house_rules ${ARGN})
endfunction()
