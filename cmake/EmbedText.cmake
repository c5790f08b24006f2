# Text files as string constants of a library, so that they stay readable and a program needs no files beside it.

# embed_text(TARGET FILE CONSTANT): defines `extern const std::string_view qsymbol::CONSTANT`.
function(embed_text target file constant)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(READ ${file} text)
  string(FIND "${text}" ")embedded\"" clash)
  if(NOT clash EQUAL -1)
    message(FATAL_ERROR "${file} holds the end of a raw string")
  endif()
  # Some compilers take only short literals, and join neighbours.
  string(LENGTH "${text}" left)
  set(at 0)
  set(literals "")
  while(at LESS left)
    string(SUBSTRING "${text}" ${at} 4000 piece)
    string(FIND "${piece}" "\n" last REVERSE) # whole lines: a cut could go through a character
    math(EXPR taken "${last} + 1")
    string(SUBSTRING "${piece}" 0 ${taken} piece)
    string(APPEND literals "\n    R\"embedded(${piece})embedded\"")
    math(EXPR at "${at} + ${taken}")
  endwhile()
  set(source ${CMAKE_BINARY_DIR}/embedded/${constant}.cpp)
  file(CONFIGURE OUTPUT ${source} @ONLY CONTENT [[
#include <string_view>

namespace qsymbol {

extern const std::string_view @constant@;
const std::string_view @constant@ =@literals@;

} // namespace qsymbol
]])
  target_sources(${target} PRIVATE ${source})
endfunction()
