# The build's options: the product's constants, the platform, and the optional targets.

set(ORVANE_BUNDLE_IDENTIFIER "app.orvane.Orvane" CACHE STRING "Bundle identifier of the application")
set(ORVANE_SUPPORT_ADDRESS "support@orvane.example" CACHE STRING "E-mail address of the support")
set(ORVANE_PRIVACY_POLICY_URL "https://orvane.example/privacy" CACHE STRING
    "Web address of the privacy policy")

set(ORVANE_MACOS_SDK "" CACHE PATH "A macOS SDK, to cross-build the real application on Linux")
set(ORVANE_GNUSTEP "" CACHE PATH "Where tools/gnustep has installed GNUstep, to run the Mac half on Linux")
if(APPLE OR ORVANE_MACOS_SDK OR ORVANE_GNUSTEP)
  set(orvane_default_platform macos)
else()
  set(orvane_default_platform desk)
endif()
set(ORVANE_PLATFORM ${orvane_default_platform} CACHE STRING "macos: the real Mac; desk: the simulated one")
set_property(CACHE ORVANE_PLATFORM PROPERTY STRINGS desk macos)

option(ORVANE_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(ORVANE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(ORVANE_COVERAGE "Count which lines of macos/ are run (clang only)" OFF)
option(ORVANE_BUILD_TESTS "Build the tests" ON)
option(ORVANE_SPEED_TESTS_ONLY "Of the tests, build only those with the label speed" OFF)
option(ORVANE_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(ORVANE_BUILD_FUZZERS "Build the libFuzzer targets (clang only)" OFF)

# Uses ccache when it is installed, unless its variable CCACHE_DISABLE is set when CMake configures.
find_program(ORVANE_CCACHE ccache)
if(DEFINED ENV{CCACHE_DISABLE})
  set(ORVANE_CCACHE OFF)
endif()
if(ORVANE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ORVANE_CCACHE}")
endif()
