// A picture with sixteen bits per component, for many translucent layers. With eight bits, each
// layer would be rounded: colour and alpha would step at different rows, and slow gradients would
// show stripes. Here the result is rounded once, when the picture is shown.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <cairo.h>

#include "Orvane/ui/draw/Appearance.hpp"
#include "desk/canvas/PixelRect.hpp"

namespace orvane::desk {

/// Premultiplied blue, green, red and alpha, from 0 to `DeepSurface::whole`.
using DeepColor = std::array<std::uint16_t, 4>;

/// One colour for all rows, or one per row from `top`.
struct RowColors {
  std::vector<DeepColor> colors;
  int top = 0;

  [[nodiscard]] const DeepColor& at(int y) const {
    return colors.size() == 1 ? colors.front() : colors[static_cast<std::size_t>(y - top)];
  }
};

class DeepSurface {
 public:
  /// The value of 255 in a byte; the upper byte of a value is then its rounding to eight bits.
  static constexpr std::uint32_t whole = 255U << 8U;

  [[nodiscard]] static DeepColor colorOf(const ui::Rgba& color);

  /// A clear picture, in pixels.
  DeepSurface(int width, int height);

  [[nodiscard]] int width() const { return width_; }
  [[nodiscard]] int height() const { return height_; }

  void clear(const PixelRect& area);

  /// These paint over the picture, within a rectangle. `x`, `y` is the position of the top left
  /// pixel of an A8 mask or an ARGB32 image surface. `paintShape` is for masks in which most
  /// neighbouring pixels are equal.
  void paintShape(cairo_surface_t* mask, int x, int y, const PixelRect& clip,
                  const RowColors& colors);
  void paintMask(cairo_surface_t* mask, int x, int y, const PixelRect& clip,
                 const RowColors& colors);
  void paintPicture(cairo_surface_t* picture, int x, int y, const PixelRect& clip, double opacity);

  /// Paints it over an ARGB32 image surface, with its top left at `x`, `y`.
  void paintOver(cairo_surface_t* target, int x, int y) const;

 private:
  static constexpr std::size_t parts = 4;

  [[nodiscard]] PixelRect bounds() const { return {0, 0, width_, height_}; }
  /// Calls `paintRow(row, pixels, bytes, count)` for each row of a surface with `pixelBytes` bytes
  /// per pixel.
  template <typename PaintRow>
  void paintRows(cairo_surface_t* surface, int x, int y, const PixelRect& clip, int pixelBytes,
                 const PaintRow& paintRow);
  [[nodiscard]] std::size_t indexOf(int x, int y) const {
    return (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
            static_cast<std::size_t>(x)) *
           parts;
  }

  int width_;
  int height_;
  /// Rows from the top, without gaps.
  std::vector<std::uint16_t> pixels_;
};

}  // namespace orvane::desk
