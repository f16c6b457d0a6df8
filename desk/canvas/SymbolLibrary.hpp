// The symbols of desk/symbols as coverage masks, by name, size, weight and subpixel position.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "desk/canvas/Mask.hpp"

namespace orvane::desk {

class SymbolLibrary {
 public:
  /// Whether there is a drawing with that name.
  static bool contains(const std::string& name);

  /// The layout size in points, with the middle of a capital letter at half the height; none for an
  /// unknown name.
  std::optional<ui::Size> size(const std::string& name, const ui::Font& font);

  /// The coverage of the symbol with its centre at the placement's anchor; without a surface for an
  /// unknown name or a size that is not positive.
  Mask makeMask(const std::string& name, const ui::Font& font, const PixelPlacement& placement);

 private:
  struct Drawing {
    ObjectPointer<RsvgHandle> handle;
    double unitWidth = 0;
    double unitHeight = 0;
  };

  /// The parsed drawing with the stroke widths of the weight; null for an unknown name.
  const Drawing* drawing(const std::string& name, ui::Weight weight);

  std::map<std::pair<std::string, ui::Weight>, Drawing> drawings_;
};

}  // namespace orvane::desk
