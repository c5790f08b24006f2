# cmake -DIDL_DIR=… -DARCHITECTURE=amd64|x86 -DQMATH_VERSION=… -DQSYMBOL_VERSION=… -DOUTPUT=…
#       -DSIBLING=… -P manifest.cmake
# Writes the side-by-side assembly that lets a host use both DLLs without registration. The contracts are the
# only source of class ids, so the manifest cannot drift from them. SIBLING is a resource of QSymbol.dll: by it the
# DLL finds the type library of an unregistered QMath.dll beside it.

set(files "")
set(proxies "")
foreach(library QMath QSymbol)
  file(READ ${IDL_DIR}/${library}.idl idl)
  # Brackets and semicolons mean something to CMake's lists.
  string(REPLACE "[" "<" idl "${idl}")
  string(REPLACE "]" ">" idl "${idl}")
  string(REPLACE ";" "," idl "${idl}")
  string(REGEX MATCH "uuid\\(([0-9a-f-]+)\\), version\\(" header "${idl}")
  set(type_library ${CMAKE_MATCH_1})
  string(TOUPPER ${library} upper)
  set(version ${${upper}_VERSION})
  string(APPEND files "  <file name=\"${library}.dll\">\n"
         "    <typelib tlbid=\"{${type_library}}\" version=\"${version}\" helpdir=\"\"/>\n")
  if(library STREQUAL "QMath")
    set(sibling "${files}")
  endif()
  # A class that clients may not create has "noncreatable" behind its help string and gets no entry.
  string(REGEX MATCHALL "<uuid\\([0-9a-f-]+\\), helpstring\\(\"[^\"]*\"\\)>[ \n]+coclass C[A-Za-z]+" classes "${idl}")
  foreach(class IN LISTS classes)
    string(REGEX MATCH "uuid\\(([0-9a-f-]+)\\).*coclass (C[A-Za-z]+)" ignored "${class}")
    string(APPEND files "    <comClass clsid=\"{${CMAKE_MATCH_1}}\" progid=\"${library}.${CMAKE_MATCH_2}\" "
           "tlbid=\"{${type_library}}\" threadingModel=\"Apartment\"/>\n")
  endforeach()
  string(APPEND files "  </file>\n")
  string(REGEX MATCHALL "uuid\\([0-9a-f-]+\\), dual[^{]*interface _C[A-Za-z]+" interfaces "${idl}")
  foreach(interface IN LISTS interfaces)
    string(REGEX MATCH "uuid\\(([0-9a-f-]+)\\).*interface (_C[A-Za-z]+)" ignored "${interface}")
    string(APPEND proxies "  <comInterfaceExternalProxyStub name=\"${CMAKE_MATCH_2}\" iid=\"{${CMAKE_MATCH_1}}\" "
           "tlbid=\"{${type_library}}\" proxyStubClsid32=\"{00020424-0000-0000-C000-000000000046}\"/>\n")
  endforeach()
endforeach()

function(write_assembly output name content)
  file(WRITE ${output} "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>
<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">
  <assemblyIdentity type=\"win32\" name=\"${name}\" version=\"${QSYMBOL_VERSION}.0.0\" processorArchitecture=\"${ARCHITECTURE}\"/>
${content}</assembly>
")
endfunction()

write_assembly(${OUTPUT} QSymbol.X "${files}${proxies}")
write_assembly(${SIBLING} QSymbol.Sibling "${sibling}  </file>\n")
