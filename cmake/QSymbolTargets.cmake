# One place for compiler options and for the rule "one static library a folder".

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(qsymbol_options INTERFACE)
target_compile_options(qsymbol_options INTERFACE -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion
                       -Wno-sign-conversion)
target_include_directories(qsymbol_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(QSYMBOL_SANITIZE)
  target_compile_options(qsymbol_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                         -fno-omit-frame-pointer -O1)
  target_link_options(qsymbol_options INTERFACE -fsanitize=address,undefined)
endif()
if(QSYMBOL_FUZZ)
  target_compile_options(qsymbol_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(qsymbol_options INTERFACE -fsanitize=address,undefined)
endif()
if(WIN32)
  # _WIN32_WINNT 0x0601: hosts from Windows 7 on. SSE2 keeps x86 arithmetic equal to x64.
  target_compile_definitions(qsymbol_options INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                             _WIN32_WINNT=0x0601)
  # The headers of the Windows SDK are not clean under -Wpedantic, and __uuidof is an extension.
  target_compile_options(qsymbol_options INTERFACE -Wno-pedantic)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Hosts may call with a stack aligned to 4 bytes only.
    target_compile_options(qsymbol_options INTERFACE -msse2 -mfpmath=sse -mstackrealign)
  endif()
  target_link_options(qsymbol_options INTERFACE -static -static-libgcc -static-libstdc++)
endif()

# qsymbol_floor(NAME FOLDER folder DEPENDS libs…): a static library of all sources of one folder.
function(qsymbol_floor name)
  cmake_parse_arguments(ARG "" "FOLDER" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_FOLDER}/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/${ARG_FOLDER}/*.h)
  if(NOT sources)
    return()
  endif()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX POSITION_INDEPENDENT_CODE ON)
  target_link_libraries(${name} PUBLIC qsymbol_options ${ARG_DEPENDS})
endfunction()
