// The coverage of a shape, as runs of equally covered pixels: computed once by cairo and then
// painted in any colour. Most rows of a large shape are equal and have few runs, so this is smaller
// and faster than a mask.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <cairo.h>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/Mask.hpp"

namespace orvane::desk {

/// Pixels from `left`, `top` to `right`, `bottom` (exclusive).
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  /// The pixels that a rectangle touches.
  [[nodiscard]] static PixelRect around(const ui::Rect& pixels);
  [[nodiscard]] bool isEmpty() const { return left >= right || top >= bottom; }
  [[nodiscard]] PixelRect cutTo(const PixelRect& other) const;
  [[nodiscard]] PixelRect movedBy(int x, int y) const {
    return {left + x, top + y, right + x, bottom + y};
  }
};

/// One colour for all rows, or one per row from `top`.
template <typename Color>
struct Rows {
  std::vector<Color> colors;
  int top = 0;
  bool isOne = true;

  [[nodiscard]] const Color& at(int y) const {
    return isOne ? colors.front() : colors[static_cast<std::size_t>(y - top)];
  }
};

/// Premultiplied colours in the format of an ARGB32 surface.
using RowColors = Rows<std::uint32_t>;

class CoverageRuns {
 public:
  /// Appends the rows of an A8 mask.
  void add(const Mask& mask);
  /// Repeats the last row.
  void repeatLast(int times);
  void moveBy(int x, int y);

  /// Paints over an ARGB32 image surface, within a rectangle, with the mask's origin at `x`, `y`.
  /// The result equals that of cairo bit by bit.
  void paint(cairo_surface_t* target, int x, int y, const PixelRect& clip,
             const RowColors& colors) const;

  /// Calls `paintRun(row, left, right, coverage)` for each run within the rectangle, with the
  /// mask's origin at `x`, `y`.
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
  /// Equal rows from `top` to `bottom` (exclusive).
  struct Band {
    int top;
    int bottom;
    std::vector<Run> runs;
  };

  std::vector<Band> bands_;
};

}  // namespace orvane::desk
