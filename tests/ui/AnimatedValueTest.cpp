// Retargeting keeps what is on screen continuous.
#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/ui/views/AnimatedValue.hpp"

namespace orvane::ui {
namespace {

Curve anyCurve() {
  const double seconds = *rc::gen::inRange(5, 100) / 100.0;
  switch (*rc::gen::inRange(0, 4)) {
    case 0:
      return Curve::easeInOut(seconds);
    case 1:
      return Curve::easeOut(seconds);
    case 2:
      return Curve::linear(seconds);
    default:
      return Curve::spring(seconds, *rc::gen::inRange(20, 200) / 100.0);
  }
}

TEST(AnimatedValueTest, TheSameTargetLetsAMotionGoOn) {
  AnimatedValue value(0);
  value.set(10, Curve::linear(2), 0);
  value.set(10, std::nullopt, 1);
  EXPECT_NEAR(value.at(1), 5, 1e-9);
}

RC_GTEST_PROP(AnimatedValueTest, RetargetingKeepsPositionAndVelocity, ()) {
  AnimatedValue value(*rc::gen::inRange(-50, 50));
  const double first = *rc::gen::inRange(-50, 50);
  const double second = *rc::gen::inRange(-50, 50);
  value.set(first, anyCurve(), 0);
  const double moment = *rc::gen::inRange(1, 100) / 100.0;
  RC_PRE(value.isMoving(moment) && second != first);

  const double position = value.at(moment);
  const double velocity = value.remainder(moment).velocity;
  value.set(second, anyCurve(), moment);

  RC_ASSERT(std::abs(value.at(moment) - position) < 1e-9);
  RC_ASSERT(std::abs(value.remainder(moment).velocity - velocity) <
            1e-4 * (1 + std::abs(velocity)));
  RC_ASSERT(value.at(moment + 1000) == second);
}

}  // namespace
}  // namespace orvane::ui
