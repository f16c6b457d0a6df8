# Fails when a Mach-O file leaves symbols to the loader that only this project or a linked framework
# could define: a member without a definition, a misspelt constant, a framework that is not linked.
# Run as: cmake -DNM=... -DFILE=... -P CheckMachOImports.cmake
execute_process(
  COMMAND "${NM}" --undefined-only --format=darwin "${FILE}"
  OUTPUT_VARIABLE listing
  RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT listing MATCHES "\\(from AppKit\\)")
  message(FATAL_ERROR "${FILE}: the imports cannot be read")
endif()
string(REGEX MATCHALL "external [^ \n]+ \\(dynamically looked up\\)" imports "${listing}")
set(unresolved "")
foreach(import IN LISTS imports)
  string(REGEX REPLACE "external ([^ ]+) .*" "\\1" symbol "${import}")
  if(symbol MATCHES "orvane|^_OBJC_|^_objc_|^_k?(AX|CA|CF|CG|CT|CV|NS|SM|UT)[A-Z]")
    list(APPEND unresolved "${symbol}")
  endif()
endforeach()
if(unresolved)
  list(REMOVE_DUPLICATES unresolved)
  list(JOIN unresolved "\n  " unresolved)
  message(FATAL_ERROR "${FILE} uses what nothing defines:\n  ${unresolved}")
endif()
