// A cache of coverage masks (a line of text, a symbol, a blurred shadow) by everything that their
// pixels depend on. Masks have no colour, so a change of the appearance does not invalidate them.
#pragma once

#include <cstddef>
#include <cstring>
#include <map>
#include <string>
#include <type_traits>
#include <utility>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// An A8 surface and the position of its top left pixel relative to the anchor. A mask without a
/// surface covers nothing.
struct Mask {
  SurfacePointer surface;
  int x = 0;
  int y = 0;
};

/// Everything that the pixels of a mask depend on, as comparable bytes.
class MaskKey {
 public:
  MaskKey& add(const std::string& text) {
    add(text.size());
    bytes_ += text;
    return *this;
  }
  template <typename Value>
  requires(std::is_arithmetic_v<Value> || std::is_enum_v<Value>) MaskKey& add(Value value) {
    char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    bytes_.append(bytes, sizeof value);
    return *this;
  }
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

class MaskCache {
 public:
  /// Keeps at most about `byteLimit` bytes of pixels. A mask that would exceed the limit evicts all
  /// others.
  explicit MaskCache(std::size_t byteLimit) : byteLimit_(byteLimit) {}

  /// The mask of the key, created by `make()` if there is none. The reference is valid until the
  /// next call.
  template <typename Make>
  const Mask& get(const MaskKey& key, Make&& make) {
    const auto found = masks_.find(key.bytes());
    if (found != masks_.end()) {
      return found->second;
    }
    return keep(key, std::forward<Make>(make)());
  }

  std::size_t count() const { return masks_.size(); }

 private:
  const Mask& keep(const MaskKey& key, Mask mask);

  std::size_t byteLimit_;
  std::size_t bytes_ = 0;
  std::map<std::string, Mask> masks_;
};

}  // namespace orvane::desk
