// Pictures by name, as PNG or SVG.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include <cairo.h>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

class ImageLibrary {
 public:
  /// Adds a picture, or replaces the one with that name. Bytes with the signature of PNG are read
  /// as PNG, others as SVG. False, and no change, when they cannot be read or the picture is empty.
  /// Without a size in points, the size in pixels counts.
  bool add(const std::string& name, std::span<const std::uint8_t> bytes,
           std::optional<ui::Size> size = std::nullopt);
  /// The same with a decoded picture, which must not change afterwards, and its size in points.
  bool addPixels(const std::string& name, SurfacePointer pixels, ui::Size size);

  /// Removes a picture; does nothing for an unknown name.
  void remove(const std::string& name);

  /// The size in points; empty for an unknown name.
  std::optional<ui::Size> size(const std::string& name) const;

  /// Paints the picture into a rectangle of the current user space, at the target's resolution.
  /// False, and nothing painted, for an unknown name or an empty rectangle.
  bool paint(cairo_t* context, const std::string& name, double x, double y, double width,
             double height);

 private:
  struct Picture {
    ui::Size size;
    // Exactly one of the two is set.
    SurfacePointer pixels;
    ObjectPointer<RsvgHandle> drawing;
  };
  using PixelSize = std::pair<int, int>;

  bool keep(const std::string& name, Picture picture);
  /// The picture for a size in pixels: a drawing is rendered at that size and cached; a bitmap is
  /// halved as long as it is at least that large, which keeps a strong reduction smooth.
  cairo_surface_t* pixelsFor(const std::string& name, Picture& picture, PixelSize wanted);

  std::map<std::string, Picture> pictures_;
  std::map<std::pair<std::string, PixelSize>, SurfacePointer> prepared_;
};

}  // namespace orvane::desk
