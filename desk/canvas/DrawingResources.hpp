// The resources that all canvases of a desk share: pictures, symbols, the text shaper, cached
// masks.
#pragma once

#include <set>
#include <string>

#include "Orvane/ui/draw/ImageSource.hpp"
#include "desk/canvas/CoverageRuns.hpp"
#include "desk/canvas/ImageLibrary.hpp"
#include "desk/canvas/MaskCache.hpp"
#include "desk/canvas/SymbolLibrary.hpp"
#include "desk/canvas/TextShaper.hpp"

namespace orvane::desk {

struct DrawingResources {
  ImageLibrary images;
  SymbolLibrary symbols;
  TextShaper shaper;
  MaskCache masks{std::size_t{48} << 20U};
  CoverageCache coverage;
  /// The unknown images and symbols that were drawn; tests expect none.
  std::set<std::string> missingNames;

  /// The sizes of the pictures and symbols, for layout. It refers to this object, which must
  /// outlive it.
  ui::ImageSource imageSource();
};

}  // namespace orvane::desk
