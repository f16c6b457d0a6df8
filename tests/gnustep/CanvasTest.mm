// Tests of what the canvas draws with Core Graphics, pixel by pixel.
#include <cmath>
#include <cstddef>
#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include "macos/canvas/QuartzCanvas.hpp"
#include "tests/contract/ContractFixture.hpp"
#include "tests/gnustep/shim/DrawingContext.hpp"

namespace orvane {
namespace {

constexpr int side = 80;
const ui::Paint black = ui::Paint::solid({0, 0, 0, 1});

/// A white image with a canvas whose y points downwards.
class Canvas : public ContractFixture {
 protected:
  Canvas() {
    cairo_t* const cairo = cairo_create(surface_.get());
    cairo_set_source_rgb(cairo, 1, 1, 1);
    cairo_paint(cairo);
    cairo_destroy(cairo);
    CGContextTranslateCTM(reference(), 0, side);
    CGContextScaleCTM(reference(), 1, -1);
  }

  CGContextRef reference() { return (__bridge CGContextRef)context_; }

  /// From 0 for black to 255 for white.
  int brightness(int x, int y) {
    cairo_surface_flush(surface_.get());
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface_.get());
    return cairo_image_surface_get_data(surface_.get())[y * stride + 4 * x + 1];
  }

  /// The smallest rectangle with all pixels that are not white; none if all are white.
  std::optional<ui::Rect> drawnArea() {
    std::optional<ui::Rect> area;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        if (brightness(x, y) < 255) {
          const ui::Rect pixel{static_cast<double>(x), static_cast<double>(y), 1, 1};
          area = area ? area->united(pixel) : pixel;
        }
      }
    }
    return area;
  }

 private:
  std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface_{
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side), cairo_surface_destroy};
  OrvaneShimContext* context_ = [[OrvaneShimContext alloc] initWithSurface:surface_.get()];
};

TEST_F(Canvas, NothingIsDrawnForWhatIsEmptyOrUnknown) {
  appkit::QuartzCanvas canvas(reference(), 1);
  const auto empty = ui::Shape::rectangle({5, 5, 0, 0});
  canvas.fill(empty, black);
  canvas.stroke(empty, black, 2);
  canvas.stroke(ui::Shape::rectangle({5, 5, 10, 10}), black, 0);
  canvas.shadow(empty, {.color = {0, 0, 0, 1}, .radius = 4, .offset = {}});
  canvas.text("\xFF", ui::Font::body(), {0, 0, 0, 1}, {5, 15});
  canvas.symbol("no such symbol", ui::Font::body(), {0, 0, 0, 1}, {5, 5, 10, 10});
  EXPECT_EQ(drawnArea(), std::nullopt);
}

TEST_F(Canvas, NothingIsDrawnInAnEmptyClip) {
  appkit::QuartzCanvas canvas(reference(), 1);
  const auto shape = ui::Shape::rectangle({5, 5, 10, 10});
  canvas.save();
  canvas.clip(ui::Shape::rectangle({5, 5, 0, 0}));
  canvas.fill(shape, black);
  canvas.restore();
  EXPECT_EQ(drawnArea(), std::nullopt);
  canvas.fill(shape, black);
  EXPECT_EQ(drawnArea(), (ui::Rect{5, 5, 10, 10}));
}

TEST_F(Canvas, TheShapeThatCastsAShadowIsNotDrawn) {
  appkit::QuartzCanvas canvas(reference(), 1);
  const auto card = ui::Shape::roundedRectangle({20.4, 20.4, 39.3, 39.3}, 10);
  canvas.shadow(card, {.color = {1, 1, 1, 0.5}, .radius = 4, .offset = {0, 3}});
  EXPECT_EQ(drawnArea(), std::nullopt);
}

TEST_F(Canvas, AShadowIsMovedByItsOffset) {
  appkit::QuartzCanvas canvas(reference(), 1);
  const auto card = ui::Shape::rectangle({10, 10, 20, 20});
  canvas.shadow(card, {.color = {0, 0, 0, 1}, .radius = 0, .offset = {25, 30}});
  EXPECT_EQ(drawnArea(), (ui::Rect{35, 40, 20, 20}));
}

TEST_F(Canvas, TheOffsetOfAShadowIsScaledWithTheDrawing) {
  appkit::QuartzCanvas canvas(reference(), 1);
  canvas.transform({.scale = 2, .x = 4, .y = 6});
  const auto card = ui::Shape::rectangle({5, 5, 10, 10});
  canvas.shadow(card, {.color = {0, 0, 0, 1}, .radius = 0, .offset = {12, 15}});
  EXPECT_EQ(drawnArea(), (ui::Rect{38, 46, 20, 20}));
}

TEST_F(Canvas, AShadowIsCutByItsShapeAndByTheClip) {
  appkit::QuartzCanvas canvas(reference(), 1);
  canvas.clip(ui::Shape::rectangle({0, 0, 60, 32}));
  const auto card = ui::Shape::rectangle({10, 10, 20, 20});
  canvas.shadow(card, {.color = {0, 0, 0, 1}, .radius = 0, .offset = {5, 5}});
  EXPECT_EQ(drawnArea(), (ui::Rect{15, 15, 20, 17}));
  EXPECT_EQ(brightness(29, 29), 255);
  EXPECT_EQ(brightness(30, 29), 0);
  EXPECT_EQ(brightness(29, 30), 0);
}

}  // namespace
}  // namespace orvane
