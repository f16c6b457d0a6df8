// The reference's own state of the world around the application, kept beside the simulated machine.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Orvane/geometry/DockPosition.hpp"
#include "Orvane/platform/Quartz.hpp"

namespace orvane::reference {

using Value = std::variant<std::string, bool, double>;

struct Screen {
  std::uint32_t number;
  std::string uuid;
  /// Window-system coordinates: y upwards from the bottom of the first screen.
  CGRect windowFrame;
  /// Global coordinates: y downwards from the top of the first screen.
  CGRect frame{};

  [[nodiscard]] std::string id() const;
  [[nodiscard]] bool isNamed(const std::string& identifier) const;
};

struct World {
  std::vector<Screen> screens;
  bool isTrusted = false;
  bool refusesTaps = false;
  /// None while the Dock has stored nothing.
  std::optional<Value> orientation;
  std::map<std::string, Value> disk;
  /// How often each key was written or removed.
  std::map<std::string, std::int64_t> writes;
  /// Seconds since the machine was switched on; a multiple of an eighth.
  double now = 0;

  /// Recomputes each screen's global frame after a display change.
  void arrange();

  /// The edge that the stored orientation names.
  [[nodiscard]] DockPosition dockPosition() const;
  /// The edge at which the Dock actually is.
  [[nodiscard]] DockPosition dockLiesAt() const;
  [[nodiscard]] const Screen* find(const std::string& identifier) const;
  /// The calendar clock.
  [[nodiscard]] double date() const { return 9131.0 * 86'400 + now; }
  /// The media clock.
  [[nodiscard]] double mediaTime() const { return 1000 + now; }

  void write(const std::string& key, Value value);
  void remove(const std::string& key);
  [[nodiscard]] std::optional<std::string> readText(const std::string& key) const;
  [[nodiscard]] bool readBoolean(const std::string& key) const;
};

}  // namespace orvane::reference
