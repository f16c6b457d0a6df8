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

# Without a cache of what was compiled before, headers that are read once for a whole target take a
# third off the time of a first build. A build with the cache shows which includes are missing.
function(orvane_precompile name)
  get_target_property(sources ${name} SOURCES)
  list(LENGTH sources source_count)
  if(ORVANE_CCACHE OR source_count LESS 5 OR NOT ORVANE_PLATFORM STREQUAL "desk")
    return()
  endif()
  target_precompile_headers(${name} PRIVATE ${ARGN} <algorithm> <array> <functional> <memory>
                            <optional> <string> <string_view> <utility> <vector>)
endfunction()

# orvane_library(NAME SOURCES...): a static library of the project.
function(orvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC orvane_flags)
  orvane_precompile(${name})
endfunction()

# orvane_test(NAME SOURCES file... [LIBRARIES library...] [DEFINITIONS name=value...]
# [LABELS label...] [PROPERTY_CASES count]): a GoogleTest executable; every test in it is one test of
# ctest. In the sanitizers' build its name says so. Under ctest RapidCheck's properties see the same
# cases in every run, PROPERTY_CASES of them; the executable itself tries others each time.
function(orvane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROPERTY_CASES" "SOURCES;LIBRARIES;DEFINITIONS;LABELS")
  if(ORVANE_SPEED_TESTS_ONLY AND NOT "speed" IN_LIST arg_LABELS)
    return()
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE orvane_flags ${arg_LIBRARIES} GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
  if(ORVANE_GNUSTEP AND "orvane_macos" IN_LIST arg_LIBRARIES)
    orvane_gnustep_bundle(${name} ${ORVANE_BUNDLE_IDENTIFIER})
  endif()
  if(ORVANE_SANITIZE)
    # The checks of the sanitizers in optimised GoogleTest code take most of the build's time; what
    # is tested stays optimised.
    target_compile_options(${name} PRIVATE -O0)
  endif()
  orvane_precompile(${name} <gtest/gtest.h>)
  set(prefix "")
  if(ORVANE_GNUSTEP)
    set(prefix "gnustep.")
  elseif(ORVANE_SANITIZE)
    set(prefix "asan.")
  endif()
  if(NOT arg_PROPERTY_CASES)
    set(arg_PROPERTY_CASES 100)
  endif()
  set(properties TIMEOUT 300
                 ENVIRONMENT "RC_PARAMS=seed=20260101 max_success=${arg_PROPERTY_CASES}")
  if(arg_LABELS)
    list(APPEND properties LABELS "${arg_LABELS}")
  endif()
  if("speed" IN_LIST arg_LABELS)
    # What is measured must have the machine for itself.
    list(APPEND properties RUN_SERIAL TRUE)
  endif()
  gtest_discover_tests(
    ${name}
    DISCOVERY_MODE PRE_TEST
    TEST_PREFIX "${prefix}"
    PROPERTIES ${properties})
endfunction()
