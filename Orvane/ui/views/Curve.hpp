// How a value approaches its target over time: a cubic Bezier with a duration, or a spring.
#pragma once

#include <algorithm>
#include <optional>

#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

struct Curve {
  /// The state of a motion at a time.
  struct Remainder {
    /// Value minus target.
    double distance = 0;
    /// Per second.
    double velocity = 0;
    /// Whether the value has reached its target, up to the tolerance.
    bool isSettled = false;
  };

  /// The duration of a Bezier, or the response of a spring.
  double seconds = 0;
  /// Of a Bezier.
  Point control1 = {};
  Point control2 = {1, 1};
  /// Of a spring; none for a Bezier.
  std::optional<double> dampingFraction = std::nullopt;

  static Curve linear(double seconds) { return {seconds}; }
  static Curve easeOut(double seconds) { return {seconds, {0, 0}, {0.58, 1}}; }
  static Curve easeInOut(double seconds) { return {seconds, {0.42, 0}, {0.58, 1}}; }
  /// A mass of 1 on a spring of stiffness (2 pi / response)^2 with damping
  /// 4 pi * dampingFraction / response. Fractions are limited to 0.05, so that every spring comes
  /// to rest, and 1, with which it does not overshoot.
  static Curve spring(double responseSeconds, double dampingFraction) {
    return {.seconds = responseSeconds, .dampingFraction = std::clamp(dampingFraction, 0.05, 1.0)};
  }

  /// The motion that began `elapsed` seconds ago at `distance` (start minus target), with a
  /// velocity if the value was moving already. A spring continues with the velocity; a Bezier is
  /// adjusted to begin with it and still ends on time. Without a duration the motion ends at once.
  [[nodiscard]] Remainder remainder(double distance, std::optional<double> velocity,
                                    double elapsed) const;
};

}  // namespace orvane::ui
