// The alert that explains why the Accessibility permission is needed and offers to open the
// settings for it.
#pragma once

#include <functional>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct OrvaneAccessibilityPermissionAlertView {
  /// In points.
  static constexpr double width = 480;

  std::function<void()> onOpenSettings;
  std::function<void()> onCancel;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View appIcon(const ui::Environment& environment) const;
};

}  // namespace orvane
