// Paints the sheets of the gallery: the same components over several wallpapers, one row for each
// language, with captions.
#pragma once

#include <vector>

#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/machine/Machine.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::showroom {

struct SheetStyle {
  bool isDark = false;
  bool increasesContrast = false;
  /// Pixels per point.
  double scale = 2;
  /// Whole panels are shown over the desk's own alone.
  std::vector<desk::Appearance::Wallpaper> wallpapers{desk::Appearance::Wallpaper::white,
                                                      desk::Appearance::Wallpaper::black,
                                                      desk::Appearance::Wallpaper::busy};
  std::vector<OrvaneLanguage> languages{OrvaneLanguage::english, OrvaneLanguage::chinese};
};

/// The whole sheet. The machine's stored language is another afterwards. Equal arguments give equal
/// pixels.
[[nodiscard]] desk::SurfacePointer paintSheet(const GallerySheet& sheet, const SheetStyle& style,
                                              desk::Machine& machine,
                                              desk::DrawingResources& resources);

}  // namespace orvane::showroom
