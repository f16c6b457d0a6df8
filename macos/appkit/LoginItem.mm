// The application's login item with SMAppService.
#include "Orvane/platform/appkit/LoginItem.hpp"

#import <Foundation/Foundation.h>

#include "macos/appkit/ServiceManagement.hpp"
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

LoginItem::Status LoginItem::status() {
  return static_cast<Status>(SMAppService.mainAppService.status);
}

std::optional<std::string> LoginItem::registerApplication() {
  NSError* error = nil;
  const BOOL done = [SMAppService.mainAppService registerAndReturnError:&error];
  return done ? std::nullopt : std::optional(utf8String(error.localizedDescription));
}

std::optional<std::string> LoginItem::unregisterApplication() {
  NSError* error = nil;
  const BOOL done = [SMAppService.mainAppService unregisterAndReturnError:&error];
  return done ? std::nullopt : std::optional(utf8String(error.localizedDescription));
}

}  // namespace orvane::appkit
