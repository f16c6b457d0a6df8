// Zones by brute force: whether a place is forbidden is asked of each place by itself.
#include "desk/explore/Situation.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <variant>

namespace orvane::desk::explore {

namespace {

/// In points.
constexpr double zoneDepth = 12;
constexpr double touchingDistance = 2;

struct Range {
  double low;
  double high;
  [[nodiscard]] bool holds(double value) const { return value >= low && value < high; }
};

Range alongOf(const Situation::Screen& screen, DockEdge edge) {
  return edge == DockEdge::bottom ? Range{screen.x, screen.x + screen.width}
                                  : Range{screen.y, screen.y + screen.height};
}

/// Across the Dock's edge: the strip in which the pointer is moved back.
Range depthOf(const Situation::Screen& screen, DockEdge edge) {
  switch (edge) {
    case DockEdge::left:
      return {screen.x, screen.x + zoneDepth};
    case DockEdge::right:
      return {screen.x + screen.width - zoneDepth, screen.x + screen.width};
    case DockEdge::bottom:
      break;
  }
  return {screen.y + screen.height - zoneDepth, screen.y + screen.height};
}

double lineOf(const Situation::Screen& screen, DockEdge edge) {
  const Range depth = depthOf(screen, edge);
  return edge == DockEdge::left ? depth.low : depth.high;
}

/// Of a neighbour behind the edge, the side that faces it.
double facingLineOf(const Situation::Screen& screen, DockEdge edge) {
  switch (edge) {
    case DockEdge::left:
      return screen.x + screen.width;
    case DockEdge::right:
      return screen.x;
    case DockEdge::bottom:
      break;
  }
  return screen.y;
}

CGVector backwards(DockEdge edge) {
  switch (edge) {
    case DockEdge::left:
      return {zoneDepth, 0};
    case DockEdge::right:
      return {-zoneDepth, 0};
    case DockEdge::bottom:
      break;
  }
  return {0, -zoneDepth};
}

std::string whole(double number) {
  return std::to_string(std::llround(number)) + ".0";
}

std::vector<std::string> namesOf(const Display& display) {
  const std::string number = std::to_string(display.number);
  const std::string legacy =
      (display.hasNumberInDescription ? "Optional(" + number + ")" : "nil") + "-" +
      whole(display.frame.size.width) + "-" + whole(display.frame.size.height) + "-" +
      (display.bitsPerSample ? "Optional(" + std::to_string(*display.bitsPerSample) + ")" : "nil") +
      "-" + (display.colorSpace ? "Optional(\"" + *display.colorSpace + "\")" : "nil");
  std::vector<std::string> names;
  if (display.hasNumberInDescription && display.uuid) {
    names.push_back(*display.uuid);
  }
  names.push_back(legacy);
  if (display.hasNumberInDescription) {
    names.push_back(number);
  }
  return names;
}

std::optional<DockEdge> edgeOf(const Machine& machine) {
  const auto value = machine.preferences.stored("com.apple.dock", "orientation");
  const auto* const text = value ? std::get_if<std::string>(&*value) : nullptr;
  if (text == nullptr || *text == "bottom") {
    return DockEdge::bottom;
  }
  if (*text == "left") {
    return DockEdge::left;
  }
  return *text == "right" ? std::optional(DockEdge::right) : std::nullopt;
}

bool isWhole(double number) {
  return number == std::floor(number);
}

std::string textOf(const Situation::Screen& screen) {
  return "display " + std::to_string(screen.number);
}

}  // namespace

bool Situation::Screen::isNamed(const std::string& name) const {
  return std::ranges::find(names, name) != names.end();
}

bool Situation::Screen::hasFrameOf(const Screen& other) const {
  return x == other.x && y == other.y && width == other.width && height == other.height;
}

Situation Situation::of(const Machine& machine) {
  Situation situation{{}, edgeOf(machine)};
  const auto& displays = machine.displays.all();
  const double turn = displays.empty() ? 0 : displays.front().frame.size.height;
  for (const Display& display : displays) {
    const CGRect& frame = display.frame;
    situation.screens.push_back({frame.origin.x, turn - frame.origin.y - frame.size.height,
                                 frame.size.width, frame.size.height, display.number,
                                 namesOf(display)});
  }
  return situation;
}

const Situation::Screen* Situation::named(const std::string& name) const {
  const auto found =
      std::ranges::find_if(screens, [&](const Screen& screen) { return screen.isNamed(name); });
  return found == screens.end() ? nullptr : &*found;
}

bool Situation::isForbidden(std::size_t index, const Wish& wish) const {
  if (wish.prevents) {
    return true;
  }
  const Screen* const target = named(wish.target);
  return target != nullptr && screens.size() > 1 && target != &screens[index];
}

bool Situation::isExposed(std::size_t index, double along) const {
  if (!edge || !alongOf(screens[index], *edge).holds(along)) {
    return false;
  }
  return std::ranges::none_of(screens, [&](const Screen& other) {
    return !other.hasFrameOf(screens[index]) && alongOf(other, *edge).holds(along) &&
           std::abs(facingLineOf(other, *edge) - lineOf(screens[index], *edge)) <= touchingDistance;
  });
}

CGPoint Situation::guarded(CGPoint place, const Wish& wish) const {
  if (!edge) {
    return place;
  }
  const double along = *edge == DockEdge::bottom ? place.x : place.y;
  const double across = *edge == DockEdge::bottom ? place.y : place.x;
  for (std::size_t index = 0; index < screens.size(); ++index) {
    if (isForbidden(index, wish) && depthOf(screens[index], *edge).holds(across) &&
        isExposed(index, along)) {
      const CGVector way = backwards(*edge);
      return {place.x + way.dx, place.y + way.dy};
    }
  }
  return place;
}

std::optional<std::string> Situation::complaint(std::span<const TriggerZone> zones,
                                                const Wish& wish) const {
  const bool areWhole = std::ranges::all_of(screens, [](const Screen& screen) {
    return isWhole(screen.x) && isWhole(screen.y) && isWhole(screen.width) &&
           isWhole(screen.height);
  });
  if (!areWhole) {
    return std::nullopt;
  }
  double forbiddenLength = 0;
  double zoneLength = 0;
  for (const TriggerZone& zone : zones) {
    zoneLength += edge == DockEdge::bottom ? zone.rect.size.width : zone.rect.size.height;
  }
  for (std::size_t index = 0; edge && index < screens.size(); ++index) {
    if (!isForbidden(index, wish)) {
      continue;
    }
    const Range range = alongOf(screens[index], *edge);
    const Range depth = depthOf(screens[index], *edge);
    for (double along = range.low + 0.5; along < range.high; ++along) {
      if (!isExposed(index, along)) {
        continue;
      }
      ++forbiddenLength;
      const bool isGuarded = std::ranges::any_of(zones, [&](const TriggerZone& zone) {
        const CGRect& rect = zone.rect;
        const bool isAcross = *edge == DockEdge::bottom;
        const double low = isAcross ? rect.origin.x : rect.origin.y;
        const double high = low + (isAcross ? rect.size.width : rect.size.height);
        const double top = isAcross ? rect.origin.y : rect.origin.x;
        const double thickness = isAcross ? rect.size.height : rect.size.width;
        const CGVector way = backwards(*edge);
        return Range{low, high}.holds(along) && top == depth.low &&
               thickness == depth.high - depth.low && zone.nudgeVector.dx == way.dx &&
               zone.nudgeVector.dy == way.dy;
      });
      if (!isGuarded) {
        return "the edge of " + textOf(screens[index]) + " is not guarded at " +
               std::to_string(along);
      }
    }
  }
  if (zoneLength != forbiddenLength) {
    return "the zones are " + std::to_string(zoneLength) + " points long, not " +
           std::to_string(forbiddenLength);
  }
  return std::nullopt;
}

std::vector<CGPoint> Situation::forbiddenPlaces(const Wish& wish) const {
  std::vector<CGPoint> places;
  for (std::size_t index = 0; edge && index < screens.size(); ++index) {
    if (!isForbidden(index, wish)) {
      continue;
    }
    const Range range = alongOf(screens[index], *edge);
    const Range depth = depthOf(screens[index], *edge);
    const double across = *edge == DockEdge::left ? depth.low : depth.high - 1;
    double begin = range.low;
    while (begin < range.high && !isExposed(index, begin)) {
      ++begin;
    }
    double end = begin;
    while (end < range.high && isExposed(index, end)) {
      ++end;
    }
    if (end > begin) {
      const double along = std::floor((begin + end) / 2);
      places.push_back(*edge == DockEdge::bottom ? CGPoint{along, across} : CGPoint{across, along});
    }
  }
  return places;
}

}  // namespace orvane::desk::explore
