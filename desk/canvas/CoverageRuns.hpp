// What a shape covers, as runs of equally covered pixels: made once by cairo and then painted in
// any colour. A large shape is nearly all alike from row to row and within a row, so that little
// has to be remembered and no mask of its size is read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <cairo.h>

#include "desk/canvas/MaskCache.hpp"

namespace orvane::desk {

/// Pixels from `left`, `top` up to but not including `right`, `bottom`.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  [[nodiscard]] bool isEmpty() const { return left >= right || top >= bottom; }
  [[nodiscard]] PixelRect cutTo(const PixelRect& other) const;
  /// The smallest rectangle that holds both.
  [[nodiscard]] PixelRect joinedWith(const PixelRect& other) const;
  [[nodiscard]] PixelRect movedBy(int x, int y) const {
    return {left + x, top + y, right + x, bottom + y};
  }
};

/// Premultiplied colours as they lie in an ARGB32 surface: one for all rows, or one for each row
/// from `top` on.
struct RowColors {
  std::vector<std::uint32_t> pixels;
  int top = 0;
  bool isOne = true;

  [[nodiscard]] std::uint32_t at(int y) const {
    return isOne ? pixels.front() : pixels[static_cast<std::size_t>(y - top)];
  }
};

class CoverageRuns {
 public:
  /// The rows of an A8 mask below those that are there already.
  void add(const Mask& mask);
  /// The last row so many times more.
  void repeatLast(int times);
  void moveBy(int x, int y);

  /// Paints over the pixels of an ARGB32 image surface, within a rectangle of it and with the pixel
  /// that the mask was made for at `x`, `y`. The result is what cairo paints, bit by bit.
  void paint(cairo_surface_t* target, int x, int y, const PixelRect& clip,
             const RowColors& colors) const;

 private:
  struct Run {
    int left;
    int right;
    std::uint8_t coverage;

    friend bool operator==(const Run&, const Run&) = default;
  };
  /// Rows from `top` up to `bottom` that are all alike.
  struct Band {
    int top;
    int bottom;
    std::vector<Run> runs;
  };

  std::vector<Band> bands_;
};

/// Runs by everything that they depend on.
class CoverageCache {
 public:
  /// The runs of the key, made by `make()` if there are none. The reference holds until the next
  /// call.
  template <typename Make>
  const CoverageRuns& get(const MaskKey& key, Make&& make) {
    const auto found = runs_.find(key.bytes());
    if (found != runs_.end()) {
      return found->second;
    }
    if (runs_.size() >= most) {
      runs_.clear();
    }
    return runs_.emplace(key.bytes(), std::forward<Make>(make)()).first->second;
  }

 private:
  /// A panel has about fifty shapes, and each takes a few kilobytes.
  static constexpr std::size_t most = 512;

  std::map<std::string, CoverageRuns> runs_;
};

}  // namespace orvane::desk
