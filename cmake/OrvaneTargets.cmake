# Functions that create this project's targets, so that all have the same warnings, include root and
# sanitizers.

add_library(orvane_flags INTERFACE)
target_include_directories(orvane_flags INTERFACE "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/generated")
target_compile_options(orvane_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(NOT CMAKE_UNITY_BUILD)
  target_compile_options(orvane_flags INTERFACE -Wshadow)
else()
  # In a unity build, files see each other's constants, so that plain -Wshadow warns without cause.
  target_compile_options(orvane_flags INTERFACE
    "$<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>" "$<$<COMPILE_LANGUAGE:OBJCXX>:-Wshadow>")
endif()
if(ORVANE_WARNINGS_AS_ERRORS)
  target_compile_options(orvane_flags INTERFACE -Werror)
endif()
# An empty optional that is read, or an index out of range, aborts the program.
target_compile_definitions(orvane_flags INTERFACE $<$<NOT:$<CONFIG:Release>>:_GLIBCXX_ASSERTIONS>)
if(ORVANE_SANITIZE)
  set(orvane_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
  target_compile_options(orvane_flags INTERFACE ${orvane_sanitizers})
  target_link_options(orvane_flags INTERFACE ${orvane_sanitizers})
endif()
if(ORVANE_PLATFORM STREQUAL "macos")
  target_compile_options(orvane_flags INTERFACE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
endif()

# Without ccache, precompiling the libraries' headers halves the time of a first build. A build with
# ccache, or on a Mac, shows which includes are missing.
set(orvane_precompiles ON)
if(ORVANE_CCACHE OR (ORVANE_PLATFORM STREQUAL "macos" AND NOT CMAKE_CROSSCOMPILING))
  set(orvane_precompiles OFF)
elseif(ORVANE_PLATFORM STREQUAL "desk")
  # Some libraries' packages require it, and all targets that share the headers must agree.
  target_compile_options(orvane_flags INTERFACE -pthread)
endif()
set(orvane_read_headers
    <algorithm> <array> <cmath> <cstdint> <functional> <limits> <map> <memory> <optional> <set> <span>
    <sstream> <string> <string_view> <utility> <vector>)
if(ORVANE_PLATFORM STREQUAL "macos")
  list(APPEND orvane_read_headers <ApplicationServices/ApplicationServices.h>
       $<$<COMPILE_LANGUAGE:OBJCXX>:<AppKit/AppKit.h$<ANGLE-R>>)
endif()

# orvane_precompiled(NAME HEADERS...): a target of precompiled headers only, for others to reuse.
function(orvane_precompiled name)
  if(orvane_precompiles)
    add_library(${name} OBJECT)
    set(kinds cpp)
    if(ORVANE_PLATFORM STREQUAL "macos")
      list(APPEND kinds mm)
    endif()
    foreach(kind IN LISTS kinds)
      file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/generated/${name}.${kind}" CONTENT "")
      target_sources(${name} PRIVATE "${CMAKE_BINARY_DIR}/generated/${name}.${kind}")
    endforeach()
    target_link_libraries(${name} PRIVATE orvane_flags)
    target_precompile_headers(${name} PRIVATE ${ARGN} ${orvane_read_headers})
  endif()
endfunction()
orvane_precompiled(orvane_headers)

# orvane_steers_fuzzers(NAME): instruments the target for libFuzzer's coverage guidance.
function(orvane_steers_fuzzers name)
  if(ORVANE_BUILD_FUZZERS)
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
if(TARGET orvane_headers)
  orvane_steers_fuzzers(orvane_headers)
endif()

# orvane_reuse(NAME HEADERS): the target reuses the precompiled headers of the target HEADERS.
function(orvane_reuse name headers)
  if(TARGET ${headers})
    target_precompile_headers(${name} REUSE_FROM ${headers})
  endif()
endfunction()

# orvane_library(NAME SOURCES...): a static library of the project.
function(orvane_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC orvane_flags)
  orvane_steers_fuzzers(${name})
  orvane_reuse(${name} orvane_headers)
endfunction()

# orvane_as_a_test(NAME): compiles the target's sources as tests are compiled.
function(orvane_as_a_test name)
  if(CMAKE_BUILD_TYPE STREQUAL "Debug")
    # Optimising GoogleTest's templates takes most of a test's build; the tested code stays
    # optimised.
    target_compile_options(${name} PRIVATE -O0)
  endif()
  # A cross build cannot run the tests, so building them for one processor is enough.
  if(CMAKE_CROSSCOMPILING)
    list(GET CMAKE_OSX_ARCHITECTURES 0 processor)
    set_target_properties(${name} PROPERTIES OSX_ARCHITECTURES ${processor})
  endif()
endfunction()

# orvane_test_bundle(NAME): on a Mac a bundle whose user defaults are separate from an installed
# Orvane's; on GNUstep one with the application's images, too.
function(orvane_test_bundle name)
  if(ORVANE_GNUSTEP)
    orvane_gnustep_bundle(${name} ${ORVANE_BUNDLE_IDENTIFIER})
  else()
    set_target_properties(${name} PROPERTIES MACOSX_BUNDLE TRUE
                                             MACOSX_BUNDLE_GUI_IDENTIFIER ${ORVANE_BUNDLE_IDENTIFIER}.tests)
  endif()
endfunction()

# orvane_test(NAME SOURCES file... [LIBRARIES library...] [DEFINITIONS name=value...] [LABELS
# label...] [PROPERTY_CASES count]): a GoogleTest executable; each of its tests is one ctest test,
# with a prefix in sanitizer builds. Under ctest, RapidCheck's properties try the same
# PROPERTY_CASES cases in every run; the executable by itself tries different ones each time.
function(orvane_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROPERTY_CASES" "SOURCES;LIBRARIES;DEFINITIONS;LABELS")
  if(ORVANE_SPEED_TESTS_ONLY AND NOT "speed" IN_LIST arg_LABELS)
    return()
  endif()
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE orvane_flags ${arg_LIBRARIES} orvane_test_support GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
  if("orvane_macos" IN_LIST arg_LIBRARIES)
    orvane_test_bundle(${name})
  endif()
  orvane_as_a_test(${name})
  orvane_reuse(${name} orvane_test_headers)
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
    # Measurements need the machine to themselves.
    list(APPEND properties RUN_SERIAL TRUE)
  endif()
  gtest_discover_tests(
    ${name}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${prefix}"
    PROPERTIES ${properties})
endfunction()
