// The blur compared with a Gaussian, and its bounds.
#include <algorithm>
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "tests/support/Pixels.hpp"

namespace orvane::desk {
namespace {

SurfacePointer coverage(int width, int height) {
  return imageSurface(width, height, CAIRO_FORMAT_A8);
}

void fillCoverage(cairo_surface_t* surface, int left, int top, int right, int bottom, int value) {
  unsigned char* data = cairo_image_surface_get_data(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  for (int y = top; y < bottom; ++y) {
    std::memset(data + y * stride + left, value, static_cast<std::size_t>(right - left));
  }
  cairo_surface_mark_dirty(surface);
}

double total(cairo_surface_t* surface) {
  double sum = 0;
  for (int y = 0; y < cairo_image_surface_get_height(surface); ++y) {
    for (int x = 0; x < cairo_image_surface_get_width(surface); ++x) {
      sum += coverageAt(surface, x, y);
    }
  }
  return sum;
}

TEST(BlurTest, AnEdgeBecomesTheIntegralOfAGaussian) {
  for (const double sigma : {1.5, 3.0, 4.3, 7.9, 8.1, 15.0, 20.0}) {
    const SurfacePointer across = coverage(160, 3);
    const SurfacePointer down = coverage(3, 160);
    fillCoverage(across.get(), 80, 0, 160, 3, 255);
    fillCoverage(down.get(), 0, 80, 3, 160, 255);
    blurSurface(across.get(), sigma, BlurEdge::extended);
    blurSurface(down.get(), sigma, BlurEdge::extended);
    for (int place = 0; place < 160; ++place) {
      const double distance = place + 0.5 - 80;
      const double expected = 255 * 0.5 * (1 + std::erf(distance / sigma / std::sqrt(2.0)));
      ASSERT_NEAR(coverageAt(across.get(), place, 1), expected, 4) << place << " for " << sigma;
      ASSERT_NEAR(coverageAt(down.get(), 1, place), expected, 4) << place << " for " << sigma;
    }
    EXPECT_NEAR(coverageAt(down.get(), 1, 79) + coverageAt(down.get(), 1, 80), 255, 1) << sigma;
    EXPECT_NEAR(coverageAt(across.get(), 79, 1) + coverageAt(across.get(), 80, 1), 255, 1) << sigma;
  }
}

TEST(BlurTest, TheStandardDeviationIsTheRequestedOne) {
  for (const double sigma : {3.0, 7.5, 9.0, 13.0}) {
    constexpr int barWidth = 40;
    constexpr int width = 200;
    const SurfacePointer surface = coverage(width, 1);
    fillCoverage(surface.get(), (width - barWidth) / 2, 0, (width + barWidth) / 2, 1, 255);
    blurSurface(surface.get(), sigma, BlurEdge::extended);
    double ink = 0;
    double moment = 0;
    for (int x = 0; x < width; ++x) {
      const double distance = x + 0.5 - width / 2.0;
      ink += coverageAt(surface.get(), x, 0);
      moment += coverageAt(surface.get(), x, 0) * distance * distance;
    }
    // The variance is the sum of the variances of the bar and the blur.
    const double spread = moment / ink - (barWidth * barWidth - 1) / 12.0;
    EXPECT_NEAR(spread, sigma * sigma, 0.008 * sigma * sigma) << sigma;
  }
}

TEST(BlurTest, NothingIsTouchedBeyondTheReach) {
  for (const double sigma : {0.4, 1.0, 2.5, 6.0, 9.0, 12.0}) {
    const SurfacePointer surface = coverage(101, 101);
    fillCoverage(surface.get(), 50, 50, 51, 51, 255);
    blurSurface(surface.get(), sigma, BlurEdge::transparent);
    const int reach = blurReach(sigma);
    for (int x = 0; x < 101; ++x) {
      if (std::abs(x - 50) > reach) {
        ASSERT_EQ(coverageAt(surface.get(), x, 50), 0);
      }
    }
  }
}

TEST(BlurTest, NoBlurLeavesThePictureAsItIs) {
  const SurfacePointer surface = coverage(9, 9);
  fillCoverage(surface.get(), 4, 4, 5, 5, 255);
  for (const double sigma : {0.0, -3.0, std::nan("")}) {
    blurSurface(surface.get(), sigma, BlurEdge::transparent);
  }
  EXPECT_EQ(total(surface.get()), 255);
  EXPECT_EQ(coverageAt(surface.get(), 4, 4), 255);
}

TEST(BlurTest, AGrowingRadiusLowersThePeakWithoutSteps) {
  int before = 255;
  for (int step = 1; step <= 60; ++step) {
    const SurfacePointer surface = coverage(81, 81);
    fillCoverage(surface.get(), 30, 30, 51, 51, 255);
    blurSurface(surface.get(), step * 0.1, BlurEdge::transparent);
    const int peak = coverageAt(surface.get(), 29, 40);
    EXPECT_LE(std::abs(peak - before), step == 1 ? 255 : 12) << step;
    before = peak;
  }
}

RC_GTEST_PROP(BlurProperty, KeepsTheSumOfTheCoverageAndSymmetry, ()) {
  const int width = *rc::gen::inRange(1, 20);
  const int height = *rc::gen::inRange(1, 20);
  const double sigma = *rc::gen::inRange(5, 60) / 10.0;
  const int margin = blurReach(sigma);
  const int fullWidth = width + 2 * margin;
  const int fullHeight = height + 2 * margin;
  const SurfacePointer surface = coverage(fullWidth, fullHeight);
  fillCoverage(surface.get(), margin, margin, margin + width, margin + height, 255);
  const double inkBefore = total(surface.get());
  blurSurface(surface.get(), sigma, BlurEdge::transparent);
  // Each of six passes rounds every pixel by at most a half.
  const double rounding = 3.0 * fullWidth * fullHeight;
  RC_ASSERT(std::abs(total(surface.get()) - inkBefore) <= rounding);
  for (int y = 0; y < fullHeight; ++y) {
    for (int x = 0; x < fullWidth; ++x) {
      RC_ASSERT(coverageAt(surface.get(), x, y) == coverageAt(surface.get(), fullWidth - 1 - x, y));
      RC_ASSERT(coverageAt(surface.get(), x, y) ==
                coverageAt(surface.get(), x, fullHeight - 1 - y));
    }
  }
}

}  // namespace
}  // namespace orvane::desk
