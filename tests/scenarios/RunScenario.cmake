# Runs one scenario twice: every expectation must hold, nothing may be printed on the error stream,
# and both runs must print the same, which is the content of NAME.out if this file exists.
# With CURSOR, the script begins by setting the cursor, and its line numbers are one higher.
# Run as: cmake -DPROGRAM=... -DSCENARIO=... [-DCURSOR=free -DFOLDER=...] -P RunScenario.cmake
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
    OUTPUT_VARIABLE ${turn}_output
    ERROR_VARIABLE errors)
  if(NOT status EQUAL 0 OR NOT errors STREQUAL "")
    message(FATAL_ERROR "the ${turn} run ended with ${status}\n${errors}")
  endif()
endforeach()
set(expected "${first_output}")
string(REGEX REPLACE "\\.desk$" ".out" expected_file "${SCENARIO}")
if(EXISTS "${expected_file}")
  file(READ "${expected_file}" expected)
endif()
foreach(turn first second)
  if(NOT ${turn}_output STREQUAL expected)
    message(FATAL_ERROR "the ${turn} run printed\n${${turn}_output}instead of\n${expected}")
  endif()
endforeach()
