// Stored holds the stored settings, parsed without the application's code.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "desk/explore/DisplayConfiguration.hpp"
#include "desk/machine/UserDefaultsStore.hpp"

namespace orvane::desk::explore {

struct Stored {
  std::optional<std::string> selected;
  bool wants = false;
  bool prevents = false;
  std::string modifier;
  std::string language;

  [[nodiscard]] static Stored of(const UserDefaultsStore& defaults);
  [[nodiscard]] GuardGoal goal() const { return {prevents, selected.value_or("")}; }
  /// The flags of the unlock key.
  [[nodiscard]] std::uint64_t unlockMask() const;
  bool operator==(const Stored&) const = default;
};

}  // namespace orvane::desk::explore
