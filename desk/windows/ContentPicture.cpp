// Dirty areas are widened to whole pixels, so that no older pixels are left at their edges.
#include "desk/windows/ContentPicture.hpp"

#include <cmath>

#include "desk/canvas/CairoCanvas.hpp"

namespace orvane::desk {

const DeepSurface* ContentPicture::of(ui::ViewHost& host, double scale,
                                      DrawingResources& resources) {
  const ui::Size size = host.size();
  const int width = static_cast<int>(std::ceil(size.width * scale));
  const int height = static_cast<int>(std::ceil(size.height * scale));
  if (width <= 0 || height <= 0) {
    return nullptr;
  }
  const std::vector<ui::Rect> dirty = host.takeDirtyRects();
  if (!surface_ || scale != scale_ || !(size == size_)) {
    surface_.emplace(width, height);
    size_ = size;
    scale_ = scale;
    draw(host, {0, 0, size.width, size.height}, resources);
    return &*surface_;
  }
  const ui::Rect bounds{0, 0, size.width, size.height};
  for (const ui::Rect& area : dirty) {
    draw(host, area.intersection(bounds), resources);
  }
  return &*surface_;
}

void ContentPicture::draw(const ui::ViewHost& host, const ui::Rect& area,
                          DrawingResources& resources) {
  if (area.isEmpty()) {
    return;
  }
  ++drawnAreaCount_;
  const double left = std::floor(area.x * scale_);
  const double top = std::floor(area.y * scale_);
  const double right = std::ceil(area.right() * scale_);
  const double bottom = std::ceil(area.bottom() * scale_);
  surface_->clear({static_cast<int>(left), static_cast<int>(top), static_cast<int>(right),
                   static_cast<int>(bottom)});
  CairoCanvas canvas(*surface_, scale_, resources);
  host.paint(canvas,
             ui::Rect::between(left / scale_, top / scale_, right / scale_, bottom / scale_));
}

}  // namespace orvane::desk
