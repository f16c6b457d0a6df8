# GoogleTest: the installed library, or its sources where the installed one does not fit: in a cross
# build (from Debian's package googletest) and wherever ORVANE_GOOGLETEST_SOURCE names them, as for
# a Mac's universal build.
if(NOT CMAKE_CROSSCOMPILING AND NOT ORVANE_GOOGLETEST_SOURCE)
  find_package(GTest REQUIRED)
  return()
endif()

find_path(ORVANE_GOOGLETEST_SOURCE googletest/src/gtest-all.cc
          PATHS /usr/src/googletest
          DOC "The sources of GoogleTest" NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
# An old release requires an old CMake; its warning is of no use here.
set(CMAKE_WARN_DEPRECATED OFF CACHE BOOL "" FORCE)
enable_language(C)
add_subdirectory("${ORVANE_GOOGLETEST_SOURCE}" "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
foreach(name gtest gtest_main)
  orvane_as_a_test(${name})
  if(NOT TARGET GTest::${name})
    add_library(GTest::${name} ALIAS ${name})
  endif()
endforeach()
