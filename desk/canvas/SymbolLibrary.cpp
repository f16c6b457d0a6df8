// Reads the embedded drawings with librsvg, with one style sheet per weight.
#include "desk/canvas/SymbolLibrary.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include <librsvg/rsvg.h>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::desk {
namespace {

// The grid that desk/symbols/README.md describes.
constexpr double unitsPerPointSize = 24.0;
constexpr double regularStroke = 2.0;
// Only the middle 28 of 32 units count for layout; the rest is for heavy strokes.
constexpr double layoutUnits = 28.0;

/// The stroke of an outline, in units of the grid, from ultralight to black; chosen by eye next to
/// text of the same weight.
constexpr std::array<double, 9> strokes{0.9, 1.2, 1.6, regularStroke, 2.3, 2.65, 3.0, 3.4, 3.8};

std::string styleSheetOf(ui::Weight weight) {
  const double stroke = strokes.at(static_cast<std::size_t>(weight) / 100 - 1);
  const double growth = stroke - regularStroke;
  char sheet[256];
  std::snprintf(sheet, sizeof sheet,
                "svg{color:#000;stroke-width:%.3f}.detail{stroke-width:%.3f}"
                ".fine{stroke-width:%.3f}.gap{stroke-width:%.3f}",
                stroke, regularStroke + growth / 2.0, 1.7 + growth / 3.0, stroke + 3.0);
  return sheet;
}

const Artwork* artworkOf(const std::string& name) {
  const auto artworks = symbolArtworks();
  const auto found = std::ranges::lower_bound(artworks, name, {}, &Artwork::name);
  return found != artworks.end() && found->name == name ? &*found : nullptr;
}

// Samples per pixel, horizontally and vertically. Masks have quarter-pixel positions.
constexpr int finePixels = 4;

int floorDivided(int value, int divisor) {
  return static_cast<int>(std::floor(static_cast<double>(value) / divisor));
}

/// The alpha of a picture; every pixel is the mean of its samples.
SurfacePointer reducedAlpha(cairo_surface_t* picture, int width, int height) {
  cairo_surface_flush(picture);
  SurfacePointer result = imageSurface(width, height, CAIRO_FORMAT_A8);
  const unsigned char* fine = cairo_image_surface_get_data(picture);
  const int fineStride = cairo_image_surface_get_stride(picture);
  unsigned char* target = cairo_image_surface_get_data(result.get());
  const int stride = cairo_image_surface_get_stride(result.get());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      std::uint32_t sum = 0;
      for (int row = y * finePixels; row < (y + 1) * finePixels; ++row) {
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(fine + row * fineStride);
        for (int column = x * finePixels; column < (x + 1) * finePixels; ++column) {
          sum += pixels[column] >> 24U;
        }
      }
      constexpr std::uint32_t count = finePixels * finePixels;
      target[y * stride + x] = static_cast<unsigned char>((sum + count / 2) / count);
    }
  }
  cairo_surface_mark_dirty(result.get());
  return result;
}

const guint8* bytesOf(const char* text) {
  return reinterpret_cast<const guint8*>(text);
}

}  // namespace

bool SymbolLibrary::contains(const std::string& name) {
  return artworkOf(name) != nullptr;
}

const SymbolLibrary::Drawing* SymbolLibrary::drawing(const std::string& name, ui::Weight weight) {
  const auto found = drawings_.find({name, weight});
  if (found != drawings_.end()) {
    return &found->second;
  }
  const Artwork* artwork = artworkOf(name);
  if (artwork == nullptr) {
    return nullptr;
  }
  ObjectPointer<RsvgHandle> handle(
      rsvg_handle_new_from_data(bytesOf(artwork->bytes.data()), artwork->bytes.size(), nullptr));
  Drawing drawing;
  if (!handle || rsvg_handle_get_intrinsic_size_in_pixels(handle.get(), &drawing.unitWidth,
                                                          &drawing.unitHeight) == FALSE) {
    return nullptr;
  }
  const std::string sheet = styleSheetOf(weight);
  rsvg_handle_set_stylesheet(handle.get(), bytesOf(sheet.c_str()), sheet.size(), nullptr);
  drawing.handle = std::move(handle);
  return &drawings_.emplace(std::pair(name, weight), std::move(drawing)).first->second;
}

std::optional<ui::Size> SymbolLibrary::size(const std::string& name, const ui::Font& font) {
  const Drawing* found = drawing(name, font.weight);
  if (found == nullptr || !(font.size > 0)) {
    return std::nullopt;
  }
  const double unit = font.size / unitsPerPointSize;
  return ui::Size{found->unitWidth * unit, layoutUnits * unit};
}

Mask SymbolLibrary::makeMask(const std::string& name, const ui::Font& font,
                             const PixelPlacement& placement) {
  const Drawing* found = drawing(name, font.weight);
  if (found == nullptr || !(font.size > 0)) {
    return {};
  }
  const double width = found->unitWidth * font.size / unitsPerPointSize * placement.scale;
  const double height = found->unitHeight * font.size / unitsPerPointSize * placement.scale;
  // The drawing is rendered enlarged, on whole pixels: librsvg would blur masked shapes between
  // pixels.
  const int left = static_cast<int>(std::lround((placement.phaseX - width / 2.0) * finePixels));
  const int top = static_cast<int>(std::lround((placement.phaseY - height / 2.0) * finePixels));
  Mask mask;
  mask.x = floorDivided(left, finePixels);
  mask.y = floorDivided(top, finePixels);
  const int pixelWidth = static_cast<int>(std::ceil(width)) + 1;
  const int pixelHeight = static_cast<int>(std::ceil(height)) + 1;
  // Masked shapes need a surface with colours.
  const SurfacePointer picture = imageSurface(pixelWidth * finePixels, pixelHeight * finePixels);
  const ContextPointer context(cairo_create(picture.get()));
  const RsvgRectangle viewport{static_cast<double>(left - mask.x * finePixels),
                               static_cast<double>(top - mask.y * finePixels), width * finePixels,
                               height * finePixels};
  rsvg_handle_render_document(found->handle.get(), context.get(), &viewport, nullptr);
  mask.surface = reducedAlpha(picture.get(), pixelWidth, pixelHeight);
  return mask;
}

}  // namespace orvane::desk
