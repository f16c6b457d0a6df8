// Blending equals that of pixman and cairo bit by bit; tests/canvas compares them.
#include "desk/canvas/CoverageRuns.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace orvane::desk {

namespace {

constexpr std::uint32_t opaque = 255;

/// The product of two fractions of 255, rounded. For opaque fills cairo uses a bias one less than
/// pixman's.
template <std::uint32_t bias>
constexpr std::uint32_t product(std::uint32_t first, std::uint32_t second) {
  const std::uint32_t sum = first * second + bias;
  return (sum + (sum >> 8U)) >> 8U;
}

template <std::uint32_t bias>
std::uint32_t faded(std::uint32_t pixel, std::uint32_t fraction) {
  std::uint32_t result = 0;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    result |= product<bias>((pixel >> shift) & 0xFFU, fraction) << shift;
  }
  return result;
}

/// Composes `source` over every pixel, byte by byte, so that the compiler can vectorise.
template <std::uint32_t bias>
void blend(std::uint32_t* pixels, std::size_t count, std::uint32_t source) {
  const auto rest = static_cast<std::uint16_t>(opaque - (source >> 24U));
  constexpr std::size_t step = 8;
  std::array<std::uint32_t, step> sources{};
  sources.fill(source);
  const auto* const add = reinterpret_cast<const std::uint8_t*>(sources.data());
  auto* bytes = reinterpret_cast<std::uint8_t*>(pixels);
  const auto over = [&](std::uint8_t* target, std::size_t byteCount) {
    for (std::size_t index = 0; index < byteCount; ++index) {
      const auto sum = static_cast<std::uint16_t>(target[index] * rest + bias);
      target[index] = static_cast<std::uint8_t>(
          add[index] + (static_cast<std::uint16_t>(sum + (sum >> 8U)) >> 8U));
    }
  };
  for (; count >= step; count -= step, bytes += 4 * step) {
    over(bytes, 4 * step);
  }
  over(bytes, 4 * count);
}

void paintRun(std::uint32_t* pixels, std::size_t count, std::uint32_t color, std::uint32_t coverage,
              bool isFill) {
  if (coverage == opaque && color >> 24U == opaque) {
    std::fill_n(pixels, count, color);
  } else if (isFill) {
    blend<0x7F>(pixels, count, faded<0x7F>(color, coverage));
  } else {
    blend<0x80>(pixels, count, faded<0x80>(color, coverage));
  }
}

}  // namespace

PixelRect PixelRect::around(const ui::Rect& pixels) {
  return {static_cast<int>(std::floor(pixels.x)), static_cast<int>(std::floor(pixels.y)),
          static_cast<int>(std::ceil(pixels.right())),
          static_cast<int>(std::ceil(pixels.bottom()))};
}

PixelRect PixelRect::cutTo(const PixelRect& other) const {
  return {std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
          std::min(bottom, other.bottom)};
}

void CoverageRuns::add(const Mask& mask) {
  cairo_surface_flush(mask.surface.get());
  const int width = cairo_image_surface_get_width(mask.surface.get());
  const int height = cairo_image_surface_get_height(mask.surface.get());
  const int stride = cairo_image_surface_get_stride(mask.surface.get());
  const unsigned char* row = cairo_image_surface_get_data(mask.surface.get());
  for (int y = mask.y; y < mask.y + height; ++y, row += stride) {
    std::vector<Run> runs;
    for (int x = 0; x < width;) {
      const int start = x;
      while (x < width && row[x] == row[start]) {
        ++x;
      }
      if (row[start] != 0) {
        runs.push_back({mask.x + start, mask.x + x, row[start]});
      }
    }
    if (!bands_.empty() && bands_.back().runs == runs) {
      ++bands_.back().bottom;
    } else {
      bands_.push_back({y, y + 1, std::move(runs)});
    }
  }
}

void CoverageRuns::repeatLast(int times) {
  bands_.back().bottom += times;
}

void CoverageRuns::moveBy(int x, int y) {
  for (Band& band : bands_) {
    band.top += y;
    band.bottom += y;
    for (Run& run : band.runs) {
      run.left += x;
      run.right += x;
    }
  }
}

void CoverageRuns::paint(cairo_surface_t* target, int x, int y, const PixelRect& clip,
                         const RowColors& colors) const {
  cairo_surface_flush(target);
  auto* const data = cairo_image_surface_get_data(target);
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(target);
  const PixelRect area = clip.cutTo(
      {0, 0, cairo_image_surface_get_width(target), cairo_image_surface_get_height(target)});
  visit(x, y, area, [&](int row, int left, int right, std::uint8_t coverage) {
    const std::uint32_t color = colors.at(row);
    const bool isFill = colors.isOne && color >> 24U == opaque;
    auto* const pixels = reinterpret_cast<std::uint32_t*>(data + row * stride);
    paintRun(pixels + left, static_cast<std::size_t>(right - left), color, coverage, isFill);
  });
  cairo_surface_mark_dirty(target);
}

}  // namespace orvane::desk
