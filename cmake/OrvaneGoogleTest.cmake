# GoogleTest for the tests: the installed library; in a cross build, where the installed one is for
# the wrong system, its sources as Debian's package googletest lays them out.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest REQUIRED)
  return()
endif()

find_path(ORVANE_GOOGLETEST_SOURCE googletest/src/gtest-all.cc
          PATHS /usr/src/googletest
          DOC "The sources of GoogleTest, for a cross build" NO_CMAKE_FIND_ROOT_PATH REQUIRED)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
# An old release asks for an old CMake; that is its own affair.
set(CMAKE_WARN_DEPRECATED OFF CACHE BOOL "" FORCE)
enable_language(C)
add_subdirectory("${ORVANE_GOOGLETEST_SOURCE}" "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
foreach(name gtest gtest_main)
  if(NOT TARGET GTest::${name})
    add_library(GTest::${name} ALIAS ${name})
  endif()
endforeach()
