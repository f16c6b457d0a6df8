// GlassCache caches blurred backgrounds.
#pragma once

#include <cstddef>
#include <list>

#include "desk/canvas/CairoPointers.hpp"

namespace orvane::showroom {

class GlassCache {
 public:
  /// Keeps about `byteLimit` bytes of pixels, and drops the least recently used.
  explicit GlassCache(std::size_t byteLimit = std::size_t{96} << 20U) : byteLimit_(byteLimit) {}

  /// The picture, an RGB24 or ARGB32 image surface, blurred with a standard deviation in pixels;
  /// its edge pixels extend outwards. Pictures are compared by their pixels. The result lives until
  /// the next call.
  cairo_surface_t* blurred(desk::SurfacePointer picture, double sigma);

  /// The number of blurs, which excludes cache hits.
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
  /// Most recently used first.
  std::list<Kept> kept_;
};

}  // namespace orvane::showroom
