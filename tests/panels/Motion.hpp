// The curves of the panels' animations in closed form, independent of the code under test.
#pragma once

#include <cmath>
#include <numbers>

namespace orvane::motion {

/// The progress when a fraction of the time has passed, both from 0 to 1.
struct Moment {
  double fraction;
  double progress;
};

/// The cubic Bezier with the inner control points (0, 0) and (0.58, 1), at a parameter from 0 to 1.
inline Moment easeOut(double parameter) {
  const double late = 3 * (1 - parameter) * parameter * parameter;
  const double last = parameter * parameter * parameter;
  return {0.58 * late + last, late + last};
}

/// The cubic Bezier with the inner control points (0.42, 0) and (0.58, 1), at a parameter from 0
/// to 1.
inline Moment easeInOut(double parameter) {
  const double early = 3 * (1 - parameter) * (1 - parameter) * parameter;
  const Moment end = easeOut(parameter);
  return {0.42 * early + end.fraction, end.progress};
}

/// The progress of a spring that began at rest. Its mass is 1, its stiffness (2 pi / response)^2,
/// its damping 4 pi fraction / response; the fraction is below 1.
inline double spring(double response, double fraction, double seconds) {
  const double stiffness = std::pow(2 * std::numbers::pi / response, 2);
  const double decay = 2 * std::numbers::pi * fraction / response;
  const double swing = std::sqrt(stiffness - decay * decay);
  return 1 - std::exp(-decay * seconds) *
                 (std::cos(swing * seconds) + decay / swing * std::sin(swing * seconds));
}

}  // namespace orvane::motion
