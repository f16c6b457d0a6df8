// Pictures by name, as PNG or SVG: the application's resources, and whatever else the desk shows.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include <cairo.h>

#include "Orvane/ui/layout/Size.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

class ImageLibrary {
 public:
  /// Adds a picture, or replaces the one of that name. Bytes that begin like a PNG are read as
  /// one, all others as SVG. False, and no change, when they cannot be read or the picture has no
  /// size. The size in points is what is given, else the picture's own in pixels.
  bool add(const std::string& name, std::span<const std::uint8_t> bytes,
           std::optional<ui::Size> size = std::nullopt);
  /// The same with a decoded picture, which must not be changed any more, and its size in points.
  bool addPixels(const std::string& name, SurfacePointer pixels, ui::Size size);

  /// Forgets a picture; an unknown name changes nothing.
  void remove(const std::string& name);

  /// The size in points; empty for an unknown name.
  std::optional<ui::Size> size(const std::string& name) const;

  /// Paints the picture into the rectangle of the current user space, at the full resolution of
  /// the target. False, and nothing painted, for an unknown name or an empty rectangle.
  bool paint(cairo_t* context, const std::string& name, double x, double y, double width,
             double height);

 private:
  struct Picture {
    ui::Size size;
    // Exactly one of the two is there.
    SurfacePointer pixels;
    ObjectPointer<RsvgHandle> drawing;
  };
  using PixelSize = std::pair<int, int>;

  bool keep(const std::string& name, Picture picture);
  /// The picture at a size in pixels: a drawing is drawn for it and the result kept, pixels are
  /// halved as often as that leaves them no smaller, which keeps a strong reduction smooth.
  cairo_surface_t* pixelsFor(const std::string& name, Picture& picture, PixelSize wanted);

  std::map<std::string, Picture> pictures_;
  std::map<std::pair<std::string, PixelSize>, SurfacePointer> prepared_;
};

}  // namespace orvane::desk
