// A screen's identifiers and its frame in global coordinates, derived from what the window system
// reports.
#include "Orvane/geometry/OrvaneScreen.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Orvane/base/CFRef.hpp"
#include "Orvane/platform/CFText.hpp"

namespace orvane::OrvaneScreen {

namespace {

/// The shortest form, with at least one decimal, that parses back to exactly `value`: 1920.0.
std::string descriptionOf(double value) {
  constexpr int maximumDecimals = 17;
  std::array<char, 400> buffer{};
  for (int decimals = 1; decimals <= maximumDecimals; ++decimals) {
    std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, value);
    if (std::strtod(buffer.data(), nullptr) == value) {
      break;
    }
  }
  return buffer.data();
}

std::string descriptionOf(std::optional<std::int64_t> number) {
  return number ? "Optional(" + std::to_string(*number) + ")" : "nil";
}

std::string descriptionOf(const std::optional<std::string>& text) {
  return text ? "Optional(\"" + *text + "\")" : "nil";
}

}  // namespace

std::optional<CGDirectDisplayID> orvaneDisplayID(const appkit::Screen& screen) {
  const std::optional<std::int64_t> number = screen.deviceNumber("NSScreenNumber");
  return number ? std::optional(static_cast<CGDirectDisplayID>(*number)) : std::nullopt;
}

CGRect orvaneCGFrame(const appkit::Screen& screen, std::span<const appkit::Screen> screens) {
  const CGRect frame = screen.frame();
  if (screens.empty()) {
    return frame;
  }
  const double primaryHeight = CGRectGetHeight(screens.front().frame());
  return CGRectMake(CGRectGetMinX(frame), primaryHeight - CGRectGetMaxY(frame),
                    CGRectGetWidth(frame), CGRectGetHeight(frame));
}

std::string orvanePrimaryIdentifier(const appkit::Screen& screen) {
  if (const auto displayID = orvaneDisplayID(screen)) {
    if (const auto uuid = CFRef<CFUUIDRef>::owning(CGDisplayCreateUUIDFromDisplayID(*displayID))) {
      const auto string =
          CFRef<CFStringRef>::owning(CFUUIDCreateString(kCFAllocatorDefault, uuid.get()));
      if (const auto text = textOf(string.get())) {
        return *text;
      }
    }
  }
  return orvaneLegacyIdentifier(screen);
}

std::string orvaneLegacyIdentifier(const appkit::Screen& screen) {
  const CGRect frame = screen.frame();
  return descriptionOf(screen.deviceNumber("NSScreenNumber")) + "-" +
         descriptionOf(CGRectGetWidth(frame)) + "-" + descriptionOf(CGRectGetHeight(frame)) + "-" +
         descriptionOf(screen.deviceNumber("NSDeviceBitsPerSample")) + "-" +
         descriptionOf(screen.deviceString("NSDeviceColorSpaceName"));
}

std::set<std::string> orvaneMatchingIdentifiers(const appkit::Screen& screen) {
  std::set<std::string> identifiers{orvanePrimaryIdentifier(screen),
                                    orvaneLegacyIdentifier(screen)};
  if (const auto displayID = orvaneDisplayID(screen)) {
    identifiers.insert(std::to_string(*displayID));
  }
  return identifiers;
}

std::optional<std::size_t> orvaneFindScreen(const std::string& identifier,
                                            std::span<const appkit::Screen> screens) {
  const auto found = std::ranges::find_if(screens, [&](const appkit::Screen& screen) {
    return orvaneMatchingIdentifiers(screen).contains(identifier);
  });
  return found != screens.end() ? std::optional(static_cast<std::size_t>(found - screens.begin()))
                                : std::nullopt;
}

}  // namespace orvane::OrvaneScreen
