// Masks: the coverage of a line of text, a symbol or a blurred shadow. They have no colour, so a
// change of the appearance does not invalidate cached ones.
#pragma once

#include "desk/canvas/Cache.hpp"
#include "desk/canvas/CairoPointers.hpp"

namespace orvane::desk {

/// An A8 surface and the position of its top left pixel relative to the anchor. A mask without a
/// surface covers nothing.
struct Mask {
  SurfacePointer surface;
  int x = 0;
  int y = 0;
};

[[nodiscard]] inline std::size_t cacheWeight(const Mask& mask) {
  return cacheWeight(mask.surface);
}

/// The position of a mask's anchor: the start of a text's baseline, the centre of a symbol.
struct PixelPlacement {
  /// Pixels per point.
  double scale = 1;
  /// The pixel that contains the anchor, and the fraction, from 0 to 1 (exclusive).
  int pixelX = 0;
  int pixelY = 0;
  double phaseX = 0;
  double phaseY = 0;
};

}  // namespace orvane::desk
