// Coverage pictures that cost time to make (a line of text, a symbol, a blurred shadow), kept by
// everything their pixels depend on. They carry no colour, so an appearance may change under them.
#pragma once

#include <cstddef>
#include <cstring>
#include <map>
#include <string>
#include <type_traits>
#include <utility>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// An A8 surface and the place of its top left pixel relative to the pixel it was made for. A mask
/// without a surface covers nothing.
struct Mask {
  SurfacePointer surface;
  int x = 0;
  int y = 0;
};

/// Everything the pixels of a mask depend on, as bytes to compare.
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
  /// Keeps at most about `byteLimit` bytes of pixels. When a new mask would pass the limit, all
  /// others are dropped: what is on screen is made again at the next drawing.
  explicit MaskCache(std::size_t byteLimit) : byteLimit_(byteLimit) {}

  /// The mask of the key, made by `make()` if there is none. The reference holds until the next
  /// call.
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
