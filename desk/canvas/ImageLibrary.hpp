// The images of the application's bundle, by name.
#pragma once

#include <map>
#include <optional>
#include <string>

#include <cairo.h>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/Cache.hpp"

namespace orvane::desk {

class ImageLibrary {
 public:
  /// With all images. They are decoded once per process.
  ImageLibrary();

  /// Removes an image, as from a damaged bundle; does nothing for an unknown name.
  void remove(const std::string& name) { images_.erase(name); }

  /// The size in points; empty for an unknown name.
  [[nodiscard]] std::optional<ui::Size> size(const std::string& name) const;

  /// Paints the image into a rectangle of the current user space, at the target's resolution.
  /// Nothing for an unknown name or an empty rectangle.
  void paint(cairo_t* context, const std::string& name, const ui::Rect& rect);

 private:
  std::map<std::string, SurfacePointer> images_;
  /// By name and size in pixels. An animated scale produces many sizes.
  Cache<SurfacePointer> reduced_{std::size_t{16} << 20U};
};

}  // namespace orvane::desk
