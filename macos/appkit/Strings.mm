// Conversion between UTF-8 and Foundation's strings.
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

NSString* foundationString(std::string_view text) {
  return [[NSString alloc] initWithBytes:text.data()
                                  length:text.size()
                                encoding:NSUTF8StringEncoding];
}

std::string utf8String(NSString* text) {
  const char* const bytes = text.UTF8String;
  return bytes == nullptr ? std::string() : std::string(bytes);
}

}  // namespace orvane::appkit
