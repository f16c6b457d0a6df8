// Brute force: each point of an edge is classified separately.
#include "desk/explore/DisplayConfiguration.hpp"

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
  [[nodiscard]] bool contains(double value) const { return value >= low && value < high; }
};

Range lengthOf(const DisplayConfiguration::Screen& screen, DockEdge edge) {
  return edge == DockEdge::bottom ? Range{screen.x, screen.x + screen.width}
                                  : Range{screen.y, screen.y + screen.height};
}

/// The extent of the strip across the Dock's edge in which the pointer is moved back.
Range depthOf(const DisplayConfiguration::Screen& screen, DockEdge edge) {
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

double edgeLineOf(const DisplayConfiguration::Screen& screen, DockEdge edge) {
  const Range depth = depthOf(screen, edge);
  return edge == DockEdge::left ? depth.low : depth.high;
}

/// The side of a display behind the edge that faces the edge.
double facingLineOf(const DisplayConfiguration::Screen& screen, DockEdge edge) {
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

CGVector nudgeAway(DockEdge edge) {
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

std::string wholeText(double number) {
  return std::to_string(std::llround(number)) + ".0";
}

std::vector<std::string> namesOf(const Display& display) {
  const std::string number = std::to_string(display.number);
  const std::string legacy =
      (display.hasNumberInDescription ? "Optional(" + number + ")" : "nil") + "-" +
      wholeText(display.frame.size.width) + "-" + wholeText(display.frame.size.height) + "-" +
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

std::string withoutBlanks(const std::string& text) {
  constexpr const char* blanks = " \t\n";
  const std::size_t begin = text.find_first_not_of(blanks);
  return begin == std::string::npos ? ""
                                    : text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
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

std::string textOf(const DisplayConfiguration::Screen& screen) {
  return "display " + std::to_string(screen.number);
}

}  // namespace

bool DisplayConfiguration::Screen::isNamed(const std::string& name) const {
  return std::ranges::find(names, name) != names.end();
}

bool DisplayConfiguration::Screen::hasFrameOf(const Screen& other) const {
  return x == other.x && y == other.y && width == other.width && height == other.height;
}

DisplayConfiguration DisplayConfiguration::of(const Machine& machine) {
  DisplayConfiguration configuration{{}, edgeOf(machine)};
  const auto& displays = machine.displays.all();
  const double mainHeight = displays.empty() ? 0 : displays.front().frame.size.height;
  for (const Display& display : displays) {
    const CGRect& frame = display.frame;
    configuration.screens.push_back(
        {frame.origin.x, mainHeight - frame.origin.y - frame.size.height, frame.size.width,
         frame.size.height, display.number, namesOf(display), withoutBlanks(display.name),
         display.hasNumberInDescription, display.isBuiltIn && display.hasNumberInDescription,
         display.hasNumberInDescription && &display == machine.displays.main()});
  }
  return configuration;
}

const DisplayConfiguration::Screen* DisplayConfiguration::named(const std::string& name) const {
  const auto found =
      std::ranges::find_if(screens, [&](const Screen& screen) { return screen.isNamed(name); });
  return found == screens.end() ? nullptr : &*found;
}

bool DisplayConfiguration::isForbidden(std::size_t index, const GuardGoal& goal) const {
  if (goal.prevents) {
    return true;
  }
  const Screen* const target = named(goal.target);
  return target != nullptr && screens.size() > 1 && target != &screens[index];
}

bool DisplayConfiguration::isExposed(std::size_t index, double along) const {
  if (!edge || !lengthOf(screens[index], *edge).contains(along)) {
    return false;
  }
  return std::ranges::none_of(screens, [&](const Screen& other) {
    return !other.hasFrameOf(screens[index]) && lengthOf(other, *edge).contains(along) &&
           std::abs(facingLineOf(other, *edge) - edgeLineOf(screens[index], *edge)) <=
               touchingDistance;
  });
}

CGPoint DisplayConfiguration::filtered(CGPoint place, const GuardGoal& goal) const {
  if (!edge) {
    return place;
  }
  const double along = *edge == DockEdge::bottom ? place.x : place.y;
  const double across = *edge == DockEdge::bottom ? place.y : place.x;
  for (std::size_t index = 0; index < screens.size(); ++index) {
    if (isForbidden(index, goal) && depthOf(screens[index], *edge).contains(across) &&
        isExposed(index, along)) {
      const CGVector nudge = nudgeAway(*edge);
      return {place.x + nudge.dx, place.y + nudge.dy};
    }
  }
  return place;
}

std::optional<std::string> DisplayConfiguration::zoneProblem(std::span<const TriggerZone> zones,
                                                             const GuardGoal& goal) const {
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
    if (!isForbidden(index, goal)) {
      continue;
    }
    const Range range = lengthOf(screens[index], *edge);
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
        const CGVector nudge = nudgeAway(*edge);
        return Range{low, high}.contains(along) && top == depth.low &&
               thickness == depth.high - depth.low && zone.nudgeVector.dx == nudge.dx &&
               zone.nudgeVector.dy == nudge.dy;
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

std::vector<CGPoint> DisplayConfiguration::forbiddenEdgePoints(const GuardGoal& goal) const {
  std::vector<CGPoint> points;
  for (std::size_t index = 0; edge && index < screens.size(); ++index) {
    if (!isForbidden(index, goal)) {
      continue;
    }
    const Range range = lengthOf(screens[index], *edge);
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
      points.push_back(*edge == DockEdge::bottom ? CGPoint{along, across} : CGPoint{across, along});
    }
  }
  return points;
}

}  // namespace orvane::desk::explore
