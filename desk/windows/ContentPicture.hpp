// ContentPicture is a view's backing store: it redraws only dirty areas.
#pragma once

#include <optional>

#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/DeepSurface.hpp"
#include "desk/canvas/DrawingResources.hpp"

namespace orvane::desk {

class ContentPicture {
 public:
  /// The drawing of an up-to-date host at `scale` pixels per point, on a clear ground; null when
  /// the host has no size. A change of scale or size redraws everything.
  const DeepSurface* of(ui::ViewHost& host, double scale, DrawingResources& resources);

  /// The number of areas drawn so far.
  [[nodiscard]] long long drawnAreaCount() const { return drawnAreaCount_; }

 private:
  void draw(const ui::ViewHost& host, const ui::Rect& area, DrawingResources& resources);

  std::optional<DeepSurface> surface_;
  ui::Size size_;
  double scale_ = 0;
  long long drawnAreaCount_ = 0;
};

}  // namespace orvane::desk
