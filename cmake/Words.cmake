# words/: a program of the project's own checks every text and makes a compile unit of it. It is
# built before all rooms, so it compiles the few files of theirs that it needs for itself, without
# their precompiled headers. An edited text compiles its own unit again and no other.

headers_of_folder(words_headers words)
file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/words/*.cpp)
list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
foreach(shared records/angles records/fields/charset records/fields/wording report/family
        info/meetingpoints)
  list(APPEND sources ${PROJECT_SOURCE_DIR}/src/${shared}.cpp)
endforeach()
add_library(words STATIC ${sources})
target_link_libraries(words PRIVATE house_rules
                      PUBLIC words_headers records_headers report_headers info_headers)
program(embed-words src/words/main.cpp words)
set_target_properties(embed-words PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

file(GLOB_RECURSE texts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/words/*.txt)
set(units "")
foreach(text ${texts})
  file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR}/words ${text})
  string(REGEX REPLACE "\\.txt$" ".cpp" unit ${name})
  string(REPLACE "/" "-" unit ${unit})
  list(APPEND units ${CMAKE_BINARY_DIR}/words/${unit})
  # Folders are voices.
  if(name MATCHES "/")
    target_sources(report PRIVATE ${CMAKE_BINARY_DIR}/words/${unit})
  else()
    target_sources(info PRIVATE ${CMAKE_BINARY_DIR}/words/${unit})
  endif()
endforeach()
add_custom_command(
  OUTPUT ${units}
  COMMAND embed-words ${PROJECT_SOURCE_DIR}/words ${CMAKE_BINARY_DIR}/words
  DEPENDS embed-words ${texts}
  COMMENT "Reading words/"
  VERBATIM)
set_source_files_properties(${units} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
