// The value is its target plus what the motion has left.
#include "Orvane/ui/AnimatedValue.hpp"

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
  const bool wasMoving = isMoving(now);
  const double distance = at(now) - target;
  const std::optional<double> velocity =
      wasMoving ? std::optional<double>(velocityAt(now)) : std::nullopt;
  target_ = target;
  motion_ = std::make_unique<Motion>(Motion{distance, velocity, now, *curve});
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
  return motion_->curve.remainder(motion_->distance, motion_->velocity, now - motion_->start);
}

double AnimatedValue::at(double now) const {
  return target_ + remainder(now).distance;
}

double AnimatedValue::velocityAt(double now) const {
  return remainder(now).velocity;
}

bool AnimatedValue::isMoving(double now) const {
  return !remainder(now).isSettled;
}

}  // namespace orvane::ui
