# The compiler options of everything that stands on the floors.

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(qsymbol_options INTERFACE)
if(MSVC)
  target_compile_options(qsymbol_options INTERFACE /utf-8 /permissive- /Zc:__cplusplus /W4 /WX)
else()
  target_compile_options(qsymbol_options INTERFACE -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion
                         -Wno-sign-conversion)
endif()

if(MSVC AND (QSYMBOL_SANITIZE OR QSYMBOL_TSAN OR QSYMBOL_FUZZ))
  message(FATAL_ERROR "QSYMBOL_SANITIZE, QSYMBOL_TSAN and QSYMBOL_FUZZ want GCC or Clang")
endif()
if(QSYMBOL_SANITIZE)
  target_compile_options(qsymbol_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                         -fno-omit-frame-pointer)
  target_link_options(qsymbol_options INTERFACE -fsanitize=address,undefined)
endif()
if(QSYMBOL_TSAN)
  target_compile_options(qsymbol_options INTERFACE -fsanitize=thread)
  target_link_options(qsymbol_options INTERFACE -fsanitize=thread)
endif()
if(QSYMBOL_FUZZ)
  target_compile_options(qsymbol_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                         -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(qsymbol_options INTERFACE -fsanitize=address,undefined)
endif()
if(QSYMBOL_COVERAGE)
  # Tests as well: of an inline function the linker keeps one copy, perhaps theirs.
  target_compile_options(qsymbol_options INTERFACE --coverage)
  target_link_options(qsymbol_options INTERFACE --coverage)
endif()
if(WIN32)
  # _WIN32_WINNT 0x0601: hosts from Windows 7 on.
  target_compile_definitions(qsymbol_options INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                             _WIN32_WINNT=0x0601)
endif()
if(MINGW)
  # The headers of the Windows SDK are not clean under -Wpedantic, and __uuidof is an extension.
  target_compile_options(qsymbol_options INTERFACE -Wno-pedantic)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # SSE2 keeps x86 arithmetic equal to x64. Hosts may call with a stack aligned to 4 bytes only.
    target_compile_options(qsymbol_options INTERFACE -msse2 -mfpmath=sse -mstackrealign)
  endif()
  target_link_options(qsymbol_options INTERFACE -static -static-libgcc -static-libstdc++)
endif()
