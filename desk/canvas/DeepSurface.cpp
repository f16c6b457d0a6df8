// The inner loops process the components of a colour alike, so that the compiler can vectorise.
#include "desk/canvas/DeepSurface.hpp"

#include <algorithm>
#include <cmath>

namespace orvane::desk {

namespace {

/// The fraction, of 2^16, that a colour with this alpha (at most `whole`) leaves of what is below.
std::uint16_t restOf(std::uint16_t alpha) {
  return static_cast<std::uint16_t>(0xFFFFU - (alpha + (alpha >> 8U)));
}

std::uint16_t productOf(std::uint16_t first, std::uint16_t second) {
  return static_cast<std::uint16_t>((static_cast<std::uint32_t>(first) * second) >> 16U);
}

/// Scales a byte to 2^16.
std::uint16_t widened(std::uint32_t byte) {
  return static_cast<std::uint16_t>(byte * 257U);
}

/// Composes a colour over `count` pixels.
void blend(std::uint16_t* pixels, std::size_t count, const DeepColor& color) {
  const std::uint16_t rest = restOf(color[3]);
  for (std::size_t pixel = 0; pixel < count; ++pixel, pixels += 4) {
    for (std::size_t part = 0; part < 4; ++part) {
      pixels[part] = static_cast<std::uint16_t>(color[part] + productOf(pixels[part], rest));
    }
  }
}

DeepColor covered(const DeepColor& color, std::uint8_t coverage) {
  if (coverage == 0xFF) {
    return color;
  }
  DeepColor result;
  std::ranges::transform(color, result.begin(), [weight = widened(coverage)](std::uint16_t part) {
    return productOf(part, weight);
  });
  return result;
}

/// The same with a coverage for each pixel.
void blendCovered(std::uint16_t* pixels, std::size_t count, const DeepColor& color,
                  const std::uint8_t* coverage) {
  const auto alpha = static_cast<std::uint16_t>(0xFFFFU - restOf(color[3]));
  for (std::size_t pixel = 0; pixel < count; ++pixel, pixels += 4) {
    const std::uint16_t weight = widened(coverage[pixel]);
    const auto rest = static_cast<std::uint16_t>(0xFFFFU - productOf(alpha, weight));
    for (std::size_t part = 0; part < 4; ++part) {
      pixels[part] = static_cast<std::uint16_t>(productOf(color[part], weight) +
                                                productOf(pixels[part], rest));
    }
  }
}

std::uint8_t* rowOf(cairo_surface_t* surface, int y) {
  return cairo_image_surface_get_data(surface) +
         static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface);
}

PixelRect boundsOf(cairo_surface_t* surface, int x, int y) {
  return {x, y, x + cairo_image_surface_get_width(surface),
          y + cairo_image_surface_get_height(surface)};
}

}  // namespace

DeepColor DeepSurface::colorOf(const ui::Rgba& color) {
  const double alpha = std::clamp(color.alpha, 0.0, 1.0);
  const auto part = [](double value) {
    return static_cast<std::uint16_t>(std::lround(std::clamp(value, 0.0, 1.0) * whole));
  };
  return {part(color.blue * alpha), part(color.green * alpha), part(color.red * alpha),
          part(alpha)};
}

DeepSurface::DeepSurface(int width, int height)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) * parts) {}

void DeepSurface::clear(const PixelRect& area) {
  const PixelRect cut = area.cutTo(bounds());
  if (cut.isEmpty()) {
    return;
  }
  for (int y = cut.top; y < cut.bottom; ++y) {
    std::fill_n(pixels_.data() + indexOf(cut.left, y),
                static_cast<std::size_t>(cut.right - cut.left) * parts, std::uint16_t{0});
  }
}

template <typename PaintRow>
void DeepSurface::paintRows(cairo_surface_t* surface, int x, int y, const PixelRect& clip,
                            int pixelBytes, const PaintRow& paintRow) {
  const PixelRect area = clip.cutTo(bounds()).cutTo(boundsOf(surface, x, y));
  if (area.isEmpty()) {
    return;
  }
  cairo_surface_flush(surface);
  for (int row = area.top; row < area.bottom; ++row) {
    const std::uint8_t* const bytes = rowOf(surface, row - y) + (area.left - x) * pixelBytes;
    paintRow(row, pixels_.data() + indexOf(area.left, row), bytes,
             static_cast<std::size_t>(area.right - area.left));
  }
}

void DeepSurface::paintShape(cairo_surface_t* mask, int x, int y, const PixelRect& clip,
                             const RowColors& colors) {
  paintRows(mask, x, y, clip, 1,
            [&](int row, std::uint16_t* pixels, const std::uint8_t* coverage, std::size_t count) {
              for (std::size_t start = 0; start < count;) {
                const std::uint8_t value = coverage[start];
                std::size_t end = start + 1;
                while (end < count && coverage[end] == value) {
                  ++end;
                }
                if (value != 0) {
                  blend(pixels + parts * start, end - start, covered(colors.at(row), value));
                }
                start = end;
              }
            });
}

void DeepSurface::paintMask(cairo_surface_t* mask, int x, int y, const PixelRect& clip,
                            const RowColors& colors) {
  paintRows(mask, x, y, clip, 1,
            [&](int row, std::uint16_t* pixels, const std::uint8_t* coverage, std::size_t count) {
              blendCovered(pixels, count, colors.at(row), coverage);
            });
}

void DeepSurface::paintPicture(cairo_surface_t* picture, int x, int y, const PixelRect& clip,
                               double opacity) {
  const auto weight =
      static_cast<std::uint16_t>(std::lround(std::clamp(opacity, 0.0, 1.0) * 0xFFFF));
  const auto faded = [weight](std::uint8_t byte) {
    return productOf(static_cast<std::uint16_t>(byte << 8U), weight);
  };
  paintRows(picture, x, y, clip, parts,
            [&](int, std::uint16_t* pixels, const std::uint8_t* bytes, std::size_t count) {
              for (; count > 0; --count, pixels += parts, bytes += parts) {
                const std::uint16_t rest = restOf(faded(bytes[3]));
                for (std::size_t part = 0; part < parts; ++part) {
                  pixels[part] = static_cast<std::uint16_t>(faded(bytes[part]) +
                                                            productOf(pixels[part], rest));
                }
              }
            });
}

void DeepSurface::paintOver(cairo_surface_t* target, int x, int y) const {
  const PixelRect area = boundsOf(target, 0, 0).cutTo({x, y, x + width_, y + height_});
  if (area.isEmpty()) {
    return;
  }
  cairo_surface_flush(target);
  for (int row = area.top; row < area.bottom; ++row) {
    const std::uint16_t* own = pixels_.data() + indexOf(area.left - x, row - y);
    std::uint8_t* bytes = rowOf(target, row) + static_cast<std::size_t>(area.left) * parts;
    for (int column = area.left; column < area.right; ++column, own += parts, bytes += parts) {
      const std::uint16_t rest = restOf(own[3]);
      for (std::size_t part = 0; part < parts; ++part) {
        const auto below = static_cast<std::uint16_t>(bytes[part] << 8U);
        const std::uint32_t sum = static_cast<std::uint16_t>(own[part] + productOf(below, rest));
        // Rounds to the nearest byte.
        bytes[part] = static_cast<std::uint8_t>((std::min(sum, whole) + 128U) >> 8U);
      }
    }
  }
  cairo_surface_mark_dirty(target);
}

}  // namespace orvane::desk
