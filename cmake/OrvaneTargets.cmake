# How this project's targets are made, so that every one has the same warnings, the same include
# root and the same sanitizers.

add_library(orvane_flags INTERFACE)
target_include_directories(orvane_flags INTERFACE "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/generated")
target_compile_options(orvane_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(ORVANE_WARNINGS_AS_ERRORS)
  target_compile_options(orvane_flags INTERFACE -Werror)
endif()
if(ORVANE_SANITIZE)
  set(orvane_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
  target_compile_options(orvane_flags INTERFACE ${orvane_sanitizers})
  target_link_options(orvane_flags INTERFACE ${orvane_sanitizers})
endif()

# orvane_library(NAME SOURCES...): a static library of the project.
function(orvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC orvane_flags)
endfunction()

# orvane_test(NAME SOURCES file... [LIBRARIES library...] [LABELS label...]): a GoogleTest
# executable; every test in it is one test of ctest. In the sanitizers' build its name says so.
function(orvane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;LABELS")
  if(ORVANE_SPEED_TESTS_ONLY AND NOT "speed" IN_LIST arg_LABELS)
    return()
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE orvane_flags ${arg_LIBRARIES} GTest::gtest_main)
  set(prefix "")
  if(ORVANE_SANITIZE)
    set(prefix "asan.")
  endif()
  set(properties TIMEOUT 300)
  if(arg_LABELS)
    list(APPEND properties LABELS "${arg_LABELS}")
  endif()
  gtest_discover_tests(
    ${name}
    DISCOVERY_MODE PRE_TEST
    TEST_PREFIX "${prefix}"
    PROPERTIES ${properties})
endfunction()
