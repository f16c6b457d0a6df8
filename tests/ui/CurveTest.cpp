// Curves against their closed forms and against a step-by-step integration.
#include <cmath>
#include <numbers>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {
namespace {

// Integrates x'' = -w^2 x - 2 z w x' with small steps (velocity Verlet is not needed at this size;
// a fourth-order Runge-Kutta is exact to far below the tolerance).
double integrated(double response, double damping, double x, double v, double until) {
  const double w = 2 * std::numbers::pi / response;
  const auto acceleration = [&](double at, double speed) {
    return -w * w * at - 2 * damping * w * speed;
  };
  constexpr int steps = 4000;
  const double h = until / steps;
  for (int step = 0; step < steps; ++step) {
    const double v1 = v, a1 = acceleration(x, v);
    const double v2 = v + a1 * h / 2, a2 = acceleration(x + v1 * h / 2, v2);
    const double v3 = v + a2 * h / 2, a3 = acceleration(x + v2 * h / 2, v3);
    const double v4 = v + a3 * h, a4 = acceleration(x + v3 * h, v4);
    x += h / 6 * (v1 + 2 * v2 + 2 * v3 + v4);
    v += h / 6 * (a1 + 2 * a2 + 2 * a3 + a4);
  }
  return x;
}

TEST(CurveTest, ASpringFollowsItsDifferentialEquationInBothRegimes) {
  // The formula changes at 0.9999.
  for (const double damping : {0.3, 0.86, 0.99985, 1.0}) {
    const Curve spring = Curve::spring(0.5, damping);
    for (const double time : {0.01, 0.05, 0.1, 0.2, 0.3}) {
      EXPECT_NEAR(spring.remainder(100, 40.0, time).distance,
                  integrated(0.5, damping, 100, 40, time), 1e-6)
          << "damping " << damping << " time " << time;
    }
  }
}

TEST(CurveTest, ASpringSettlesForGood) {
  for (const double damping : {0.2, 0.82, 1.0, 2.0}) {
    const Curve spring = Curve::spring(0.3, damping);
    bool wasSettled = false;
    for (int step = 0; step < 3000; ++step) {
      const bool isSettled = spring.remainder(10, 0.0, step / 100.0).isSettled;
      EXPECT_TRUE(isSettled || !wasSettled);
      wasSettled = isSettled;
    }
    EXPECT_TRUE(wasSettled);
    EXPECT_FALSE(spring.remainder(10, 0.0, 0.01).isSettled);
  }
}

TEST(CurveTest, TheEasingCurvesAreTheirBeziers) {
  for (const double s : {0.0, 0.1, 0.3, 0.5, 0.8, 0.95}) {
    // The inner control points are (0 or 0.42, 0) and (0.58, 1).
    const double early = 3 * (1 - s) * (1 - s) * s;
    const double late = 3 * (1 - s) * s * s;
    const double last = s * s * s;
    const double y = late + last;
    EXPECT_NEAR(Curve::easeOut(2).remainder(10, std::nullopt, 2 * (0.58 * late + last)).distance,
                10 * (1 - y), 1e-9);
    const double x = 0.42 * early + 0.58 * late + last;
    EXPECT_NEAR(Curve::easeInOut(2).remainder(10, std::nullopt, 2 * x).distance, 10 * (1 - y),
                1e-9);
  }
  EXPECT_NEAR(Curve::easeInOut(2).remainder(10, std::nullopt, 0).velocity, 0, 1e-6);
}

TEST(CurveTest, VelocityIsTheSlopeOfTheDistance) {
  constexpr double step = 1e-6;
  for (const Curve& curve : {Curve::linear(1), Curve::easeOut(1), Curve::easeInOut(1),
                             Curve::spring(0.5, 0.6), Curve::spring(0.5, 1)}) {
    for (const double time : {0.1, 0.33, 0.6}) {
      for (const std::optional<double> velocity : {std::optional<double>(), std::optional(25.0)}) {
        const double before = curve.remainder(10, velocity, time - step).distance;
        const double after = curve.remainder(10, velocity, time + step).distance;
        EXPECT_NEAR(curve.remainder(10, velocity, time).velocity, (after - before) / (2 * step),
                    1e-3);
      }
    }
  }
}

TEST(CurveTest, ABezierArrivesOnTimeWhateverItsVelocityWas) {
  EXPECT_FALSE(Curve::easeOut(0.2).remainder(3, 500.0, 0.199).isSettled);
  EXPECT_TRUE(Curve::easeOut(0.2).remainder(3, 500.0, 0.2).isSettled);
  EXPECT_NEAR(Curve::easeOut(0.2).remainder(3, 500.0, 0.19999).distance, 0, 1e-3);
}

TEST(CurveTest, ACurveWithoutDurationArrivesAtOnce) {
  for (const Curve& curve : {Curve::easeOut(0), Curve::spring(-1, 1)}) {
    const auto [distance, velocity, isSettled] = curve.remainder(5, std::nullopt, 0);
    EXPECT_EQ(distance, 0);
    EXPECT_EQ(velocity, 0);
    EXPECT_TRUE(isSettled);
  }
}

}  // namespace
}  // namespace orvane::ui
