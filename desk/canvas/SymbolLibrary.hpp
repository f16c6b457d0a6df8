// The symbols of desk/symbols as coverage pictures: by name, size, weight and place in the pixel.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Size.hpp"
#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/MaskCache.hpp"
#include "desk/canvas/PixelPlacement.hpp"

namespace orvane::desk {

class SymbolLibrary {
 public:
  /// True when there is a drawing of that name.
  static bool contains(const std::string& name);

  /// The size in points that a symbol takes in a layout, with the middle of a capital letter at
  /// half its height; empty for an unknown name.
  std::optional<ui::Size> size(const std::string& name, const ui::Font& font);

  /// The coverage of the symbol with its centre on the placement's anchor; without a surface for
  /// an unknown name or a size that is not above zero.
  Mask makeMask(const std::string& name, const ui::Font& font, const PixelPlacement& placement);

 private:
  struct Drawing {
    ObjectPointer<RsvgHandle> handle;
    double unitWidth = 0;
    double unitHeight = 0;
  };

  /// The parsed drawing with the strokes of the weight; null for an unknown name.
  const Drawing* drawing(const std::string& name, ui::Weight weight);

  std::map<std::pair<std::string, ui::Weight>, Drawing> drawings_;
};

}  // namespace orvane::desk
