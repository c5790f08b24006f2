# type_library(NAME DEPENDS names…): makes NAME.tlb and NAME.h from idl/NAME.idl in ${CMAKE_BINARY_DIR}/idl.

find_program(WIDL NAMES ${QSYMBOL_TRIPLE}-widl x86_64-w64-mingw32-widl widl REQUIRED)
find_path(WINE_IDL_DIR oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows NO_DEFAULT_PATH
          NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(STDOLE_DIR stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
          /usr/lib/wine/x86_64-windows /usr/lib64/wine/x86_64-windows NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH
          REQUIRED)
set(QSYMBOL_IDL_DIR ${CMAKE_BINARY_DIR}/idl)
file(MAKE_DIRECTORY ${QSYMBOL_IDL_DIR}/widl)

function(type_library name)
  set(idl ${PROJECT_SOURCE_DIR}/idl/${name}.idl)
  # WIDL_TIME_OVERRIDE keeps the type library reproducible.
  set(widl ${CMAKE_COMMAND} -E env WIDL_TIME_OVERRIDE=0 ${WIDL} -I ${WINE_IDL_DIR} -I ${PROJECT_SOURCE_DIR}/idl
      -L ${STDOLE_DIR} -L ${QSYMBOL_IDL_DIR})
  list(APPEND widl -DQMATH_VERSION=${QMATH_TYPELIB_VERSION} -DQSYMBOL_VERSION=${QSYMBOL_TYPELIB_VERSION}
       -DQPLAN_VERSION=${QPLAN_TYPELIB_VERSION})
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    list(APPEND widl -m32)
  else()
    list(APPEND widl -m64)
  endif()
  add_custom_command(
    OUTPUT ${QSYMBOL_IDL_DIR}/${name}.tlb ${QSYMBOL_IDL_DIR}/${name}.h
    COMMAND ${widl} -t -o ${name}.tlb ${idl}
    COMMAND ${widl} -DQSYMBOL_HEADER -h -o widl/${name}.h ${idl}
    COMMAND ${CMAKE_COMMAND} -DINPUT=widl/${name}.h -DOUTPUT=${name}.h -P ${PROJECT_SOURCE_DIR}/cmake/published_header.cmake
    DEPENDS ${idl} ${PROJECT_SOURCE_DIR}/cmake/published_header.cmake ${ARGN}
    WORKING_DIRECTORY ${QSYMBOL_IDL_DIR}
    COMMENT "Type library ${name}"
    VERBATIM)
  add_custom_target(${name}_typelib DEPENDS ${QSYMBOL_IDL_DIR}/${name}.tlb ${QSYMBOL_IDL_DIR}/${name}.h)
endfunction()
