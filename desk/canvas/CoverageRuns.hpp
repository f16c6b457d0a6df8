// What a shape covers, as runs of equally covered pixels: made once by cairo and then painted in
// any colour. A large shape is nearly all alike from row to row and within a row, so that little
// has to be remembered and no mask of its size is read.
#pragma once

#include <algorithm>
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

/// One colour for all rows, or one for each row from `top` on.
template <typename Color>
struct Rows {
  std::vector<Color> colors;
  int top = 0;
  bool isOne = true;

  [[nodiscard]] const Color& at(int y) const {
    return isOne ? colors.front() : colors[static_cast<std::size_t>(y - top)];
  }
};

/// Premultiplied colours as they lie in an ARGB32 surface.
using RowColors = Rows<std::uint32_t>;

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

  /// Calls `paintRun(row, left, right, coverage)` for all that is covered within the rectangle,
  /// with the pixel that the mask was made for at `x`, `y`.
  template <typename PaintRun>
  void visit(int x, int y, const PixelRect& area, const PaintRun& paintRun) const {
    for (const Band& band : bands_) {
      const int bottom = std::min(band.bottom + y, area.bottom);
      for (int row = std::max(band.top + y, area.top); row < bottom; ++row) {
        for (const Run& run : band.runs) {
          const int left = std::max(run.left + x, area.left);
          const int right = std::min(run.right + x, area.right);
          if (left < right) {
            paintRun(row, left, right, run.coverage);
          }
        }
      }
    }
  }

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
    if (runs_.size() >= capacity) {
      runs_.clear();
    }
    return runs_.emplace(key.bytes(), std::forward<Make>(make)()).first->second;
  }

 private:
  /// A panel has about fifty shapes, and each takes a few kilobytes.
  static constexpr std::size_t capacity = 512;

  std::map<std::string, CoverageRuns> runs_;
};

}  // namespace orvane::desk
