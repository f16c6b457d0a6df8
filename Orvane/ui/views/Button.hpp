// A control with an action and a label, and the styles in which it looks.
#pragma once

#include <functional>
#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

struct ButtonConfiguration {
  View label;
  /// The pointer holds the button down and is over it.
  bool isPressed = false;
  bool isEnabled = true;
  /// Return activates it.
  bool isDefault = false;
};

/// Makes the body of a button. The styles are structs that are called like functions.
using ButtonStyle = std::function<View(const ButtonConfiguration&, const Environment&)>;

/// Only the label, for labels that show the states of the button themselves.
struct BareButtonStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment&) const {
    return configuration.label;
  }
};

/// Only the label, fainter while pressed or disabled.
struct PlainButtonStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment& environment) const;
};

/// The label on a bezel, which has the accent colour in a default button.
struct BorderedButtonStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment& environment) const;
};

/// The action runs on a click (pressed and released inside), on Space while it has the keyboard
/// focus, on its keyboard shortcut and on an accessibility press, but never while it is disabled.
/// It may destroy the button.
class [[nodiscard]] Button : public View {
 public:
  Button(std::function<void()> action, const View& label);
  Button(const std::string& title, std::function<void()> action);
  /// With an action that depends on the frame of the control.
  Button(std::function<void(const Rect& frame)> action, const View& label);

  /// BorderedButtonStyle by default.
  Button style(const ButtonStyle& style) const;
  /// The outline of the focus ring.
  Button focusRing(const Shape& shape) const;
  /// Tab skips it, as it does a window's own buttons; clicks, its shortcut and accessibility
  /// presses still reach it.
  Button outOfTabOrder() const;

 private:
  explicit Button(const View& view) : View(view) {}
};

}  // namespace orvane::ui
