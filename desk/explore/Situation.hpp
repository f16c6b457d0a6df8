// Situation is what decides where the pointer must not press: the displays, their names, and the
// Dock's edge. What follows from it is found by looking at single places, and not by the zones of
// the application.
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

/// What the user wants of the guard.
struct Wish {
  /// On every display, or on all but the target.
  bool prevents = false;
  std::string target;
};

/// Coordinates are global, in points.
struct Situation {
  struct Screen {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    std::uint32_t number = 0;
    /// Everything by which a stored choice names the display, the one that is stored first.
    std::vector<std::string> names;

    [[nodiscard]] bool isNamed(const std::string& name) const;
    [[nodiscard]] bool hasFrameOf(const Screen& other) const;
    bool operator==(const Screen&) const = default;
  };

  std::vector<Screen> screens;
  /// None when the preferences name one that the Dock cannot take.
  std::optional<DockEdge> edge;

  [[nodiscard]] static Situation of(const Machine& machine);

  [[nodiscard]] const Screen* named(const std::string& name) const;
  /// By the places of the displays in the list.
  [[nodiscard]] bool isForbidden(std::size_t index, const Wish& wish) const;
  /// Whether no neighbour lies behind the Dock's edge of that display, at so much along it.
  [[nodiscard]] bool isExposed(std::size_t index, double along) const;
  /// Where a guarded movement that ends at `place` comes out.
  [[nodiscard]] CGPoint guarded(CGPoint place, const Wish& wish) const;
  /// How the zones of the guard differ from what is forbidden; none when they do not, or when a
  /// frame is not in whole points.
  [[nodiscard]] std::optional<std::string> complaint(std::span<const TriggerZone> zones,
                                                     const Wish& wish) const;
  /// Of each forbidden display a place at the middle of an exposed stretch of its edge.
  [[nodiscard]] std::vector<CGPoint> forbiddenPlaces(const Wish& wish) const;

  bool operator==(const Situation&) const = default;
};

}  // namespace orvane::desk::explore
