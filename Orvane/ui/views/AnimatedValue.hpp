// A number that is animated to a target. Times are absolute, in seconds.
#pragma once

#include <memory>
#include <optional>

#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

class AnimatedValue {
 public:
  explicit AnimatedValue(double value = 0) : target_(value) {}

  [[nodiscard]] double target() const { return target_; }

  /// Takes the value at once.
  void jump(double value);
  /// Moves to a new target along the curve, from the value and with the velocity it has at `now`;
  /// without a curve it takes the target at once. The same target changes nothing: a running
  /// animation goes on.
  void set(double target, const std::optional<Curve>& curve, double now);
  /// Ends an animation that has reached its target.
  void settle(double now);

  [[nodiscard]] double at(double now) const {
    return motion_ ? target_ + remainder(now).distance : target_;
  }
  [[nodiscard]] bool isMoving(double now) const { return motion_ && !remainder(now).isSettled; }
  /// What is left of the motion to the target.
  [[nodiscard]] Curve::Remainder remainder(double now) const;

 private:
  struct Motion {
    double distance;
    std::optional<double> velocity;
    double start;
    Curve curve;
  };

  double target_;
  std::unique_ptr<Motion> motion_;
};

}  // namespace orvane::ui
