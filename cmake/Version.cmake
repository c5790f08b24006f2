# One version: that of the project. The build number tells two builds apart: the commits that led to this one, or
# QSYMBOL_BUILD_NUMBER from the environment where there is no repository.

set(QSYMBOL_GENERATED_DIR ${CMAKE_BINARY_DIR}/generated)
add_custom_target(
  qsymbol_version
  COMMAND ${CMAKE_COMMAND} -DVERSION=${PROJECT_VERSION} -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
          -DOUTPUT=${QSYMBOL_GENERATED_DIR}/qsymbol_version.h -P ${PROJECT_SOURCE_DIR}/cmake/version_header.cmake
  BYPRODUCTS ${QSYMBOL_GENERATED_DIR}/qsymbol_version.h
  VERBATIM)

# use_version(TARGET RC…): lets a target, and the resource files named, include "qsymbol_version.h" and "version_info.rc".
function(use_version target)
  target_include_directories(${target} PRIVATE ${QSYMBOL_GENERATED_DIR} ${PROJECT_SOURCE_DIR}/cmake)
  add_dependencies(${target} qsymbol_version)
  if(ARGN)
    set_property(SOURCE ${ARGN} APPEND PROPERTY OBJECT_DEPENDS ${QSYMBOL_GENERATED_DIR}/qsymbol_version.h
                                                ${PROJECT_SOURCE_DIR}/cmake/version_info.rc)
  endif()
endfunction()
