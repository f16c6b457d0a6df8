// How buttons look. A style is a struct with
// `View body(const ButtonConfiguration&, const Environment&) const`.
#pragma once

#include <functional>
#include <utility>

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

template <typename T>
concept ButtonStyling = requires(const T& style, const ButtonConfiguration& configuration,
                                 const Environment& environment) {
  { style.body(configuration, environment) } -> std::convertible_to<View>;
};

class ButtonStyle {
 public:
  template <ButtonStyling Style>
  ButtonStyle(Style style)  // NOLINT: styles are meant to convert
      : body_([style = std::move(style)](const ButtonConfiguration& configuration,
                                         const Environment& environment) -> View {
          return style.body(configuration, environment);
        }) {}

  View body(const ButtonConfiguration& configuration, const Environment& environment) const {
    return body_(configuration, environment);
  }

 private:
  std::function<View(const ButtonConfiguration&, const Environment&)> body_;
};

/// Only the label, for labels that show the states of the button themselves.
struct BareButtonStyle {
  View body(const ButtonConfiguration& configuration, const Environment&) const {
    return configuration.label;
  }
};

/// Only the label, fainter while pressed or disabled.
struct PlainButtonStyle {
  View body(const ButtonConfiguration& configuration, const Environment& environment) const;
};

/// The label on a bezel, which has the accent colour in default and prominent buttons.
struct BorderedButtonStyle {
  bool isProminent = false;

  View body(const ButtonConfiguration& configuration, const Environment& environment) const;
};

}  // namespace orvane::ui
