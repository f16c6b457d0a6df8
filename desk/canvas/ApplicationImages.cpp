// Consecutive machines of a process share the decoded images.
#include "desk/canvas/ApplicationImages.hpp"

#include <string>
#include <utility>
#include <vector>

#include "desk/canvas/ImageArtwork.hpp"
#include "desk/canvas/PngFile.hpp"

namespace orvane::desk {

namespace {

constexpr double pixelsPerPoint = 2;

using Images = std::vector<std::pair<std::string, SurfacePointer>>;

Images decoded() {
  Images images;
  for (const ImageArtwork& artwork : imageArtworks()) {
    images.emplace_back(artwork.name, decodePng(artwork.png));
  }
  return images;
}

}  // namespace

void addApplicationImages(ImageLibrary& images) {
  static const Images artworks = decoded();
  for (const auto& [name, pixels] : artworks) {
    images.addPixels(name, SurfacePointer(cairo_surface_reference(pixels.get())),
                     {cairo_image_surface_get_width(pixels.get()) / pixelsPerPoint,
                      cairo_image_surface_get_height(pixels.get()) / pixelsPerPoint});
  }
}

}  // namespace orvane::desk
