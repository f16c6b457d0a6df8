// What all canvases of a desk share: pictures, symbols, the text shaper, and the masks made so far.
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
  /// Names of images and symbols that were asked for in vain, for tests to be empty.
  std::set<std::string> missingNames;

  /// The sizes of the pictures and symbols, for layout. It refers to this object, which has to
  /// outlive it.
  ui::ImageSource imageSource();
};

}  // namespace orvane::desk
