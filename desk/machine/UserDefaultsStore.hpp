// The application's user defaults on the machine's disk; they survive the process.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "desk/machine/PropertyValue.hpp"

namespace orvane::desk {

class UserDefaultsStore {
 public:
  using Values = std::map<std::string, PropertyValue, std::less<>>;

  void set(std::string_view key, PropertyValue value);
  /// Removing an absent key counts as a write, too.
  void remove(std::string_view key);
  [[nodiscard]] std::optional<PropertyValue> value(std::string_view key) const;
  /// By key, in the order of the keys.
  [[nodiscard]] const Values& values() const { return values_; }

  /// How often the key was set or removed.
  [[nodiscard]] std::int64_t writeCount(std::string_view key) const;
  [[nodiscard]] std::int64_t writeCount() const;

 private:
  Values values_;
  std::map<std::string, std::int64_t, std::less<>> writeCounts_;
};

}  // namespace orvane::desk
