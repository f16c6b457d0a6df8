// ContentPicture keeps what a view has drawn, and draws again only what has changed since.
#pragma once

#include <optional>

#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/layout/Size.hpp"
#include "desk/canvas/DeepSurface.hpp"
#include "desk/canvas/DrawingResources.hpp"

namespace orvane::desk {

class ContentPicture {
 public:
  /// The drawing of an up-to-date host at `scale` pixels per point, on nothing; null when the host
  /// has no size. Another scale or size than before draws everything anew.
  const DeepSurface* of(ui::ViewHost& host, double scale, DrawingResources& resources);

  /// How many areas were drawn so far.
  [[nodiscard]] long long drawnAreas() const { return drawnAreas_; }

 private:
  void draw(const ui::ViewHost& host, const ui::Rect& area, DrawingResources& resources);

  std::optional<DeepSurface> surface_;
  ui::Size size_;
  double scale_ = 0;
  long long drawnAreas_ = 0;
};

}  // namespace orvane::desk
