// Box blurs with a fractional width: whole pixels in the middle, a weighted pixel at each end, so
// that the softness follows an animated radius without steps.
#include "desk/canvas/Blur.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {
namespace {

constexpr int passCount = 3;
constexpr int weightBits = 24;

/// One box: `reach` whole pixels to each side of the centre and one more of lesser weight.
struct Box {
  int reach;
  std::uint64_t fullWeight;
  std::uint64_t endWeight;
};

/// The box whose variance, taken `passCount` times, is sigma squared. With weight one for
/// |i| <= r and a for |i| = r + 1 the variance is
///   (r(r+1)(2r+1)/3 + 2a(r+1)^2) / (2r + 1 + 2a),
/// which is solved for a; r is the largest reach whose plain box is not too wide.
Box makeBox(double sigma) {
  const double variance = sigma * sigma / passCount;
  const double length = std::sqrt(12.0 * variance + 1.0);
  const int reach = static_cast<int>(std::floor((length - 1.0) / 2.0));
  const double whole = 2.0 * reach + 1.0;
  const double next = reach + 1.0;
  const double end = whole * (variance - reach * next / 3.0) / (2.0 * (next * next - variance));
  const double unit = std::ldexp(1.0, weightBits) / (whole + 2.0 * end);
  return {reach, static_cast<std::uint64_t>(std::llround(unit)),
          static_cast<std::uint64_t>(std::llround(unit * end))};
}

std::uint8_t weigh(const Box& box, std::uint64_t inner, std::uint64_t ends) {
  constexpr std::uint64_t half = std::uint64_t{1} << (weightBits - 1);
  const std::uint64_t value = (inner * box.fullWeight + ends * box.endWeight + half) >> weightBits;
  return static_cast<std::uint8_t>(std::min<std::uint64_t>(value, 255));
}

/// Blurs `lineCount` parallel lines of `length` samples at once: the samples of one position lie
/// side by side, which keeps the walk along memory for columns as well as for rows.
struct Plane {
  std::uint8_t* data;
  std::ptrdiff_t step;  // from one position to the next
  int length;
  int lineCount;
};

void blurPlane(const Plane& plane, const Box& box, BlurEdge edge) {
  const auto lines = static_cast<std::size_t>(plane.lineCount);
  const int pad = box.reach + 1;
  const int paddedLength = plane.length + 2 * pad;
  std::vector<std::uint8_t> source(lines * static_cast<std::size_t>(paddedLength), 0);
  const auto rowOf = [&](int position) {
    return source.data() + lines * static_cast<std::size_t>(position + pad);
  };
  for (int position = -pad; position < plane.length + pad; ++position) {
    const int nearest = std::clamp(position, 0, plane.length - 1);
    if (nearest == position || edge == BlurEdge::extended) {
      std::copy_n(plane.data + nearest * plane.step, lines, rowOf(position));
    }
  }
  std::vector<std::uint32_t> sums(lines, 0);
  for (int position = -box.reach; position <= box.reach; ++position) {
    const std::uint8_t* row = rowOf(position);
    for (std::size_t line = 0; line < lines; ++line) {
      sums[line] += row[line];
    }
  }
  for (int position = 0; position < plane.length; ++position) {
    std::uint8_t* target = plane.data + position * plane.step;
    const std::uint8_t* before = rowOf(position - pad);
    const std::uint8_t* after = rowOf(position + pad);
    const std::uint8_t* leaving = rowOf(position - box.reach);
    for (std::size_t line = 0; line < lines; ++line) {
      const std::uint32_t ends = std::uint32_t{before[line]} + after[line];
      target[line] = weigh(box, sums[line], ends);
      sums[line] += after[line];
      sums[line] -= leaving[line];
    }
  }
}

/// A copy of the picture with rows and columns exchanged, `pixelBytes` bytes to a pixel.
std::vector<std::uint8_t> transposed(const std::uint8_t* data, std::ptrdiff_t stride, int width,
                                     int height, int pixelBytes) {
  const auto bytes = static_cast<std::size_t>(pixelBytes);
  std::vector<std::uint8_t> result(static_cast<std::size_t>(width) *
                                   static_cast<std::size_t>(height) * bytes);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto target = (static_cast<std::size_t>(x) * static_cast<std::size_t>(height) +
                           static_cast<std::size_t>(y)) *
                          bytes;
      std::copy_n(data + y * stride + x * pixelBytes, bytes, result.data() + target);
    }
  }
  return result;
}

void blurPixels(std::uint8_t* data, std::ptrdiff_t stride, int width, int height, int pixelBytes,
                const Box& box, BlurEdge edge) {
  for (int pass = 0; pass < passCount; ++pass) {
    blurPlane({data, stride, height, width * pixelBytes}, box, edge);
  }
  std::vector<std::uint8_t> turned = transposed(data, stride, width, height, pixelBytes);
  const std::ptrdiff_t turnedStride = static_cast<std::ptrdiff_t>(height) * pixelBytes;
  for (int pass = 0; pass < passCount; ++pass) {
    blurPlane({turned.data(), turnedStride, width, height * pixelBytes}, box, edge);
  }
  const std::vector<std::uint8_t> result =
      transposed(turned.data(), turnedStride, height, width, pixelBytes);
  const auto rowBytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(pixelBytes);
  for (int y = 0; y < height; ++y) {
    std::copy_n(result.data() + static_cast<std::size_t>(y) * rowBytes, rowBytes,
                data + y * stride);
  }
}

/// Bytes of a pixel of a format that can be blurred, zero for any other.
int pixelBytesOf(cairo_surface_t* surface) {
  if (cairo_surface_get_type(surface) != CAIRO_SURFACE_TYPE_IMAGE) {
    return 0;
  }
  switch (cairo_image_surface_get_format(surface)) {
    case CAIRO_FORMAT_ARGB32:
    case CAIRO_FORMAT_RGB24:
      return 4;
    case CAIRO_FORMAT_A8:
      return 1;
    default:
      return 0;
  }
}

}  // namespace

int blurReach(double sigma) {
  // The reach of one box is less than sigma (see makeBox), plus the weighted pixel at its end.
  return sigma > 0 ? passCount * (static_cast<int>(std::ceil(sigma)) + 1) : 0;
}

void blurSurface(cairo_surface_t* surface, double sigma, BlurEdge edge) {
  cairo_surface_flush(surface);
  const int pixelBytes = pixelBytesOf(surface);
  std::uint8_t* data = pixelBytes == 0 ? nullptr : cairo_image_surface_get_data(surface);
  if (data == nullptr || !(sigma > 0.0)) {
    return;
  }
  const int width = cairo_image_surface_get_width(surface);
  const int height = cairo_image_surface_get_height(surface);
  blurPixels(data, cairo_image_surface_get_stride(surface), width, height, pixelBytes,
             makeBox(sigma), edge);
  cairo_surface_mark_dirty(surface);
}

void blurRegion(cairo_surface_t* surface, const cairo_rectangle_int_t& region, double sigma) {
  cairo_surface_flush(surface);
  const int pixelBytes = pixelBytesOf(surface);
  if (pixelBytes == 0 || !(sigma > 0.0)) {
    return;
  }
  const int width = cairo_image_surface_get_width(surface);
  const int height = cairo_image_surface_get_height(surface);
  const int left = std::clamp(region.x, 0, width);
  const int top = std::clamp(region.y, 0, height);
  const int right = std::clamp(region.x + region.width, left, width);
  const int bottom = std::clamp(region.y + region.height, top, height);
  if (left == right || top == bottom) {
    return;
  }
  // As far as a pixel outside of the region can be felt inside it.
  const int margin = blurReach(sigma);
  const int copyLeft = std::max(0, left - margin);
  const int copyTop = std::max(0, top - margin);
  const int copyWidth = std::min(width, right + margin) - copyLeft;
  const int copyHeight = std::min(height, bottom + margin) - copyTop;
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface);
  std::uint8_t* data = cairo_image_surface_get_data(surface);
  const std::ptrdiff_t copyStride = static_cast<std::ptrdiff_t>(copyWidth) * pixelBytes;
  std::vector<std::uint8_t> copy(static_cast<std::size_t>(copyStride) *
                                 static_cast<std::size_t>(copyHeight));
  for (int y = 0; y < copyHeight; ++y) {
    std::copy_n(data + (copyTop + y) * stride + copyLeft * pixelBytes, copyStride,
                copy.data() + y * copyStride);
  }
  blurPixels(copy.data(), copyStride, copyWidth, copyHeight, pixelBytes, makeBox(sigma),
             BlurEdge::extended);
  for (int y = top; y < bottom; ++y) {
    std::copy_n(copy.data() + (y - copyTop) * copyStride + (left - copyLeft) * pixelBytes,
                (right - left) * pixelBytes, data + y * stride + left * pixelBytes);
  }
  cairo_surface_mark_dirty(surface);
}

}  // namespace orvane::desk
