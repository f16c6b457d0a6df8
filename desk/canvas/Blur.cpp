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

/// Pixels in memory, `pixelBytes` bytes each.
struct Pixels {
  std::uint8_t* data;
  std::ptrdiff_t stride;
  int width;
  int height;
  int pixelBytes;
};

/// Blurs a line of samples that are `step` bytes apart. `padded` has room for the line and its
/// surroundings.
void blurLine(std::uint8_t* line, std::ptrdiff_t step, int length, const Box& box, BlurEdge edge,
              std::uint8_t* padded) {
  const int pad = box.reach + 1;
  std::uint8_t* const inside = padded + pad;
  for (int pass = 0; pass < passCount; ++pass) {
    const bool isExtended = edge == BlurEdge::extended;
    std::fill_n(padded, pad, isExtended ? line[0] : std::uint8_t{0});
    std::fill_n(inside + length, pad, isExtended ? line[(length - 1) * step] : std::uint8_t{0});
    for (int position = 0; position < length; ++position) {
      inside[position] = line[position * step];
    }
    std::uint32_t sum = 0;
    for (int position = -box.reach; position <= box.reach; ++position) {
      sum += inside[position];
    }
    for (int position = 0; position < length; ++position) {
      const std::uint32_t entering = inside[position + pad];
      line[position * step] = weigh(box, sum, inside[position - pad] + entering);
      sum += entering - inside[position - box.reach];
    }
  }
}

void blurExactly(const Pixels& pixels, double sigma, BlurEdge edge) {
  const auto [data, stride, width, height, pixelBytes] = pixels;
  const Box box = makeBox(sigma);
  std::vector<std::uint8_t> padded(
      static_cast<std::size_t>(std::max(width, height) + 2 * (box.reach + 1)));
  for (int x = 0; x < width * pixelBytes; ++x) {
    blurLine(data + x, stride, height, box, edge, padded.data());
  }
  for (int y = 0; y < height; ++y) {
    for (int byte = 0; byte < pixelBytes; ++byte) {
      blurLine(data + y * stride + byte, pixelBytes, width, box, edge, padded.data());
    }
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
