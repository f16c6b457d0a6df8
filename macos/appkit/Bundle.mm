// The application's bundle by NSBundle.
#include "Orvane/platform/appkit/Bundle.hpp"

#import <AppKit/AppKit.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

std::optional<std::string> Bundle::url() {
  NSBundle* const bundle = NSBundle.mainBundle;
  // Without a bundle around it, an executable's folder passes for one, but has no identifier.
  return bundle.bundleIdentifier == nil
             ? std::nullopt
             : std::optional(utf8String(bundle.bundleURL.absoluteString));
}

}  // namespace orvane::appkit
