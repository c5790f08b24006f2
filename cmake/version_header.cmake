# cmake -DVERSION=… -DSOURCE_DIR=… -DOUTPUT=… -P version_header.cmake: writes the header when something in it changed.
cmake_minimum_required(VERSION 3.23)

set(build "$ENV{QSYMBOL_BUILD_NUMBER}")
if(build STREQUAL "")
  execute_process(COMMAND git -C ${SOURCE_DIR} rev-list --count HEAD OUTPUT_VARIABLE build ERROR_QUIET
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
endif()
if(NOT build MATCHES "^[0-9]+$")
  set(build 0)
endif()
string(REPLACE "." "," numbers "${VERSION}.${build}")
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT "#define QSYMBOL_VERSION_NUMBERS @numbers@
#define QSYMBOL_VERSION_TEXT \"@VERSION@.@build@\"
" @ONLY)
