// The application's bundle with NSBundle.
#include "Orvane/platform/appkit/Bundle.hpp"

#import <AppKit/AppKit.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

std::optional<std::string> Bundle::url() {
  NSBundle* const bundle = NSBundle.mainBundle;
  // For an executable without a bundle, its folder counts as the bundle, but has no identifier.
  return bundle.bundleIdentifier == nil
             ? std::nullopt
             : std::optional(utf8String(bundle.bundleURL.absoluteString));
}

bool Bundle::isOnReadOnlyVolume() {
  id isReadOnly = nil;
  [NSBundle.mainBundle.bundleURL getResourceValue:&isReadOnly
                                           forKey:NSURLVolumeIsReadOnlyKey
                                            error:nil];
  return [isReadOnly boolValue];
}

}  // namespace orvane::appkit
