// Where a mask is made and put: how many pixels a point has, and which part of a pixel the anchor
// (a text's baseline start, a symbol's centre) falls on.
#pragma once

namespace orvane::desk {

struct PixelPlacement {
  /// Pixels per point across and down.
  double scaleX = 1;
  double scaleY = 1;
  /// The whole pixel that holds the anchor, and the rest, from 0 up to 1.
  int pixelX = 0;
  int pixelY = 0;
  double phaseX = 0;
  double phaseY = 0;
};

}  // namespace orvane::desk
