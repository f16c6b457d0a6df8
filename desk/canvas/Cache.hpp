// Cache keeps what is expensive to make, by everything that it depends on.
#pragma once

#include <cstddef>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

inline void appendToKey(std::string& key, std::string_view text) {
  const std::size_t size = text.size();
  key.append(reinterpret_cast<const char*>(&size), sizeof size).append(text);
}
template <typename Value>
requires(std::is_arithmetic_v<Value> || std::is_enum_v<Value>) void appendToKey(std::string& key,
                                                                                Value value) {
  char bytes[sizeof value];
  std::memcpy(bytes, &value, sizeof value);
  key.append(bytes, sizeof value);
}

/// Texts, numbers and enumerators as comparable bytes.
template <typename... Parts>
[[nodiscard]] std::string cacheKey(const Parts&... parts) {
  std::string key;
  (appendToKey(key, parts), ...);
  return key;
}

/// What a value adds to the size of a cache: the bytes of a picture, otherwise 1.
template <typename Value>
[[nodiscard]] std::size_t cacheWeight(const Value& /*value*/) {
  return 1;
}
[[nodiscard]] inline std::size_t cacheWeight(const SurfacePointer& picture) {
  return picture == nullptr
             ? 0
             : static_cast<std::size_t>(cairo_image_surface_get_stride(picture.get())) *
                   static_cast<std::size_t>(cairo_image_surface_get_height(picture.get()));
}

template <typename Value>
class Cache {
 public:
  /// A value that would exceed the limit evicts all others.
  explicit Cache(std::size_t limit) : limit_(limit) {}

  /// The value of the key, created by `make()` if there is none. The reference is valid until the
  /// next call.
  template <typename Make>
  const Value& get(const std::string& key, Make&& make) {
    const auto found = values_.find(key);
    if (found != values_.end()) {
      return found->second;
    }
    Value made = std::forward<Make>(make)();
    const std::size_t weight = cacheWeight(made);
    if (weight_ + weight > limit_) {
      values_.clear();
      weight_ = 0;
    }
    weight_ += weight;
    return values_.insert_or_assign(key, std::move(made)).first->second;
  }

  [[nodiscard]] std::size_t count() const { return values_.size(); }

 private:
  std::size_t limit_;
  std::size_t weight_ = 0;
  std::map<std::string, Value> values_;
};

}  // namespace orvane::desk
