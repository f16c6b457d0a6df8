// Opening links and files with NSWorkspace.
#include "Orvane/platform/appkit/Workspace.hpp"

#import <AppKit/AppKit.h>

#include <utility>

#include "Orvane/platform/appkit/MainQueue.hpp"
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

// Since macOS 14 the plain initialiser repairs an invalid URL, which must be refused.
NSURL* urlFrom(NSString* text) {
  if (@available(macOS 14, *)) {
    return [NSURL URLWithString:text encodingInvalidCharacters:NO];
  }
  return [NSURL URLWithString:text];
}

void report(bool isOpened, const std::function<void(bool isOpened)>& completed) {
  if (completed) {
    MainQueue::async([isOpened, completed] { completed(isOpened); });
  }
}

void openLink(NSURL* url, std::function<void(bool isOpened)> completed) {
  if (url == nil) {
    report(false, completed);
    return;
  }
  NSWorkspaceOpenConfiguration* const configuration = NSWorkspaceOpenConfiguration.configuration;
  // A link that fails is skipped silently; with a prompt, the system would report back only after
  // the user has dismissed it.
  configuration.promptsUserIfNeeded = NO;
  [NSWorkspace.sharedWorkspace openURL:url
                         configuration:configuration
                     completionHandler:^(NSRunningApplication* taker, NSError*) {
                       // Runs on one of the system's queues.
                       report(taker != nil, completed);
                     }];
}

}  // namespace

void Workspace::openURL(std::string_view url, std::function<void(bool isOpened)> completed) {
  NSString* const text = foundationString(url);
  openLink(text == nil ? nil : urlFrom(text), std::move(completed));
}

void Workspace::openFile(std::string_view path, std::function<void(bool isOpened)> completed) {
  NSString* const text = foundationString(path);
  openLink(text == nil ? nil : [NSURL fileURLWithPath:text], std::move(completed));
}

std::optional<std::string> Workspace::percentEncodedForQuery(std::string_view text) {
  NSString* const encoded = [foundationString(text)
      stringByAddingPercentEncodingWithAllowedCharacters:NSCharacterSet
                                                             .URLQueryAllowedCharacterSet];
  return encoded == nil ? std::nullopt : std::optional(utf8String(encoded));
}

}  // namespace orvane::appkit
