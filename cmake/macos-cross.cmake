# Cross-builds the real application on Linux with clang, lld and the LLVM tools (version 19) and a
# macOS SDK that the builder provides: -DORVANE_MACOS_SDK=FOLDER, a folder with System/Library and
# usr. As on a Mac, one call of the compiler generates code for both processors.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ORVANE_MACOS_SDK)
if(NOT IS_DIRECTORY "${ORVANE_MACOS_SDK}/System/Library/Frameworks/AppKit.framework")
  message(FATAL_ERROR "The cross build needs a macOS SDK: -DORVANE_MACOS_SDK=FOLDER")
endif()

set(CMAKE_OSX_SYSROOT "${ORVANE_MACOS_SDK}" CACHE PATH "The macOS SDK")
set(CMAKE_OSX_ARCHITECTURES "arm64;x86_64" CACHE STRING "The processors to build for")
set(CMAKE_OSX_DEPLOYMENT_TARGET 13.0 CACHE STRING "The oldest macOS that runs the result")

foreach(language C CXX OBJC OBJCXX)
  set(CMAKE_${language}_COMPILER_TARGET arm64-apple-darwin)
endforeach()
find_program(CMAKE_C_COMPILER clang-19 REQUIRED)
find_program(CMAKE_CXX_COMPILER clang++-19 REQUIRED)
set(CMAKE_OBJC_COMPILER "${CMAKE_C_COMPILER}")
set(CMAKE_OBJCXX_COMPILER "${CMAKE_CXX_COMPILER}")
find_program(ORVANE_LD64 ld64.lld-19 REQUIRED)
find_program(ORVANE_LIPO llvm-lipo-19 REQUIRED)
find_program(ORVANE_LIBTOOL llvm-libtool-darwin-19 REQUIRED)
find_program(CMAKE_NM llvm-nm-19 REQUIRED)
find_program(CMAKE_AR llvm-ar-19 REQUIRED)
find_program(CMAKE_RANLIB llvm-ranlib-19 REQUIRED)
find_program(CMAKE_STRIP llvm-strip-19 REQUIRED)
find_program(CMAKE_INSTALL_NAME_TOOL llvm-install-name-tool-19 REQUIRED)

# The compiler merges the two processors' objects with a program that must be called "lipo".
set(orvane_tools "${CMAKE_BINARY_DIR}/macos-cross-tools")
file(MAKE_DIRECTORY "${orvane_tools}")
file(CREATE_LINK "${ORVANE_LIPO}" "${orvane_tools}/lipo" SYMBOLIC)

# A framework that the SDK lacks is linked by a stub that lists the symbols in use.
if(NOT EXISTS "${ORVANE_MACOS_SDK}/System/Library/Frameworks/ServiceManagement.framework")
  set(orvane_framework ServiceManagement.framework)
  file(WRITE "${orvane_tools}/${orvane_framework}/ServiceManagement.tbd"
"--- !tapi-tbd
tbd-version: 4
targets: [ x86_64-macos, arm64-macos ]
install-name: '/System/Library/Frameworks/${orvane_framework}/Versions/A/ServiceManagement'
exports:
  - targets: [ x86_64-macos, arm64-macos ]
    objc-classes: [ SMAppService ]
...
")
endif()

# Without a settings file in the SDK the compiler would record the deployment target as the SDK's
# version, and AppKit would treat the application as built with that old SDK.
set(orvane_sdk_version 13.0)
if(NOT EXISTS "${ORVANE_MACOS_SDK}/SDKSettings.json")
  file(STRINGS "${ORVANE_MACOS_SDK}/usr/include/AvailabilityVersions.h" orvane_version_lines
       REGEX "#define +MAC_OS_VERSION_[0-9]+_[0-9]+ ")
  foreach(line IN LISTS orvane_version_lines)
    if(line MATCHES "MAC_OS_VERSION_([0-9]+)_([0-9]+) ")
      set(version "${CMAKE_MATCH_1}.${CMAKE_MATCH_2}")
      if(version VERSION_GREATER orvane_sdk_version)
        set(orvane_sdk_version ${version})
      endif()
    endif()
  endforeach()
  set(orvane_platform_version
      "-Wl,-platform_version,macos,${CMAKE_OSX_DEPLOYMENT_TARGET},${orvane_sdk_version}")
endif()

foreach(language C CXX OBJC OBJCXX)
  set(CMAKE_${language}_FLAGS_INIT "-B${orvane_tools}")
  # The default archiver stores one processor's objects; libtool stores both.
  set(CMAKE_${language}_CREATE_STATIC_LIBRARY
      "\"${ORVANE_LIBTOOL}\" -static -o <TARGET> <LINK_FLAGS> <OBJECTS>")
endforeach()
# An SDK of stubs may lack the C and C++ libraries' symbols, so the linker leaves unknown symbols to
# the loader; CheckMachOImports.cmake reports when that hides a mistake.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT
      "-fuse-ld=lld --ld-path=${ORVANE_LD64} -Wl,-undefined,dynamic_lookup -F${orvane_tools} \
${orvane_platform_version}")
endforeach()

set(CMAKE_FIND_ROOT_PATH "${ORVANE_MACOS_SDK}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
