# Runs the program with scripts that fail in each way, and checks exit status, standard output and
# standard error exactly.
# Run as: cmake -DPROGRAM=... -DFOLDER=... -P CheckProgram.cmake
file(MAKE_DIRECTORY "${FOLDER}")

# check(STATUS OUTPUT ERRORS argument...), with the text in `input` on standard input.
function(check status output errors)
  file(WRITE "${FOLDER}/input" "${input}")
  execute_process(
    COMMAND "${PROGRAM}" ${ARGN}
    WORKING_DIRECTORY "${FOLDER}"
    INPUT_FILE "${FOLDER}/input"
    RESULT_VARIABLE real_status
    OUTPUT_VARIABLE real_output
    ERROR_VARIABLE real_errors)
  if(NOT real_status EQUAL status
     OR NOT real_output STREQUAL output
     OR NOT real_errors STREQUAL errors)
    message(SEND_ERROR "${ARGN}: ended with ${real_status}, not ${status}\n"
                       "printed\n${real_output}instead of\n${output}"
                       "with the errors\n${real_errors}instead of\n${errors}")
  endif()
endfunction()

set(input "echo one\nexpect clock.now 0\necho two\n")
check(0 "one\ntwo\n" "" script -)

set(input "echo one\nexpect clock.now 1\necho two\nexpect dock.reveals.3 1\n")
check(1 "one\ntwo\n"
      "-:2: expected clock.now = 1, got 0\n-:4: expected dock.reveals.3 = 1, got 0\n" script -)

set(input "echo one\nexpect clock.now 1\nfly\necho two\n")
check(2 "one\n" "-:2: expected clock.now = 1, got 0\n-:3: unknown command \"fly\"\n" script -)

# Each file runs on its own machine; the highest status counts.
file(WRITE "${FOLDER}/good.desk" "expect clock.now 0\nadvance 1.5\nshow clock\n")
file(WRITE "${FOLDER}/bad.desk" "expect clock.now 7\n")
file(WRITE "${FOLDER}/broken.desk" "\n\nadvance\n")
set(clock "{\"media\":1001.5,\"now\":1.5,\"calendar\":788918401.5}\n")
check(0 "${clock}${clock}" "" script good.desk good.desk)
check(1 "${clock}" "bad.desk:1: expected clock.now = 7, got 0\n" script bad.desk good.desk)
check(2 "${clock}" "broken.desk:3: advance: S is missing (advance S)\n" script good.desk broken.desk
      good.desk)

check(2 "" "missing.desk:0: the file cannot be read: No such file or directory\n" script
      missing.desk)
file(MAKE_DIRECTORY "${FOLDER}/folder.desk")
check(2 "" "folder.desk:0: the file cannot be read: it is a directory\n" script folder.desk)
