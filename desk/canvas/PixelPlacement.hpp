// The position of a mask: pixels per point, and the pixel and subpixel position of its anchor (the
// start of a text's baseline, the centre of a symbol).
#pragma once

namespace orvane::desk {

struct PixelPlacement {
  /// Pixels per point, horizontally and vertically.
  double scaleX = 1;
  double scaleY = 1;
  /// The pixel that contains the anchor, and the fraction, from 0 to 1 (exclusive).
  int pixelX = 0;
  int pixelY = 0;
  double phaseX = 0;
  double phaseY = 0;
};

}  // namespace orvane::desk
