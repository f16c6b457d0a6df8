// The attached displays with NSScreen.
#include "Orvane/platform/appkit/Screen.hpp"

#import <AppKit/AppKit.h>

#include <utility>

#include "macos/appkit/ScreenConversion.hpp"
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {

// The values are copied, because an NSScreen may follow its display through a change.
struct Screen::Implementation {
  explicit Implementation(NSScreen* screen)
      : frame(screen.frame),
        visibleFrame(screen.visibleFrame),
        localizedName(screen.localizedName),
        deviceDescription(screen.deviceDescription) {}

  [[nodiscard]] id entry(std::string_view key) const {
    NSString* const name = foundationString(key);
    return name == nil ? nil : deviceDescription[name];
  }

  CGRect frame;
  CGRect visibleFrame;
  NSString* localizedName;
  NSDictionary<NSDeviceDescriptionKey, id>* deviceDescription;
};

Screen::Screen(std::shared_ptr<const Implementation> implementation)
    : implementation_(std::move(implementation)) {}

std::optional<Screen> screenFrom(NSScreen* screen) {
  return screen == nil
             ? std::nullopt
             : std::optional(Screen(std::make_shared<const Screen::Implementation>(screen)));
}

std::vector<Screen> Screen::screens() {
  std::vector<Screen> screens;
  for (NSScreen* screen in NSScreen.screens) {
    screens.push_back(*screenFrom(screen));
  }
  return screens;
}

std::optional<Screen> Screen::mainScreen() {
  return screenFrom(NSScreen.mainScreen);
}

CGRect Screen::frame() const {
  return implementation_->frame;
}

CGRect Screen::visibleFrame() const {
  return implementation_->visibleFrame;
}

std::string Screen::localizedName() const {
  return utf8String(implementation_->localizedName);
}

std::optional<std::int64_t> Screen::deviceNumber(std::string_view key) const {
  const id value = implementation_->entry(key);
  return [value isKindOfClass:NSNumber.class] ? std::optional<std::int64_t>([value longLongValue])
                                              : std::nullopt;
}

std::optional<std::string> Screen::deviceString(std::string_view key) const {
  const id value = implementation_->entry(key);
  return [value isKindOfClass:NSString.class] ? std::optional(utf8String(value)) : std::nullopt;
}

}  // namespace orvane::appkit
