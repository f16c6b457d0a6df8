// What @available asks at run time. Apple's compiler brings this function along; the cross build's
// compiler has no runtime library for macOS, so this stands in for it.
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
