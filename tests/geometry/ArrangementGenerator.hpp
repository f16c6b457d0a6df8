// Random arrangements of displays for properties: side by side, overlapping, with small gaps,
// mirrored, at negative and fractional coordinates.
#pragma once

#include <cstddef>
#include <iomanip>
#include <ostream>
#include <vector>

#include <rapidcheck.h>

#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane {

/// All coordinates of an arrangement are multiples of this, in points: sums of them are exact.
inline constexpr double arrangementCell = 1.0 / 16;

/// Frames in global coordinates.
struct Arrangement {
  std::vector<CGRect> frames;
};

inline std::ostream& operator<<(std::ostream& out, const Arrangement& arrangement) {
  out << std::setprecision(10);
  for (const CGRect& frame : arrangement.frames) {
    out << "[x " << frame.origin.x << " y " << frame.origin.y << " w " << frame.size.width << " h "
        << frame.size.height << "] ";
  }
  return out;
}

/// The position of a display: beside an earlier one, mirroring it, or anywhere. Lengths are in
/// cells.
struct Placement {
  enum class Kind { below, above, rightOf, leftOf, mirror, anywhere };
  Kind kind;
  int anchor;
  int gap;
  int slide;
  int width;
  int height;
};

inline CGRect placed(const Placement& placement, const std::vector<CGRect>& earlier) {
  const auto points = [](int cells) { return cells * arrangementCell; };
  const CGSize size{points(placement.width), points(placement.height)};
  const double slide = points(placement.slide);
  if (earlier.empty()) {
    return {{slide, points(placement.gap)}, size};
  }
  const CGRect& anchor = earlier[static_cast<std::size_t>(placement.anchor) % earlier.size()];
  const double gap = points(placement.gap);
  switch (placement.kind) {
    case Placement::Kind::below:
      return {{anchor.origin.x + slide, anchor.origin.y + anchor.size.height + gap}, size};
    case Placement::Kind::above:
      return {{anchor.origin.x + slide, anchor.origin.y - size.height - gap}, size};
    case Placement::Kind::rightOf:
      return {{anchor.origin.x + anchor.size.width + gap, anchor.origin.y + slide}, size};
    case Placement::Kind::leftOf:
      return {{anchor.origin.x - size.width - gap, anchor.origin.y + slide}, size};
    case Placement::Kind::mirror:
      return anchor;
    case Placement::Kind::anywhere:
      break;
  }
  return {{anchor.origin.x + slide, anchor.origin.y + points(placement.gap * 16)}, size};
}

/// Up to six displays of 1 to 60 points; small, so that every cell of every edge can be examined.
inline rc::Gen<Arrangement> genArrangement() {
  namespace gen = rc::gen;
  using Kind = Placement::Kind;
  // The critical gaps: around half a point and around two points, positive and negative.
  const auto gap =
      gen::oneOf(gen::just(0), gen::element(6, 7, 8, 9, 10, 30, 31, 32, 33, 34, 40, 42),
                 gen::element(-7, -8, -9, -31, -32, -33, -40), gen::inRange(-48, 49));
  const auto slide =
      gen::oneOf(gen::just(0), gen::element(-10, -9, -8, -7, 7, 8, 9, 10), gen::inRange(-960, 961));
  const auto size = gen::oneOf(gen::element(160, 320), gen::inRange(16, 961));
  const auto placement = gen::construct<Placement>(
      gen::element(Kind::below, Kind::below, Kind::rightOf, Kind::rightOf, Kind::leftOf,
                   Kind::above, Kind::mirror, Kind::anywhere),
      gen::inRange(0, 6), gap, slide, size, size);
  return gen::map(gen::mapcat(gen::inRange<std::size_t>(1, 7),
                              [placement](std::size_t count) {
                                return gen::container<std::vector<Placement>>(count, placement);
                              }),
                  [](const std::vector<Placement>& placements) {
                    Arrangement arrangement;
                    for (const Placement& one : placements) {
                      arrangement.frames.push_back(placed(one, arrangement.frames));
                    }
                    return arrangement;
                  });
}

inline rc::Gen<DockPosition> genGuardedEdge() {
  return rc::gen::element(DockPosition::bottom, DockPosition::left, DockPosition::right);
}

}  // namespace orvane
