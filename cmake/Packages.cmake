# The Debian package of the command line, by CPack: the program, its manual page, the sample catalogue as text.
# scripts/package makes it. Its files are apart from what "cmake --install" leaves in dist/.
include(GNUInstallDirs)
set(QSYMBOL_CONTACT "Tessera <tessera@localhost>" CACHE STRING "Who answers for the Debian package; at first, a placeholder")

function(packed source name)
  set(target ${CMAKE_CURRENT_BINARY_DIR}/packed/${name}.gz)
  add_custom_command(
    OUTPUT ${target}
    COMMAND sh -c "gzip -9nc '${PROJECT_SOURCE_DIR}/${source}' > '${target}'"
    DEPENDS ${PROJECT_SOURCE_DIR}/${source}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY packed_files ${target})
endfunction()
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/packed)
packed(man/qsymbol.1 qsymbol.1)
packed(CHANGELOG.md CHANGELOG.md)
get_property(files GLOBAL PROPERTY packed_files)
add_custom_target(debian_files DEPENDS qsymbol ${files})

set(into COMPONENT debian EXCLUDE_FROM_ALL)
install(TARGETS qsymbol RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} ${into})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packed/qsymbol.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 ${into})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/packed/CHANGELOG.md.gz packaging/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qsymbol ${into})
# Debian's own form of a changelog, of the time that all files of the package have.
install(CODE "
  string(TIMESTAMP now \"%a, %d %b %Y %H:%M:%S +0000\" UTC)
  set(file \"${CMAKE_CURRENT_BINARY_DIR}/packed/changelog\")
  file(WRITE \"\${file}\" \"qsymbol (${PROJECT_VERSION}) bookworm; urgency=medium\\n\\n  * What changed is told in CHANGELOG.md.gz.\\n\\n\"
       \" -- ${QSYMBOL_CONTACT}  \${now}\\n\")
  execute_process(COMMAND gzip -9nf \"\${file}\" COMMAND_ERROR_IS_FATAL ANY)
  file(INSTALL \"\${file}.gz\" DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/doc/qsymbol\")"
  ${into})
install(DIRECTORY samples/katalog DESTINATION ${CMAKE_INSTALL_DATADIR}/qsymbol ${into})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME qsymbol)
set(CPACK_PACKAGE_VENDOR Tessera)
set(CPACK_PACKAGE_CONTACT ${QSYMBOL_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "checks, converts, compares and draws symbols of building plans")
set(CPACK_COMPONENT_DEBIAN_DESCRIPTION "The command line of the QSymbol library: what is in symbol files and\n\
what is wrong with them, conversion between their formats, pictures, a\n\
catalogue as one page, and complete DXF drawings.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                                WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL debian)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_DEBIAN_PACKAGE_NAME qsymbol)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
