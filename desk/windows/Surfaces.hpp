// Surfaces are what a spectator sees and can operate, by the names that scripts use: the windows
// and the open menu.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/views/Semantics.hpp"
#include "desk/windows/DeskWindow.hpp"

namespace orvane::desk {

class WindowServer;

/// One control as a user of a screen reader finds it.
struct SurfaceControl {
  ui::SemanticsNode node;
  /// In global coordinates.
  CGRect frame{};
  /// The part of the frame that scrolling has left in sight, empty when there is none.
  CGRect frameInSight{};
  /// The accessibility press; false when it did nothing.
  std::function<bool()> press;
};

class Surfaces {
 public:
  /// The name of the open menu.
  static constexpr const char* menu = "menu";

  explicit Surfaces(WindowServer& server) : server_(server) {}

  /// The name of a window; its class name when it has no other.
  [[nodiscard]] static std::string nameOf(const DeskWindow& window);
  /// The frontmost visible window of that name; null when there is none.
  [[nodiscard]] std::shared_ptr<DeskWindow> window(const std::string& name) const;
  /// The names of what can be operated now, front to back.
  [[nodiscard]] std::vector<std::string> names() const;
  [[nodiscard]] bool isThere(const std::string& name) const;

  /// What a screen reader finds on a surface, up to date, frames from its content's top left; none
  /// when the surface is not there.
  [[nodiscard]] std::optional<ui::SemanticsNode> tree(const std::string& name) const;
  /// All controls of a surface in the order of reading.
  [[nodiscard]] std::vector<SurfaceControl> controls(const std::string& name) const;

 private:
  [[nodiscard]] ui::SemanticsNode menuTree() const;
  [[nodiscard]] std::vector<SurfaceControl> menuControls() const;

  WindowServer& server_;
};

}  // namespace orvane::desk
