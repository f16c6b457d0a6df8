// One attached display as the application lists it: its identifiers, name and frames.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane {

/// Equal only when every field is equal.
struct DisplaySnapshot {
  /// The UUID string where the system gives one, otherwise the legacy identifier.
  std::string id;
  /// Every identifier by which a stored choice may name this display.
  std::set<std::string> matchingIdentifiers;
  /// In the language of the interface; never empty for a real display.
  std::string name;
  /// Window-system coordinates: points, origin at the lower left of the first display, y upwards.
  CGRect frame{};
  /// Global display coordinates: points, origin at the top left of the first display, y downwards.
  CGRect cgFrame{};
  bool isMain = false;
  bool isBuiltIn = false;

  [[nodiscard]] bool isNamedBy(const std::string& identifier) const {
    return matchingIdentifiers.contains(identifier);
  }

  /// Takes a snapshot of `screen`, one of the system's `screens`.
  [[nodiscard]] static DisplaySnapshot of(const appkit::Screen& screen,
                                          std::span<const appkit::Screen> screens);
  /// One snapshot per screen, in the system's order.
  [[nodiscard]] static std::vector<DisplaySnapshot> ofAllScreens();

  friend bool operator==(const DisplaySnapshot& first, const DisplaySnapshot& second);
};

}  // namespace orvane

template <>
struct std::hash<orvane::DisplaySnapshot> {
  std::size_t operator()(const orvane::DisplaySnapshot& snapshot) const noexcept {
    return std::hash<std::string>{}(snapshot.id);
  }
};
