// The run-time check behind @available. The compiler's own implementation reads a system file with
// functions that the application otherwise does not use, and the cross build's compiler lacks one.
// The linker finds this one before the compiler's library, so only this one is linked.
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
