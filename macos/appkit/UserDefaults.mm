// The standard user defaults with NSUserDefaults.
#include "Orvane/platform/appkit/UserDefaults.hpp"

#import <Foundation/Foundation.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

// objectForKey: does not convert, as stringForKey: and boolForKey: would.
id valueOf(std::string_view key) {
  NSString* const name = foundationString(key);
  return name == nil ? nil : [NSUserDefaults.standardUserDefaults objectForKey:name];
}

void setValue(std::string_view key, id value) {
  if (NSString* const name = foundationString(key); name != nil) {
    [NSUserDefaults.standardUserDefaults setObject:value forKey:name];
  }
}

}  // namespace

std::optional<std::string> UserDefaults::string(std::string_view key) {
  const id value = valueOf(key);
  return [value isKindOfClass:NSString.class] ? std::optional(utf8String(value)) : std::nullopt;
}

std::optional<bool> UserDefaults::boolean(std::string_view key) {
  const id value = valueOf(key);
  // Numbers are NSNumbers, too; only booleans have the boolean type ID.
  const bool isBoolean =
      value != nil && CFGetTypeID((__bridge CFTypeRef)value) == CFBooleanGetTypeID();
  return isBoolean ? std::optional(static_cast<bool>([value boolValue])) : std::nullopt;
}

void UserDefaults::setString(std::string_view key, std::string_view value) {
  setValue(key, foundationString(value));
}

void UserDefaults::setBoolean(std::string_view key, bool value) {
  setValue(key, (__bridge id)(value ? kCFBooleanTrue : kCFBooleanFalse));
}

void UserDefaults::remove(std::string_view key) {
  setValue(key, nil);
}

}  // namespace orvane::appkit
