# How this project's targets are made, so that every one has the same warnings, the same include
# root and the same sanitizers.

add_library(orvane_flags INTERFACE)
target_include_directories(orvane_flags INTERFACE "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/generated")
target_compile_options(orvane_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(NOT CMAKE_UNITY_BUILD)
  target_compile_options(orvane_flags INTERFACE -Wshadow)
else()
  # C++ files that are compiled as one see each other's constants, which no file alone could shadow.
  target_compile_options(orvane_flags INTERFACE
    "$<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>" "$<$<COMPILE_LANGUAGE:OBJCXX>:-Wshadow>")
endif()
if(ORVANE_WARNINGS_AS_ERRORS)
  target_compile_options(orvane_flags INTERFACE -Werror)
endif()
if(ORVANE_SANITIZE)
  set(orvane_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
  target_compile_options(orvane_flags INTERFACE ${orvane_sanitizers})
  target_link_options(orvane_flags INTERFACE ${orvane_sanitizers})
endif()
if(ORVANE_PLATFORM STREQUAL "macos")
  target_compile_options(orvane_flags INTERFACE $<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-arc>)
endif()

# Without a cache of what was compiled before, the libraries' headers, read once for everything, take a
# half off the time of a first build. A build with the cache, or on a Mac, shows which includes are missing.
set(orvane_precompiles ON)
if(ORVANE_CCACHE OR (ORVANE_PLATFORM STREQUAL "macos" AND NOT CMAKE_CROSSCOMPILING))
  set(orvane_precompiles OFF)
elseif(ORVANE_PLATFORM STREQUAL "desk")
  # Some libraries' packages ask for it, and it must be the same for all who share the headers.
  target_compile_options(orvane_flags INTERFACE -pthread)
endif()
set(orvane_read_headers
    <algorithm> <array> <cmath> <cstdint> <functional> <limits> <map> <memory> <optional> <set> <span>
    <sstream> <string> <string_view> <utility> <vector>)
if(ORVANE_PLATFORM STREQUAL "macos")
  list(APPEND orvane_read_headers <ApplicationServices/ApplicationServices.h>
       $<$<COMPILE_LANGUAGE:OBJCXX>:<AppKit/AppKit.h$<ANGLE-R>>)
endif()

# orvane_precompiled(NAME HEADERS...): a target with nothing but the read headers, for others to reuse.
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

# orvane_steers_fuzzers(NAME): libFuzzer sees which branches of the target an input takes.
function(orvane_steers_fuzzers name)
  if(ORVANE_BUILD_FUZZERS)
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()
if(TARGET orvane_headers)
  orvane_steers_fuzzers(orvane_headers)
endif()

# orvane_reuse(NAME HEADERS): the target's sources find the headers of the target HEADERS read.
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
    # To optimise GoogleTest's code takes most of a test's build; what is tested stays optimised.
    target_compile_options(${name} PRIVATE -O0)
  endif()
  # What a cross build cannot run shows no more when it is built for the second processor, too.
  if(CMAKE_CROSSCOMPILING)
    list(GET CMAKE_OSX_ARCHITECTURES 0 processor)
    set_target_properties(${name} PROPERTIES OSX_ARCHITECTURES ${processor})
  endif()
endfunction()

# orvane_test_bundle(NAME): on a Mac a bundle with user defaults of its own, which are not the user's
# Orvane's; on GNUstep one with the application's images, too.
function(orvane_test_bundle name)
  if(ORVANE_GNUSTEP)
    orvane_gnustep_bundle(${name} ${ORVANE_BUNDLE_IDENTIFIER})
  else()
    set_target_properties(${name} PROPERTIES MACOSX_BUNDLE TRUE
                                             MACOSX_BUNDLE_GUI_IDENTIFIER ${ORVANE_BUNDLE_IDENTIFIER}.tests)
  endif()
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
    # What is measured must have the machine for itself.
    list(APPEND properties RUN_SERIAL TRUE)
  endif()
  gtest_discover_tests(
    ${name}
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60
    TEST_PREFIX "${prefix}"
    PROPERTIES ${properties})
endfunction()
