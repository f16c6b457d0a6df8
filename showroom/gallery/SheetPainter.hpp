// Paints a sheet of the gallery: the components over several wallpapers, in each language, with
// captions.
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
  /// Ignored for whole panels, which use the default wallpaper.
  std::vector<desk::Appearance::Wallpaper> wallpapers{desk::Appearance::Wallpaper::white,
                                                      desk::Appearance::Wallpaper::black,
                                                      desk::Appearance::Wallpaper::busy};
  std::vector<OrvaneLanguage> languages{OrvaneLanguage::english, OrvaneLanguage::chinese};
};

/// Paints the whole sheet, and changes the machine's stored language. Equal arguments give equal
/// pixels.
[[nodiscard]] desk::SurfacePointer paintSheet(const GallerySheet& sheet, const SheetStyle& style,
                                              desk::Machine& machine,
                                              desk::DrawingResources& resources);

}  // namespace orvane::showroom
