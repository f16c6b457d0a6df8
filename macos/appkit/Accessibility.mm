// Announcements with NSAccessibility.
#include "Orvane/platform/appkit/Accessibility.hpp"

#import <AppKit/AppKit.h>

#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

void Accessibility::announce(const std::string& text) {
  NSString* const announcement = foundationString(text);
  if (announcement.length == 0) {
    return;
  }
  NSAccessibilityPostNotificationWithUserInfo(
      NSApplication.sharedApplication, NSAccessibilityAnnouncementRequestedNotification, @{
        NSAccessibilityAnnouncementKey : announcement,
        NSAccessibilityPriorityKey : @(NSAccessibilityPriorityMedium),
      });
}

}  // namespace orvane::appkit
