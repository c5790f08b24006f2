# cmake -DIDL_DIR=… -DARCHITECTURE=amd64|x86 -DQMATH_VERSION=… -DQSYMBOL_VERSION=… -DQPLAN_VERSION=… -DOUTPUT_DIR=…
#       -DSIBLING_DIR=… -P manifest.cmake
# Writes the side-by-side assemblies that let a host use the DLLs without registration: QSymbol.X with QMath and QSymbol,
# QPlan.X, which brings that one along. The contracts are the only source of class ids, so the manifests cannot drift
# from them. NAME.sibling.manifest is a resource of NAME.dll: by it the DLL finds the type libraries of unregistered DLLs
# beside it.

foreach(library QMath QSymbol QPlan)
  file(READ ${IDL_DIR}/${library}.idl idl)
  # Brackets and semicolons mean something to CMake's lists.
  string(REPLACE "[" "<" idl "${idl}")
  string(REPLACE "]" ">" idl "${idl}")
  string(REPLACE ";" "," idl "${idl}")
  string(REGEX MATCH "uuid\\(([0-9a-f-]+)\\), version\\(" header "${idl}")
  set(type_library ${CMAKE_MATCH_1})
  string(TOUPPER ${library} upper)
  string(CONCAT head_${library} "  <file name=\"${library}.dll\">\n"
         "    <typelib tlbid=\"{${type_library}}\" version=\"${${upper}_VERSION}\" helpdir=\"\"/>\n")
  set(file_${library} "${head_${library}}")
  # A class that clients may not create has "noncreatable" behind its help string and gets no entry.
  string(REGEX MATCHALL "<uuid\\([0-9a-f-]+\\), helpstring\\(\"[^\"]*\"\\)>[ \n]+coclass C[A-Za-z]+" classes "${idl}")
  foreach(class IN LISTS classes)
    string(REGEX MATCH "uuid\\(([0-9a-f-]+)\\).*coclass (C[A-Za-z]+)" ignored "${class}")
    string(APPEND file_${library} "    <comClass clsid=\"{${CMAKE_MATCH_1}}\" progid=\"${library}.${CMAKE_MATCH_2}\" "
           "tlbid=\"{${type_library}}\" threadingModel=\"Apartment\"/>\n")
  endforeach()
  string(APPEND file_${library} "  </file>\n")
  set(proxies_${library} "")
  string(REGEX MATCHALL "uuid\\([0-9a-f-]+\\), dual[^{]*interface _C[A-Za-z]+" interfaces "${idl}")
  foreach(interface IN LISTS interfaces)
    string(REGEX MATCH "uuid\\(([0-9a-f-]+)\\).*interface (_C[A-Za-z]+)" ignored "${interface}")
    string(APPEND proxies_${library}
           "  <comInterfaceExternalProxyStub name=\"${CMAKE_MATCH_2}\" iid=\"{${CMAKE_MATCH_1}}\" "
           "tlbid=\"{${type_library}}\" proxyStubClsid32=\"{00020424-0000-0000-C000-000000000046}\"/>\n")
  endforeach()
endforeach()

function(identity result name version)
  set(${result} "<assemblyIdentity type=\"win32\" name=\"${name}\" version=\"${version}.0.0\" processorArchitecture=\"${ARCHITECTURE}\"/>" PARENT_SCOPE)
endfunction()

function(write_assembly output name version content)
  identity(own ${name} ${version})
  file(WRITE ${output} "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>
<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">
  ${own}
${content}</assembly>
")
endfunction()

identity(symbols QSymbol.X ${QSYMBOL_VERSION})
write_assembly(${OUTPUT_DIR}/QSymbol.X.manifest QSymbol.X ${QSYMBOL_VERSION}
               "${file_QMath}${file_QSymbol}${proxies_QMath}${proxies_QSymbol}")
write_assembly(${OUTPUT_DIR}/QPlan.X.manifest QPlan.X ${QPLAN_VERSION} "  <dependency>
    <dependentAssembly>
      ${symbols}
    </dependentAssembly>
  </dependency>
${file_QPlan}${proxies_QPlan}")
write_assembly(${SIBLING_DIR}/QSymbol.sibling.manifest QSymbol.Sibling ${QSYMBOL_VERSION} "${head_QMath}  </file>\n")
write_assembly(${SIBLING_DIR}/QPlan.sibling.manifest QPlan.Sibling ${QPLAN_VERSION}
               "${head_QMath}  </file>\n${head_QSymbol}  </file>\n")
