// The card that shows what to turn on in System Settings, and the progress.
#pragma once

#include <functional>

#include "Orvane/permission/PermissionGuideState.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane {

struct OrvanePermissionGuideView {
  /// In points.
  static constexpr double width = 360;
  static constexpr double height = 500;

  PermissionGuideState state = PermissionGuideState::checking;
  std::function<void()> onClose;

  [[nodiscard]] ui::View body(const ui::Environment& environment) const;

 private:
  [[nodiscard]] ui::View closeControl() const;
  [[nodiscard]] ui::View iconArea() const;
  [[nodiscard]] ui::View statusLine(bool isDark) const;
  [[nodiscard]] ui::View doneButton() const;
};

}  // namespace orvane
