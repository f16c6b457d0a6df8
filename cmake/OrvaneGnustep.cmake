# Builds the Mac half on Linux, with clang for GNUstep's Objective-C runtime. Programs are laid out
# as GNUstep applications, which run on their own X display.

if(ORVANE_CCACHE AND NOT CMAKE_OBJCXX_COMPILER_LAUNCHER)
  set(CMAKE_OBJCXX_COMPILER_LAUNCHER "${ORVANE_CCACHE}")
endif()

add_library(orvane_gnustep_flags INTERFACE)
# GNUstep requires more methods of a delegate and declares menus less precisely than AppKit, and
# clang attributes a deprecated use within the standard library to this project.
target_compile_options(orvane_flags INTERFACE
  -Wno-deprecated-declarations "$<$<COMPILE_LANGUAGE:OBJCXX>:-Wno-protocol;-Wno-incompatible-pointer-types>")
# The shim's headers precede GNUstep's, which some of them include.
target_include_directories(orvane_gnustep_flags SYSTEM INTERFACE
  "${CMAKE_SOURCE_DIR}/tests/gnustep/include" "${ORVANE_GNUSTEP}/Local/Library/Headers"
  "${ORVANE_GNUSTEP}/include")
target_compile_definitions(orvane_gnustep_flags INTERFACE
  GNUSTEP GNUSTEP_BASE_LIBRARY=1 GNUSTEP_GUI_LIBRARY=1 _NATIVE_OBJC_EXCEPTIONS)
# On a Mac, Quartz.hpp includes all of Quartz; here it is the portable half.
target_compile_options(orvane_gnustep_flags INTERFACE
  "$<$<COMPILE_LANGUAGE:OBJCXX>:-fobjc-runtime=gnustep-2.0;-fblocks;-fconstant-string-class=NSConstantString;-includeApplicationServices/ApplicationServices.h>")
target_link_options(orvane_gnustep_flags INTERFACE -fuse-ld=lld
  "-Wl,-rpath,${ORVANE_GNUSTEP}/lib" "-Wl,-rpath,${ORVANE_GNUSTEP}/Local/Library/Libraries")
target_link_directories(orvane_gnustep_flags INTERFACE
  "${ORVANE_GNUSTEP}/lib" "${ORVANE_GNUSTEP}/Local/Library/Libraries")
target_link_libraries(orvane_gnustep_flags INTERFACE gnustep-gui gnustep-base dispatch objc)

# orvane_gnustep_bundle(NAME IDENTIFIER): makes the program a bundle with the application's images;
# as a test it runs on its own X display.
function(orvane_gnustep_bundle name identifier)
  set(bundle "${CMAKE_BINARY_DIR}/${name}.app")
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${bundle}"
    CROSSCOMPILING_EMULATOR "${CMAKE_SOURCE_DIR}/tests/gnustep/on-display")
  file(WRITE "${bundle}/Resources/Info-gnustep.plist"
       "{ CFBundleIdentifier = \"${identifier}\"; CFBundleName = ${name}; NSExecutable = ${name};"
       " NSPrincipalClass = NSApplication; }\n")
  include("${CMAKE_SOURCE_DIR}/Orvane/resources/Images.cmake")
  foreach(image IN LISTS orvane_image_names)
    configure_file("${CMAKE_SOURCE_DIR}/Orvane/resources/rendered/${image}.png"
                   "${bundle}/Resources/${image}.png" COPYONLY)
  endforeach()
endfunction()
