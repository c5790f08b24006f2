# Joined sources: the compiler reads the sources of a folder as one file, which takes it a third of the time. What two files
# of a folder keep to themselves must then have two names.

# join_sources(TARGET): joins a target's sources, a folder at a time and sixteen at most: several processors share a large
# folder. A source with definitions of its own stays by itself, so does one that defines GUIDs (their header must not have
# been read before), and what is added later.
function(join_sources target)
  get_target_property(sources ${target} SOURCES)
  get_target_property(from ${target} SOURCE_DIR)
  set(left "")
  set(names "")
  set(last "")
  foreach(source IN LISTS sources)
    get_filename_component(path ${source} ABSOLUTE BASE_DIR ${from})
    get_source_file_property(definitions ${path} COMPILE_DEFINITIONS)
    if(NOT path MATCHES "[.]cpp$" OR path MATCHES "^${CMAKE_BINARY_DIR}/")
      list(APPEND left ${source})
      continue()
    endif()
    file(STRINGS ${path} guids REGEX "^#include <initguid[.]h>" LIMIT_COUNT 1)
    if(definitions OR guids)
      list(APPEND left ${source})
      continue()
    endif()
    get_filename_component(folder ${path} DIRECTORY)
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${folder})
    string(REPLACE "/" "_" folder ${folder})
    if(NOT folder STREQUAL last)
      set(files 1)
      set(in_file 0)
    elseif(in_file EQUAL 16)
      math(EXPR files "${files} + 1")
      set(in_file 0)
    endif()
    set(last ${folder})
    math(EXPR in_file "${in_file} + 1")
    set(name ${folder}_${files})
    list(APPEND names ${name})
    # CMake's own way of doing this names files by their whole paths: in another checkout the compiler cache would not
    # know them again.
    file(RELATIVE_PATH path ${CMAKE_BINARY_DIR}/joined/${target} ${path})
    string(APPEND content_${name} "#include \"${path}\"\n")
  endforeach()
  list(REMOVE_DUPLICATES names)
  foreach(name IN LISTS names)
    # The analyzer of Clang knows by this name that the sources in it are no headers.
    set(joined ${CMAKE_BINARY_DIR}/joined/${target}/UnifiedSource_${name}.cpp)
    file(CONFIGURE OUTPUT ${joined} CONTENT "${content_${name}}" @ONLY)
    list(APPEND left ${joined})
  endforeach()
  set_target_properties(${target} PROPERTIES SOURCES "${left}")
  # A file that is included counts as a header, whose types should not use nameless ones.
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-subobject-linkage>)
endfunction()

# join_floor(TARGET): the same for a floor, where QSYMBOL_JOIN says so. Builds without it compile file by file, so each
# source is known to name all that it needs.
function(join_floor target)
  if(QSYMBOL_JOIN)
    join_sources(${target})
  endif()
endfunction()
