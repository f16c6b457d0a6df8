// DisplayConfiguration is the oracle for the guard's zones and filter: the displays, their
// identifiers and the Dock's edge. It shares no code with the application.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Orvane/geometry/TriggerZone.hpp"
#include "desk/machine/DockEdge.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::desk::explore {

/// What the guard is to do.
struct GuardGoal {
  /// Block the Dock on every display, not only on all but the target.
  bool prevents = false;
  std::string target;
};

/// In global coordinates, in points.
struct DisplayConfiguration {
  struct Screen {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    std::uint32_t number = 0;
    /// Every identifier that a stored choice may have for the display, the preferred one first.
    std::vector<std::string> names = {};
    /// The name that the system gives it, without blanks around it; empty if it gives none.
    std::string title = {};
    /// Whether the system says its number.
    bool hasNumber = true;
    bool isBuiltIn = false;
    bool isMain = false;

    [[nodiscard]] bool isNamed(const std::string& name) const;
    [[nodiscard]] bool hasFrameOf(const Screen& other) const;
    bool operator==(const Screen&) const = default;
  };

  std::vector<Screen> screens;
  /// None if the preferences have an unknown value.
  std::optional<DockEdge> edge;

  [[nodiscard]] static DisplayConfiguration of(const Machine& machine);

  [[nodiscard]] const Screen* named(const std::string& name) const;
  /// Whether the Dock is blocked on the display with this index.
  [[nodiscard]] bool isForbidden(std::size_t index, const GuardGoal& goal) const;
  /// Whether no display adjoins the Dock's edge of this display at a coordinate along the edge.
  [[nodiscard]] bool isExposed(std::size_t index, double along) const;
  /// The location that the filter must give a movement to `place`.
  [[nodiscard]] CGPoint filtered(CGPoint place, const GuardGoal& goal) const;
  /// How the zones differ from the forbidden edges; none if they do not, or if a frame is not in
  /// whole points.
  [[nodiscard]] std::optional<std::string> zoneProblem(std::span<const TriggerZone> zones,
                                                       const GuardGoal& goal) const;
  /// For each forbidden display the middle of an exposed part of its edge.
  [[nodiscard]] std::vector<CGPoint> forbiddenEdgePoints(const GuardGoal& goal) const;

  bool operator==(const DisplayConfiguration&) const = default;
};

}  // namespace orvane::desk::explore
