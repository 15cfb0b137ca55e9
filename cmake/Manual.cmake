# cmake -DPROGRAM=... -DPAGE=... -DOUTPUT=... -DFILES=... -DPROJECT_VERSION=... -P Manual.cmake
# Makes a page of the manual. What a program tells of its commands and options is taken from itself, so
# that it stands once.

file(READ ${FILES} FILES)
string(STRIP "${FILES}" FILES)
execute_process(COMMAND ${PROGRAM} --help OUTPUT_VARIABLE SAID COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\\" "\\e" SAID "${SAID}")
string(REPLACE "-" "\\-" SAID "${SAID}")
# Without the usage in front and the remarks at the end: what is indented.
string(REGEX REPLACE "\n[^ \n][^\n]*" "" SAID "\n${SAID}")
string(REGEX REPLACE "\n      +([^\n]+)" "\n@\\1" SAID "${SAID}")
string(REGEX REPLACE "\n  ([^ \n][^\n]*)  +([^\n]+)" "\n.TP\n.B \\1\n@\\2" SAID "${SAID}")
string(REGEX REPLACE "\n  ([^\n]+)" "\n.TP\n.B \\1" SAID "${SAID}")
string(REGEX REPLACE " *\n@?" "\n" SAID "${SAID}")
string(REGEX REPLACE "\n\n+" "\n" SAID "${SAID}")
string(STRIP "${SAID}" SAID)
configure_file(${PAGE} ${OUTPUT} @ONLY)
file(TOUCH ${OUTPUT})
