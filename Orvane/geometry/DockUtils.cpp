// Reads the Dock's screen edge from its preferences.
#include "Orvane/geometry/DockUtils.hpp"

#include <optional>
#include <string>

#include "Orvane/platform/CFText.hpp"

namespace orvane::DockUtils {

CFStringRef dockPreferencesID() {
  static const CFStringRef domain = CFSTR("com.apple.dock");
  return domain;
}

CFRef<CFPropertyListRef> readDockPreference(CFStringRef key) {
  using Value = CFRef<CFPropertyListRef>;
  const CFStringRef domain = dockPreferencesID();
  // Without this, a change by the Dock is not seen.
  CFPreferencesAppSynchronize(domain);
  for (const CFStringRef host : {kCFPreferencesAnyHost, kCFPreferencesCurrentHost}) {
    Value value =
        Value::owning(CFPreferencesCopyValue(key, domain, kCFPreferencesCurrentUser, host));
    if (value) {
      return value;
    }
  }
  return Value::owning(CFPreferencesCopyAppValue(key, domain));
}

DockPosition getDockPosition() {
  const std::optional<std::string> orientation =
      textOf(readDockPreference(CFSTR("orientation")).get());
  if (!orientation) {
    return DockPosition::bottom;
  }
  if (*orientation == "top") {
    return DockPosition::top;
  }
  if (*orientation == "left") {
    return DockPosition::left;
  }
  if (*orientation == "right") {
    return DockPosition::right;
  }
  if (*orientation == "bottom") {
    return DockPosition::bottom;
  }
  return DockPosition::unknown;
}

}  // namespace orvane::DockUtils
