// A number on its way to a target, sampled at absolute times in seconds.
#pragma once

#include <memory>
#include <optional>

#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

class AnimatedValue {
 public:
  explicit AnimatedValue(double value = 0) : target_(value) {}

  double target() const { return target_; }

  // Is at the value from now on, without motion.
  void jump(double value);
  // Travels to a new target from where it is at `now`, with the velocity it has then; without a
  // curve it jumps. The target it already has changes nothing: a motion under way goes on.
  void set(double target, const std::optional<Curve>& curve, double now);
  // Forgets a motion that has arrived.
  void settle(double now);

  double at(double now) const;
  double velocityAt(double now) const;
  bool isMoving(double now) const;

 private:
  struct Motion {
    double distance;
    std::optional<double> velocity;
    double start;
    Curve curve;
  };

  Curve::Remainder remainder(double now) const;

  double target_;
  std::unique_ptr<Motion> motion_;
};

}  // namespace orvane::ui
