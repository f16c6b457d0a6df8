// What @available asks at run time. The compiler's own answer reads a file of the system by
// functions that the application does without, and the cross build's compiler brings none. This one
// stands before the compiler's library when the linker looks, so it alone is taken.
#import <Foundation/Foundation.h>

#include <cstdint>

extern "C" std::int32_t __isPlatformVersionAtLeast(std::uint32_t platform, std::uint32_t major,
                                                   std::uint32_t minor, std::uint32_t patch);

std::int32_t __isPlatformVersionAtLeast(std::uint32_t /*platform*/, std::uint32_t major,
                                        std::uint32_t minor, std::uint32_t patch) {
  const NSOperatingSystemVersion version{
      static_cast<NSInteger>(major), static_cast<NSInteger>(minor), static_cast<NSInteger>(patch)};
  return [NSProcessInfo.processInfo isOperatingSystemAtLeastVersion:version] ? 1 : 0;
}
