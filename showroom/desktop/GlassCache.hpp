// GlassCache keeps what was blurred behind glass, so that the same background is not blurred again
// at every drawing.
#pragma once

#include <cstddef>
#include <list>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::showroom {

class GlassCache {
 public:
  /// Keeps about so many bytes of pixels; beyond them what was not asked for the longest is
  /// dropped.
  explicit GlassCache(std::size_t byteLimit = std::size_t{96} << 20U) : byteLimit_(byteLimit) {}

  /// The picture, an RGB24 or ARGB32 image surface, blurred by a standard deviation in pixels as if
  /// it went on beyond its edges. Pictures are compared pixel by pixel. The surface lives until the
  /// next call.
  cairo_surface_t* blurred(desk::SurfacePointer picture, double sigma);

  /// How often something was blurred.
  [[nodiscard]] long long blurCount() const { return blurCount_; }
  [[nodiscard]] std::size_t count() const { return kept_.size(); }

 private:
  struct Kept {
    desk::SurfacePointer picture;
    double sigma;
    desk::SurfacePointer blurred;
    std::size_t bytes;
  };

  std::size_t byteLimit_;
  std::size_t bytes_ = 0;
  long long blurCount_ = 0;
  /// What was asked for last comes first.
  std::list<Kept> kept_;
};

}  // namespace orvane::showroom
