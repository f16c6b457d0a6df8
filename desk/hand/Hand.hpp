// Hand operates the simulated Mac as a user does: it presses, hovers and picks controls by their
// labels, drags, moves the mouse and types.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "Orvane/ui/views/Semantics.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "desk/windows/Surfaces.hpp"

namespace orvane::desk {

/// Identifies a control.
struct ControlName {
  std::string label;
  /// None for the frontmost surface that has such a control.
  std::optional<std::string> surface = std::nullopt;
  /// The position among equal controls, from 1.
  std::int64_t nth = 1;
  std::optional<ui::Role> role = std::nullopt;
};

/// Acts on the current machine. After each action the machine runs all tasks that are due. Points
/// are in global coordinates. It has no state.
class Hand {
 public:
  /// Why an action was not possible, in words; none on success.
  using Refusal = std::optional<std::string>;

  struct FoundControl {
    std::optional<SurfaceControl> control;
    /// Why `control` is none.
    Refusal refusal;
  };
  struct FoundWindow {
    /// Null when it is not open or blocked.
    std::shared_ptr<DeskWindow> window;
    Refusal refusal;
  };

  /// Not owned.
  explicit Hand(Machine& machine) : machine_(machine) {}

  /// Finds an enabled control on a surface that no modal window blocks.
  [[nodiscard]] FoundControl find(const ControlName& name) const;
  /// The frontmost visible window with that name, unless a modal window blocks it.
  [[nodiscard]] FoundWindow findWindow(const std::string& surface) const;
  /// The first control of a surface with that label, even if it is disabled or blocked.
  [[nodiscard]] std::optional<SurfaceControl> control(const std::string& label,
                                                      const std::string& surface) const;
  /// The centre of the row with that title in the open menu; none without such a row.
  [[nodiscard]] std::optional<CGPoint> menuItemCenter(const std::string& title) const;

  /// The accessibility press; the control need not be visible.
  Refusal press(const ControlName& name) const;
  /// Moves the pointer to the centre of the visible part of the control.
  Refusal hover(const ControlName& name) const;
  /// Presses a pop-up button and chooses an item of its menu.
  Refusal pick(ControlName name, const std::string& item) const;
  /// Chooses an item of the open menu.
  Refusal choose(const std::string& item) const;
  /// Opens the status item's menu on the display under the pointer.
  Refusal openStatusMenu() const;

  Refusal close(const std::string& surface) const;
  Refusal minimise(const std::string& surface) const;
  /// Drags a window by its background.
  Refusal dragWindow(const std::string& surface, double dx, double dy) const;
  /// Drags the permission guide's icon onto the Accessibility list of System Settings.
  Refusal dropIcon() const;

  void moveTo(CGPoint place) const;
  void pressButton() const;
  void releaseButton() const;
  /// Moves there and clicks.
  void click(CGPoint place) const;
  /// Types a key. Whether the menu, a window or the application handled it.
  bool key(const ui::KeyEvent& event) const;

 private:
  Machine& machine_;
};

}  // namespace orvane::desk
