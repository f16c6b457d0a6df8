// Hand operates what the displays show, as a user does: it finds a control by its label and presses
// it, hovers over it, picks from it; it drags, moves the mouse and types.
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

/// Which control is meant.
struct ControlName {
  std::string label;
  /// Without one, the frontmost that has such a control.
  std::optional<std::string> surface = std::nullopt;
  /// Which of several, from 1.
  std::int64_t nth = 1;
  std::optional<ui::Role> role = std::nullopt;
};

/// For the current machine. Each action runs what is due at the present instant and leaves the
/// machine at rest. Points are in global coordinates. Cheap to make; keeps nothing.
class Hand {
 public:
  /// Why something could not be done, for people; none when it was done.
  using Refusal = std::optional<std::string>;

  struct FoundControl {
    std::optional<SurfaceControl> control;
    /// Why there is none.
    Refusal refusal;
  };
  struct FoundWindow {
    /// Null when it cannot be operated.
    std::shared_ptr<DeskWindow> window;
    Refusal refusal;
  };

  /// Not owned.
  explicit Hand(Machine& machine) : machine_(machine) {}

  /// Only an enabled control that no modal window keeps back.
  [[nodiscard]] FoundControl find(const ControlName& name) const;
  /// The frontmost visible window of that name, unless a modal window keeps it back.
  [[nodiscard]] FoundWindow findWindow(const std::string& surface) const;
  /// The first control of a surface with that label, disabled or kept back as it may be.
  [[nodiscard]] std::optional<SurfaceControl> control(const std::string& label,
                                                      const std::string& surface) const;
  /// The middle of the row with that title in the open menu; none when there is none.
  [[nodiscard]] std::optional<CGPoint> menuItemPlace(const std::string& title) const;

  /// The accessibility press, which needs no sight.
  Refusal press(const ControlName& name) const;
  /// The pointer onto the middle of what is in sight of the control.
  Refusal hover(const ControlName& name) const;
  /// Presses a pop-up button and chooses the item of the menu that it opens.
  Refusal pick(ControlName name, const std::string& item) const;
  /// Chooses the item of the open menu.
  Refusal choose(const std::string& item) const;
  /// Opens the status item's menu on the display under the pointer.
  Refusal openStatusMenu() const;

  Refusal close(const std::string& surface) const;
  Refusal minimise(const std::string& surface) const;
  /// Drags a window by its background.
  Refusal dragWindow(const std::string& surface, double dx, double dy) const;
  /// Drags the permission guide's icon onto the list in the System Settings.
  Refusal dropIcon() const;
  /// Where the guide's icon can be taken; none without a guide.
  [[nodiscard]] std::optional<CGPoint> iconPlace() const;

  void moveTo(CGPoint place) const;
  void pressButton() const;
  void releaseButton() const;
  /// Moves there and clicks.
  void click(CGPoint place) const;
  /// To whatever has the keyboard. Whether anybody did anything with it.
  bool key(const ui::KeyEvent& event) const;

 private:
  Machine& machine_;
};

}  // namespace orvane::desk
