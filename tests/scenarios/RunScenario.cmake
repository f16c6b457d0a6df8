# Runs one scenario twice: every expectation must hold, nothing may be complained about, the output
# must be that of the file NAME.out beside it (nothing without one), and both runs must agree.
# With CURSOR the script begins by setting it so, and its lines are numbered from there.
# Run as: cmake -DPROGRAM=... -DSCENARIO=... [-DCURSOR=free -DFOLDER=...] -P RunScenario.cmake
set(wanted "")
string(REGEX REPLACE "\\.desk$" ".out" wanted_file "${SCENARIO}")
if(EXISTS "${wanted_file}")
  file(READ "${wanted_file}" wanted)
endif()
set(script "${SCENARIO}")
if(DEFINED CURSOR)
  get_filename_component(name "${SCENARIO}" NAME)
  set(script "${FOLDER}/${name}")
  file(READ "${SCENARIO}" lines)
  file(WRITE "${script}" "cursor ${CURSOR}\n${lines}")
endif()
foreach(turn first second)
  execute_process(
    COMMAND "${PROGRAM}" script "${script}"
    RESULT_VARIABLE status
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors)
  if(NOT status EQUAL 0 OR NOT errors STREQUAL "")
    message(FATAL_ERROR "the ${turn} run ended with ${status}\n${errors}")
  endif()
  if(NOT output STREQUAL wanted)
    message(FATAL_ERROR "the ${turn} run printed\n${output}instead of\n${wanted}")
  endif()
endforeach()
