// A control with an action and a label.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Orvane/ui/views/ButtonStyle.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class ButtonElement;

/// The action runs on a click (pressed and released inside), on Space while it has the keyboard
/// focus, on its keyboard shortcut and on an accessibility press, but never while it is disabled.
/// It may destroy the button.
class [[nodiscard]] Button : public View {
 public:
  Button(std::function<void()> action, const View& label);
  Button(const std::string& title, std::function<void()> action);
  /// With an action that depends on the frame of the control.
  Button(std::function<void(const Activation&)> action, const View& label);

  /// BorderedButtonStyle by default.
  Button style(const ButtonStyle& style) const;
  /// The outline of the focus ring.
  Button focusRing(const Shape& shape) const;
  /// Tab skips it, as it does a window's own buttons; clicks, its shortcut and accessibility
  /// presses still reach it.
  Button outOfTabOrder() const;

 private:
  explicit Button(std::shared_ptr<const ButtonElement> element);

  std::shared_ptr<const ButtonElement> button_;
};

}  // namespace orvane::ui
