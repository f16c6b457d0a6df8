// WallpaperLayer paints the chosen wallpaper and caches it.
#pragma once

#include <map>
#include <tuple>

#include "desk/canvas/CairoPointers.hpp"
#include "showroom/desktop/DesktopLayer.hpp"

namespace orvane::showroom {

class WallpaperLayer : public DesktopLayer {
 public:
  void paint(const DesktopScene& scene, const DisplayCanvas& display) override;

 private:
  /// The wallpaper, whether it is dark, its width and height in pixels.
  using Key = std::tuple<desk::Appearance::Wallpaper, bool, int, int>;
  std::map<Key, desk::SurfacePointer> kept_;
};

}  // namespace orvane::showroom
