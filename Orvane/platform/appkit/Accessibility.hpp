// Announcements to assistive technologies; NSAccessibility on a Mac.
#pragma once

#include <string>

namespace orvane::appkit {

/// Main thread only.
class Accessibility {
 public:
  Accessibility() = delete;

  /// Has a screen reader speak `text`. Does nothing when none is running, or when `text` is empty
  /// or not valid UTF-8.
  static void announce(const std::string& text);
};

}  // namespace orvane::appkit
