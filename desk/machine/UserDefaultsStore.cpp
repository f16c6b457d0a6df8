// The stored user defaults, with a count of writes per key.
#include "desk/machine/UserDefaultsStore.hpp"

#include <utility>

namespace orvane::desk {

void UserDefaultsStore::set(std::string_view key, PropertyValue value) {
  values_.insert_or_assign(std::string(key), std::move(value));
  ++writeCounts_[std::string(key)];
}

void UserDefaultsStore::remove(std::string_view key) {
  values_.erase(std::string(key));
  ++writeCounts_[std::string(key)];
}

std::optional<PropertyValue> UserDefaultsStore::value(std::string_view key) const {
  const auto value = values_.find(key);
  return value == values_.end() ? std::nullopt : std::optional(value->second);
}

std::int64_t UserDefaultsStore::writeCount(std::string_view key) const {
  const auto count = writeCounts_.find(key);
  return count == writeCounts_.end() ? 0 : count->second;
}

std::int64_t UserDefaultsStore::writeCount() const {
  std::int64_t sum = 0;
  for (const auto& [key, count] : writeCounts_) {
    sum += count;
  }
  return sum;
}

}  // namespace orvane::desk
