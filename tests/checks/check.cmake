# check(NAME …) enters one check: a command that is run from the checkout's top and says how many cases passed, failed and
# were skipped, as GoogleTest does or with a last line "N passed, N failed, N skipped" (run.py tells the rules).
#
#   COMMAND command…   a program, or a function of scripts/common.sh before it: wine_run, wine32_run, german,
#                      on_display NAME
#   BUILDS spec…       what to build first: PRESET for everything, PRESET:TARGET for a target of it
#   NEEDS need…        of the list below; packages, a Wine prefix of the check's own and the like are there when it starts
#   PACKAGES name…     further Debian packages
#   REGISTERED folder  both DLLs of this folder are registered in the check's prefix
#   LIMIT seconds      when it counts as hanging; 900
#   COST seconds       how long it takes about: long ones start first
#   ALONE              nothing runs beside it
#
# What a check needs becomes a fixture, a CTest test of its own, which runs once and before all that need it.

set(need_prefix_uses wine)
set(need_display_uses wine display)
set(need_german_uses wine german)
set(need_x86_uses x86)
set(need_display_needs prefix)
set(need_german_needs prefix)
# One after the other: each of these uses both processors, or waits for the same download.
set(need_prefix_cost 800)
set(need_german_cost 700)
set(need_x86_cost 2000)

set(runner ${CMAKE_CURRENT_LIST_DIR}/run)

function(_fixture name cost)
  if(NOT TEST "prepare-${name}")
    add_test(NAME "prepare-${name}" COMMAND ${runner} prepare ${ARGN} WORKING_DIRECTORY ${ROOT})
    set_tests_properties("prepare-${name}" PROPERTIES FIXTURES_SETUP ${name} COST ${cost} SKIP_RETURN_CODE 77
                         TIMEOUT 7200)
  endif()
endfunction()

function(check name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "ALONE" "REGISTERED;LIMIT;COST" "COMMAND;BUILDS;NEEDS;PACKAGES")
  if(ARG_UNPARSED_ARGUMENTS OR NOT ARG_COMMAND)
    message(FATAL_ERROR "check(${name}): no COMMAND, or not understood: ${ARG_UNPARSED_ARGUMENTS}")
  endif()
  set(options "")
  set(fixtures "")
  set(labels check)
  foreach(package IN LISTS ARG_PACKAGES)
    list(APPEND labels "package=${package}")
  endforeach()

  foreach(need IN LISTS ARG_NEEDS)
    list(APPEND ARG_NEEDS ${need_${need}_needs})
  endforeach()
  list(REMOVE_DUPLICATES ARG_NEEDS)
  foreach(need IN LISTS ARG_NEEDS)
    if(NOT need_${need}_uses)
      message(FATAL_ERROR "check(${name}): there is no need called ${need}")
    endif()
    foreach(group IN LISTS need_${need}_uses)
      list(APPEND labels "package=@${group}")
    endforeach()
    if(need_${need}_cost)
      _fixture(${need} ${need_${need}_cost} ${need})
      list(APPEND fixtures ${need})
    endif()
  endforeach()
  if("prefix" IN_LIST ARG_NEEDS)
    list(APPEND options --prefix)
  endif()

  foreach(spec IN LISTS ARG_BUILDS)
    string(REPLACE ":" ";" parts "${spec}")
    list(POP_FRONT parts preset)
    string(REPLACE ":" "-" fixture "build-${spec}")
    if(NOT build_order_${preset})
      message(FATAL_ERROR "check(${name}): ${preset} has no place in build_order")
    endif()
    _fixture(${fixture} ${build_order_${preset}} build ${preset} ${parts})
    # One compilation at a time keeps both processors busy.
    set_tests_properties("prepare-${fixture}" PROPERTIES RESOURCE_LOCK compilers PROCESSORS 2)
    list(APPEND fixtures ${fixture})
    list(APPEND labels "package=@${preset}")
  endforeach()

  if(ARG_REGISTERED)
    list(APPEND options --registered ${ARG_REGISTERED})
  endif()
  if(NOT ARG_LIMIT)
    set(ARG_LIMIT 900)
  endif()
  if(NOT ARG_COST)
    set(ARG_COST 1)
  endif()
  add_test(NAME ${name} COMMAND ${runner} check ${name} --limit ${ARG_LIMIT} ${options} -- ${ARG_COMMAND}
           WORKING_DIRECTORY ${ROOT})
  list(REMOVE_DUPLICATES labels)
  math(EXPR ctest_limit "${ARG_LIMIT} + 300") # judge.py ends it, and tells so
  set_tests_properties(${name} PROPERTIES LABELS "${labels}" FIXTURES_REQUIRED "${fixtures}" COST ${ARG_COST}
                       SKIP_RETURN_CODE 77 RUN_SERIAL ${ARG_ALONE} TIMEOUT ${ctest_limit})
endfunction()
