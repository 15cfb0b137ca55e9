# words/: programs of the project's own check every text and make C++ of it. They compile the few files
# of the rooms that they need for themselves, without their precompiled headers.

# Tables become headers, words/NAME.h, before any room is compiled: tables/ sees no room but for the
# few files that it compiles itself. Who links word_tables may include them.
headers_of_folder(words_headers words)
headers_of_folder(words_tables_headers words/tables)
headers_of_folder(records_bare_headers records/fields)
file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/words/tables/*.cpp)
list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
foreach(shared words/units words/wordstext records/fields/charset records/fields/grouping
        records/fields/wording)
  list(APPEND sources ${PROJECT_SOURCE_DIR}/src/${shared}.cpp)
endforeach()
add_library(words_tables STATIC ${sources})
target_link_libraries(words_tables PRIVATE house_rules
                      PUBLIC words_headers words_tables_headers records_bare_headers)
program(embed-tables src/words/tables/main.cpp words_tables)
set_target_properties(embed-tables PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

set(tables "")
foreach(name angles glossary guide help names promotions segments stories wishes)
  list(APPEND tables ${PROJECT_SOURCE_DIR}/words/${name}.txt)
endforeach()
set(made ${CMAKE_BINARY_DIR}/tables/words)
add_custom_command(
  OUTPUT ${made}/anglerules.h ${made}/angles.h ${made}/glossary.h ${made}/guide.h ${made}/help.h
         ${made}/names.h ${made}/promotions.h ${made}/purposes.h ${made}/segments.h
         ${made}/stories.h ${made}/wishes.h
  COMMAND embed-tables ${PROJECT_SOURCE_DIR}/words ${made}
  DEPENDS embed-tables ${tables}
  COMMENT "Reading the tables of words/"
  VERBATIM)
add_custom_target(make-tables DEPENDS ${made}/segments.h)
add_library(word_tables INTERFACE)
target_include_directories(word_tables INTERFACE ${CMAKE_BINARY_DIR}/tables)
add_dependencies(word_tables make-tables)

# Lines become compile units of the rooms that speak, as functions of their modules. An edited text
# compiles its own unit again and no other. To be called once there are rooms.
function(words)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/words/*.cpp)
  list(FILTER sources EXCLUDE REGEX "/(main|units|wordstext)\\.cpp$")
  foreach(shared report/family info/meetingpoints)
    list(APPEND sources ${PROJECT_SOURCE_DIR}/src/${shared}.cpp)
  endforeach()
  add_library(words STATIC ${sources})
  target_link_libraries(words PRIVATE house_rules
                        PUBLIC words_tables word_tables records_headers report_headers info_headers)
  program(embed-words src/words/main.cpp words)
  set_target_properties(embed-words PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

  file(GLOB_RECURSE texts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/words/*.txt)
  list(REMOVE_ITEM texts ${tables})
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
  set_source_files_properties(${units} PROPERTIES SKIP_PRECOMPILE_HEADERS ON
                                                  SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
