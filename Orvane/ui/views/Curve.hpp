// How a value approaches its target over time: a cubic Bezier with a duration, or a spring.
#pragma once

#include <algorithm>
#include <optional>

namespace orvane::ui {

class Curve {
 public:
  /// The state of a motion at a time.
  struct Remainder {
    /// Value minus target.
    double distance = 0;
    /// Per second.
    double velocity = 0;
    /// Whether the value has reached its target, up to the tolerance.
    bool isSettled = false;
  };

  static Curve linear(double seconds) { return {seconds, 0, 0, 1, 1}; }
  static Curve easeOut(double seconds) { return {seconds, 0, 0, 0.58, 1}; }
  static Curve easeInOut(double seconds) { return {seconds, 0.42, 0, 0.58, 1}; }
  /// A mass of 1 on a spring of stiffness (2 pi / response)^2 with damping
  /// 4 pi * dampingFraction / response. Fractions are limited to 0.05, so that every spring comes
  /// to rest, and 1, with which it does not overshoot.
  static Curve spring(double responseSeconds, double dampingFraction) {
    return {responseSeconds, std::clamp(dampingFraction, 0.05, 1.0)};
  }

  /// The motion that began `elapsed` seconds ago at `distance` (start minus target), with a
  /// velocity if the value was moving already. A spring continues with the velocity; a Bezier is
  /// adjusted to begin with it and still ends on time. Without a duration the motion ends at once.
  [[nodiscard]] Remainder remainder(double distance, std::optional<double> velocity,
                                    double elapsed) const;

 private:
  enum class Kind { bezier, spring };

  Curve(double seconds, double x1, double y1, double x2, double y2)
      : kind_(Kind::bezier), seconds_(seconds), x1_(x1), y1_(y1), x2_(x2), y2_(y2) {}
  Curve(double responseSeconds, double dampingFraction)
      : kind_(Kind::spring), seconds_(responseSeconds), dampingFraction_(dampingFraction) {}

  Remainder bezierRemainder(double distance, std::optional<double> velocity, double elapsed) const;
  Remainder springRemainder(double distance, double velocity, double elapsed) const;

  Kind kind_;
  // The duration of a Bezier or the response of a spring.
  double seconds_;
  double dampingFraction_ = 1;
  double x1_ = 0;
  double y1_ = 0;
  double x2_ = 1;
  double y2_ = 1;
};

}  // namespace orvane::ui
