// Closed forms, which give the state at any time without integration.
#include "Orvane/ui/views/Curve.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvane::ui {

namespace {

// One coordinate of a cubic Bezier from 0 to 1 with the inner control values a and b.
double cubic(double a, double b, double s) {
  const double rest = 1 - s;
  return 3 * rest * rest * s * a + 3 * rest * s * s * b + s * s * s;
}

double cubicSlope(double a, double b, double s) {
  const double rest = 1 - s;
  return 3 * rest * rest * a + 6 * rest * s * (b - a) + 3 * s * s * (1 - b);
}

// The parameter at which the x coordinate has a value from 0 to 1, by bisection, since x grows with
// the parameter. 60 steps exhaust the precision of a double.
double parameterAt(double x1, double x2, double x) {
  double low = 0;
  double high = 1;
  for (int step = 0; step < 60; ++step) {
    const double middle = (low + high) / 2;
    (cubic(x1, x2, middle) < x ? low : high) = middle;
  }
  return (low + high) / 2;
}

// dy/dx. Both derivatives can only vanish at the beginning, with the first control point there. The
// second ones, six times the second control point, decide then.
double slope(Point control1, Point control2, double s) {
  constexpr double vanishing = 1e-6;
  const double slopeX = cubicSlope(control1.x, control2.x, s);
  if (slopeX > vanishing) {
    return cubicSlope(control1.y, control2.y, s) / slopeX;
  }
  return control2.y / control2.x;
}

Curve::Remainder bezierRemainder(const Curve& curve, double distance,
                                 std::optional<double> velocity, double elapsed) {
  const double fraction = elapsed / curve.seconds;
  if (fraction >= 1) {
    return {0, 0, true};
  }
  const double s = parameterAt(curve.control1.x, curve.control2.x, fraction);
  Curve::Remainder result;
  result.distance = distance * (1 - cubic(curve.control1.y, curve.control2.y, s));
  result.velocity = -distance * slope(curve.control1, curve.control2, s) / curve.seconds;
  if (velocity) {
    // t (1 - t/T)^2 begins with slope 1 and ends at zero with slope 0. It adds the difference
    // between the present velocity and the curve's initial one.
    const double own = -distance * slope(curve.control1, curve.control2, 0) / curve.seconds;
    const double difference = *velocity - own;
    result.distance += difference * elapsed * (1 - fraction) * (1 - fraction);
    result.velocity += difference * (1 - fraction) * (1 - 3 * fraction);
  }
  return result;
}

// x'' + 2 z w x' + w^2 x = 0 with w = 2 pi / response and z the damping fraction.
Curve::Remainder springRemainder(double response, double damping, double distance, double velocity,
                                 double elapsed) {
  const double frequency = 2 * std::numbers::pi / response;
  // Close to 1 the other form divides by almost zero.
  constexpr double almostCritical = 1 - 1e-4;
  Curve::Remainder result;
  if (damping > almostCritical) {
    const double drift = velocity + frequency * distance;
    const double fade = std::exp(-frequency * elapsed);
    result.distance = (distance + drift * elapsed) * fade;
    result.velocity = (drift - frequency * (distance + drift * elapsed)) * fade;
  } else {
    const double swing = frequency * std::sqrt(1 - damping * damping);
    const double decay = damping * frequency;
    const double fade = std::exp(-decay * elapsed);
    const double sine = (velocity + decay * distance) / swing;
    const double c = std::cos(swing * elapsed);
    const double s = std::sin(swing * elapsed);
    result.distance = fade * (distance * c + sine * s);
    result.velocity =
        fade * (swing * (sine * c - distance * s) - decay * (distance * c + sine * s));
  }
  // The energy of a damped spring only decreases, so the value stays within a thousandth of the
  // distance once its energy is that low.
  const double reach = std::hypot(result.distance, result.velocity / frequency);
  const double journey = std::abs(distance) + std::abs(velocity) / frequency;
  if (reach <= journey / 1000) {
    return {0, 0, true};
  }
  return result;
}

}  // namespace

Curve::Remainder Curve::remainder(double distance, std::optional<double> velocity,
                                  double elapsed) const {
  if (!(seconds > 0)) {
    return {0, 0, true};
  }
  const double time = std::max(elapsed, 0.0);
  return dampingFraction
             ? springRemainder(seconds, *dampingFraction, distance, velocity.value_or(0), time)
             : bezierRemainder(*this, distance, velocity, time);
}

}  // namespace orvane::ui
