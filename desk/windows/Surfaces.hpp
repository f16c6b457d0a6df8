// Surfaces are the windows and the open menu, by the names that scripts use.
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

/// A control of the semantics tree.
struct SurfaceControl {
  ui::SemanticsNode node;
  /// In global coordinates.
  CGRect frame{};
  /// The part of the frame that is not clipped by scroll areas; may be empty.
  CGRect visibleFrame{};
  /// The accessibility press; false when it had no effect.
  std::function<bool()> press;
};

/// A window's content, or a row of the menu.
struct SurfacePart {
  /// Up to date, with frames from the part's top left.
  ui::SemanticsNode tree;
  /// In global coordinates.
  CGPoint origin{};
  /// The accessibility press of a node.
  std::function<bool(std::uint64_t id)> press;
};

class Surfaces {
 public:
  /// The name of the open menu.
  static constexpr const char* menu = "menu";

  explicit Surfaces(WindowServer& server) : server_(server) {}

  /// The name of a window; its class name if it has no surface name.
  [[nodiscard]] static std::string nameOf(const DeskWindow& window);
  /// The frontmost visible window with that name; null when there is none.
  [[nodiscard]] std::shared_ptr<DeskWindow> window(const std::string& name) const;
  /// The visible surfaces that no modal session blocks, front to back.
  [[nodiscard]] std::vector<std::string> names() const;
  [[nodiscard]] bool isOpen(const std::string& name) const;
  /// In global coordinates; none when the surface is not open.
  [[nodiscard]] std::optional<CGRect> frame(const std::string& name) const;

  /// The up-to-date semantics tree, with frames from the surface's top left; none when the surface
  /// is not open.
  [[nodiscard]] std::optional<ui::SemanticsNode> tree(const std::string& name) const;
  /// All controls of a surface in reading order; none when it is not open.
  [[nodiscard]] std::vector<SurfaceControl> controls(const std::string& name) const;

 private:
  /// Empty when the surface is not open.
  [[nodiscard]] std::vector<SurfacePart> parts(const std::string& name) const;

  WindowServer& server_;
};

}  // namespace orvane::desk
