// Paints the sheets of the gallery: the same components over several wallpapers, one row for each
// language, with captions.
#pragma once

#include <vector>

#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/machine/Machine.hpp"
#include "showroom/gallery/GallerySheet.hpp"

namespace orvane::desk {

struct SheetStyle {
  bool isDark = false;
  bool increasesContrast = false;
  /// Pixels per point.
  double scale = 2;
  /// Whole panels are shown over the desk's own alone.
  std::vector<Appearance::Wallpaper> wallpapers{
      Appearance::Wallpaper::white, Appearance::Wallpaper::black, Appearance::Wallpaper::busy};
  std::vector<OrvaneLanguage> languages{OrvaneLanguage::english, OrvaneLanguage::chinese};
};

/// The whole sheet. The machine's stored language is another afterwards. Equal arguments give equal
/// pixels.
[[nodiscard]] SurfacePointer paintSheet(const GallerySheet& sheet, const SheetStyle& style,
                                        Machine& machine, DrawingResources& resources);

}  // namespace orvane::desk
