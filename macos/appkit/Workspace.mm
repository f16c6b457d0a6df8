// Links and files by NSWorkspace.
#include "Orvane/platform/appkit/Workspace.hpp"

#import <AppKit/AppKit.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

// Since macOS 14 the plain initialiser repairs a text that is no URL, which the seam refuses.
NSURL* urlFrom(NSString* text) {
  if (@available(macOS 14, *)) {
    return [NSURL URLWithString:text encodingInvalidCharacters:NO];
  }
  return [NSURL URLWithString:text];
}

}  // namespace

bool Workspace::openURL(std::string_view url) {
  NSString* const text = foundationString(url);
  NSURL* const link = text == nil ? nil : urlFrom(text);
  return link != nil && [NSWorkspace.sharedWorkspace openURL:link];
}

bool Workspace::openFile(std::string_view path) {
  NSString* const text = foundationString(path);
  return text != nil && [NSWorkspace.sharedWorkspace openURL:[NSURL fileURLWithPath:text]];
}

std::optional<std::string> Workspace::percentEncodedForQuery(std::string_view text) {
  NSString* const encoded = [foundationString(text)
      stringByAddingPercentEncodingWithAllowedCharacters:NSCharacterSet
                                                             .URLQueryAllowedCharacterSet];
  return encoded == nil ? std::nullopt : std::optional(utf8String(encoded));
}

}  // namespace orvane::appkit
