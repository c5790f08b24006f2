# cmake -DINPUT=… -DOUTPUT=… -P published_header.cmake
# Makes the header that hosts get from the one that widl writes.

file(READ ${INPUT} header)

# The name of the contract is enough; where it lay is nobody's business.
string(REGEX REPLACE "from [^ ]*/([A-Za-z]+[.]idl)" "from \\1" header "${header}")

# In quotes the file beside this one is meant: in brackets a "qmath.h" of somebody else may win.
string(REGEX REPLACE "#include <(QMath|QSymbol)[.]h>" "#include \"\\1.h\"" header "${header}")

# <windowsx.h> has a macro of the name of a method. It is out of sight here and as it was behind, so it may be
# included before or after.
set(method SelectFont)
if(header MATCHES "STDMETHODCALLTYPE ${method}\\(")
  string(REGEX REPLACE "(#define __[a-z]+_h__\n)" "\\1\n#pragma push_macro(\"${method}\")\n#undef ${method}\n" header
                       "${header}")
  string(REGEX REPLACE "(#endif /[*] __[a-z]+_h__ [*]/)" "#pragma pop_macro(\"${method}\")\n\n\\1" header "${header}")
  if(NOT header MATCHES "push_macro.*pop_macro")
    message(FATAL_ERROR "${INPUT}: no include guard where one was expected")
  endif()
  string(REPLACE "(This)->lpVtbl->${method}(" "((This)->lpVtbl->${method})(" header "${header}")
endif()

file(WRITE ${OUTPUT} "${header}")
