// Box blurs of fractional width: whole pixels in the middle and a weighted pixel at each end, so
// that the blur follows an animated radius without steps.
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

/// A box: `reach` whole pixels to each side of the centre, and one more of lesser weight.
struct Box {
  int reach;
  std::uint32_t fullWeight;
  std::uint32_t endWeight;
};

/// The box whose variance times `passCount` is sigma squared. With weight 1 for |i| <= r and a for
/// |i| = r + 1 the variance is
///   (r(r+1)(2r+1)/3 + 2a(r+1)^2) / (2r + 1 + 2a),
/// which is solved for a; r is the greatest reach for which a is not negative.
Box makeBox(double sigma) {
  const double variance = sigma * sigma / passCount;
  const double length = std::sqrt(12.0 * variance + 1.0);
  const int reach = static_cast<int>(std::floor((length - 1.0) / 2.0));
  const double whole = 2.0 * reach + 1.0;
  const double next = reach + 1.0;
  const double end = whole * (variance - reach * next / 3.0) / (2.0 * (next * next - variance));
  const double unit = std::ldexp(1.0, weightBits) / (whole + 2.0 * end);
  return {reach, static_cast<std::uint32_t>(std::floor(unit)),
          static_cast<std::uint32_t>(std::floor(unit * end))};
}

/// The weights add up to at most 1, so 255 times them plus a half for rounding fits into 32 bits.
std::uint8_t weigh(const Box& box, std::uint32_t inner, std::uint32_t ends) {
  constexpr std::uint32_t half = std::uint32_t{1} << (weightBits - 1);
  return static_cast<std::uint8_t>((inner * box.fullWeight + ends * box.endWeight + half) >>
                                   weightBits);
}

/// Blurs `lineCount` parallel lines of `length` samples at once. Samples of one position are
/// adjacent in memory, so that columns are read sequentially.
struct Plane {
  std::uint8_t* data;
  std::ptrdiff_t step;  // from one position to the next
  int length;
  int lineCount;
};

/// The rows before and after the whole pixels of the box, and the first of those.
struct Window {
  const std::uint8_t* before;
  const std::uint8_t* after;
  const std::uint8_t* leaving;
};

void addRow(std::uint32_t* __restrict sums, const std::uint8_t* __restrict row, std::size_t count) {
  for (std::size_t line = 0; line < count; ++line) {
    sums[line] += row[line];
  }
}

/// Writes one row of the result and advances the sums. The pointers are declared as not
/// overlapping, so that the compiler can vectorise.
void blurRow(const Box& box, const Window& window, std::uint32_t* __restrict sums,
             std::uint8_t* __restrict target, std::size_t count) {
  const std::uint8_t* __restrict before = window.before;
  const std::uint8_t* __restrict after = window.after;
  const std::uint8_t* __restrict leaving = window.leaving;
  const Box weights = box;
  for (std::size_t line = 0; line < count; ++line) {
    const std::uint32_t sum = sums[line];
    const std::uint32_t entering = after[line];
    target[line] = weigh(weights, sum, before[line] + entering);
    sums[line] = sum + entering - leaving[line];
  }
}

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
    addRow(sums.data(), rowOf(position), lines);
  }
  for (int position = 0; position < plane.length; ++position) {
    const Window window{rowOf(position - pad), rowOf(position + pad), rowOf(position - box.reach)};
    blurRow(box, window, sums.data(), plane.data + position * plane.step, lines);
  }
}

/// Transposes a picture in square tiles that fit into the first-level cache.
template <typename Pixel>
void transpose(const Pixel* from, std::ptrdiff_t fromStride, Pixel* to, std::ptrdiff_t toStride,
               int width, int height) {
  constexpr int side = 16;
  for (int top = 0; top < height; top += side) {
    for (int left = 0; left < width; left += side) {
      for (int x = left; x < std::min(left + side, width); ++x) {
        for (int y = top; y < std::min(top + side, height); ++y) {
          to[x * toStride + y] = from[y * fromStride + x];
        }
      }
    }
  }
}

/// Pixels in memory, `pixelBytes` bytes each.
struct Pixels {
  std::uint8_t* data;
  std::ptrdiff_t stride;
  int width;
  int height;
  int pixelBytes;
};

/// Rows are blurred as the columns of the transposed picture.
template <typename Pixel>
void blurRows(const Pixels& pixels, const Box& box, BlurEdge edge) {
  const auto [data, stride, width, height, pixelBytes] = pixels;
  auto* const own = reinterpret_cast<Pixel*>(data);
  const std::ptrdiff_t ownStride = stride / pixelBytes;
  std::vector<Pixel> turned(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  transpose(own, ownStride, turned.data(), height, width, height);
  for (int pass = 0; pass < passCount; ++pass) {
    blurPlane({reinterpret_cast<std::uint8_t*>(turned.data()),
               static_cast<std::ptrdiff_t>(height) * pixelBytes, width, height * pixelBytes},
              box, edge);
  }
  transpose(turned.data(), height, own, ownStride, height, width);
}

void blurExactly(const Pixels& pixels, double sigma, BlurEdge edge) {
  const Box box = makeBox(sigma);
  for (int pass = 0; pass < passCount; ++pass) {
    blurPlane({pixels.data, pixels.stride, pixels.height, pixels.width * pixels.pixelBytes}, box,
              edge);
  }
  if (pixels.pixelBytes == 1) {
    blurRows<std::uint8_t>(pixels, box, edge);
  } else {
    blurRows<std::uint32_t>(pixels, box, edge);
  }
}

/// The picture reduced by `factor`, with a border of one pixel; every pixel is the mean of those
/// that it replaces.
std::vector<std::uint8_t> reduced(const Pixels& pixels, int factor, int smallWidth, int smallHeight,
                                  BlurEdge edge) {
  const auto [data, stride, width, height, pixelBytes] = pixels;
  std::vector<std::uint8_t> small(static_cast<std::size_t>(smallWidth) *
                                  static_cast<std::size_t>(smallHeight) *
                                  static_cast<std::size_t>(pixelBytes));
  std::vector<std::uint32_t> sums(static_cast<std::size_t>(smallWidth * pixelBytes));
  const auto count = static_cast<std::uint32_t>(factor * factor);
  for (int smallY = 0; smallY < smallHeight; ++smallY) {
    std::ranges::fill(sums, 0U);
    for (int y = (smallY - 1) * factor; y < smallY * factor; ++y) {
      const bool rowIsInside = y >= 0 && y < height;
      if (!rowIsInside && edge == BlurEdge::transparent) {
        continue;
      }
      const std::uint8_t* row = data + std::clamp(y, 0, height - 1) * stride;
      for (int x = -factor; x < (smallWidth - 1) * factor; ++x) {
        const bool isInside = x >= 0 && x < width;
        if (!isInside && edge == BlurEdge::transparent) {
          continue;
        }
        const std::uint8_t* pixel = row + std::clamp(x, 0, width - 1) * pixelBytes;
        std::uint32_t* sum = sums.data() + (x + factor) / factor * pixelBytes;
        for (int byte = 0; byte < pixelBytes; ++byte) {
          sum[byte] += pixel[byte];
        }
      }
    }
    std::uint8_t* target =
        small.data() + static_cast<std::ptrdiff_t>(smallY) * smallWidth * pixelBytes;
    for (std::size_t index = 0; index < sums.size(); ++index) {
      target[index] = static_cast<std::uint8_t>((sums[index] + count / 2) / count);
    }
  }
  return small;
}

/// Fills the pixels from the reduced picture by linear interpolation between pixel centres.
void enlarge(const std::vector<std::uint8_t>& small, int factor, int smallWidth,
             const Pixels& pixels) {
  const auto [data, stride, width, height, pixelBytes] = pixels;
  // Distances are in half pixels, so that pixel centres are whole numbers.
  const int span = 2 * factor;
  const std::ptrdiff_t smallStride = static_cast<std::ptrdiff_t>(smallWidth) * pixelBytes;
  for (int y = 0; y < height; ++y) {
    const int downPlace = 2 * y + 1 + factor;
    const auto down = static_cast<std::uint32_t>(downPlace % span);
    const std::uint8_t* upper = small.data() + downPlace / span * smallStride;
    const std::uint8_t* lower = upper + smallStride;
    std::uint8_t* row = data + y * stride;
    for (int x = 0; x < width; ++x) {
      const int acrossPlace = 2 * x + 1 + factor;
      const auto across = static_cast<std::uint32_t>(acrossPlace % span);
      const auto whole = static_cast<std::uint32_t>(span);
      const int offset = acrossPlace / span * pixelBytes;
      for (int byte = offset; byte < offset + pixelBytes; ++byte) {
        const std::uint32_t above =
            upper[byte] * (whole - across) + upper[byte + pixelBytes] * across;
        const std::uint32_t below =
            lower[byte] * (whole - across) + lower[byte + pixelBytes] * across;
        const std::uint32_t sum = above * (whole - down) + below * down;
        row[x * pixelBytes + byte - offset] =
            static_cast<std::uint8_t>((sum + whole * whole / 2) / (whole * whole));
      }
    }
  }
}

/// The factor by which the picture is reduced before blurring. A wide blur leaves no detail, and
/// the reduced picture is still blurred by at least four of its pixels, which hides the reduction.
int factorOf(double sigma) {
  constexpr double minimumSmallSigma = 4.0;
  int factor = 1;
  while (sigma / (2.0 * factor) >= minimumSmallSigma) {
    factor *= 2;
  }
  return factor;
}

void blurPixels(const Pixels& pixels, double sigma, BlurEdge edge) {
  const int factor = factorOf(sigma);
  if (factor == 1) {
    blurExactly(pixels, sigma, edge);
    return;
  }
  const int smallWidth = (pixels.width + factor - 1) / factor + 2;
  const int smallHeight = (pixels.height + factor - 1) / factor + 2;
  std::vector<std::uint8_t> small = reduced(pixels, factor, smallWidth, smallHeight, edge);
  // Reducing and enlarging also blur slightly (a variance of a quarter of the squared factor),
  // which compensates for the tails lost by rounding.
  blurExactly({small.data(), static_cast<std::ptrdiff_t>(smallWidth) * pixels.pixelBytes,
               smallWidth, smallHeight, pixels.pixelBytes},
              sigma / factor, edge);
  enlarge(small, factor, smallWidth, pixels);
}

/// Bytes per pixel of a format that can be blurred, 0 for other formats.
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
  if (!(sigma > 0)) {
    return 0;
  }
  // The reach of a box is less than sigma (see makeBox) plus the weighted pixel at its end. For a
  // reduced picture this, and the reach of reducing and enlarging, is multiplied by the factor.
  const int factor = factorOf(sigma);
  const int boxes = passCount * (static_cast<int>(std::ceil(sigma / factor)) + 1);
  return factor * (boxes + (factor > 1 ? 2 : 0));
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
  blurPixels({data, cairo_image_surface_get_stride(surface), width, height, pixelBytes}, sigma,
             edge);
  cairo_surface_mark_dirty(surface);
}

}  // namespace orvane::desk
