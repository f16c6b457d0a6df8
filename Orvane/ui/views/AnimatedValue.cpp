// The value is its target plus the remainder of the motion.
#include "Orvane/ui/views/AnimatedValue.hpp"

#include <cmath>

namespace orvane::ui {

void AnimatedValue::jump(double value) {
  target_ = value;
  motion_.reset();
}

void AnimatedValue::set(double target, const std::optional<Curve>& curve, double now) {
  if (target == target_) {
    return;
  }
  if (!curve) {
    jump(target);
    return;
  }
  const Curve::Remainder before = remainder(now);
  const double distance = target_ + before.distance - target;
  const auto velocity = before.isSettled ? std::nullopt : std::optional(before.velocity);
  motion_ = std::make_unique<Motion>(Motion{distance, velocity, now, *curve});
  target_ = target;
}

void AnimatedValue::settle(double now) {
  if (motion_ && !isMoving(now)) {
    motion_.reset();
  }
}

Curve::Remainder AnimatedValue::remainder(double now) const {
  if (!motion_) {
    return {0, 0, true};
  }
  // Removes the rounding error of the difference, so that an animation has exactly the same values
  // at any time of day and cached drawings can be reused.
  constexpr double stepsPerSecond = 0x1p24;
  const double elapsed = std::floor((now - motion_->start) * stepsPerSecond + 0.5) / stepsPerSecond;
  return motion_->curve.remainder(motion_->distance, motion_->velocity, elapsed);
}

}  // namespace orvane::ui
