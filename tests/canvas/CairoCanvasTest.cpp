// The pixels of drawings with the canvas.
#include <cstdlib>

#include <gtest/gtest.h>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/canvas/PixelFixture.hpp"

namespace orvane::desk {
namespace {

using ui::Paint;
using ui::Rect;
using ui::Shape;
using ui::Transform;

class CairoCanvasTest : public PixelFixture {};

TEST_F(CairoCanvasTest, AFilledRectangleCoversExactlyItsPixelsAtEveryScale) {
  for (const int scale : {1, 2, 3}) {
    begin(10, 8, scale).fill(Shape::rectangle({2, 3, 5, 4}), Paint::solid(red));
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) {
        const bool inside = x >= 2 * scale && x < 7 * scale && y >= 3 * scale && y < 7 * scale;
        ASSERT_EQ(at(x, y), inside ? fullRed : nothing) << x << "," << y << " at " << scale;
      }
    }
  }
}

TEST_F(CairoCanvasTest, AnEmptyPaintPaintsNothing) {
  begin(4, 4).fill(Shape::rectangle({0, 0, 4, 4}), Paint{});
  canvas->stroke(Shape::rectangle({1, 1, 2, 2}), Paint{}, 1);
  EXPECT_EQ(ink(), 0);
}

TEST_F(CairoCanvasTest, AGradientRunsFromItsFirstStopToItsLast) {
  Paint paint;
  paint.stops = {{{1, 0, 0, 1}, 0}, {{0, 1, 0, 1}, 0.5}, {{0, 0, 1, 1}, 1}};
  paint.start = {0, 10};
  paint.end = {0, 110};
  begin(1, 120).fill(Shape::rectangle({0, 0, 1, 120}), paint);
  EXPECT_EQ(at(0, 0), fullRed);
  EXPECT_EQ(at(0, 119), (Pixel{0, 0, 255, 255}));
  EXPECT_GT(at(0, 60).green, 248);
  EXPECT_NEAR(at(0, 35).red, 128, 4);
  EXPECT_NEAR(at(0, 35).green, 128, 4);
  EXPECT_EQ(at(0, 35).blue, 0);
}

TEST_F(CairoCanvasTest, AGradientDownAScaledShapeIsTheSameInEveryColumnAndWithinAnyClip) {
  Paint paint;
  paint.stops = {{{1, 1, 1, 0.34}, 0}, {{0, 0.5, 1, 0.06}, 0.5}, {{1, 0, 0, 1}, 1}};
  paint.start = {7, 2};
  paint.end = {7, 19};
  const Shape shape = Shape::rectangle({3, 2, 14, 17});
  begin(20, 22, 2).transform(ui::Transform::scaling(0.97, {0, 0}));
  canvas->fill(shape, paint);
  // Slightly off the vertical, the gradient is drawn by cairo.
  const SurfacePointer whole = std::move(surface);
  paint.end.x += 1.0e-9;
  begin(20, 22, 2).transform(ui::Transform::scaling(0.97, {0, 0}));
  canvas->fill(shape, paint);
  for (int y = 0; y < height(); ++y) {
    for (int x = 0; x < width(); ++x) {
      const Pixel one = pixelAt(whole.get(), x, y);
      const Pixel other = at(x, y);
      EXPECT_NEAR(one.red, other.red, 1) << x << ", " << y;
      EXPECT_NEAR(one.alpha, other.alpha, 1) << x << ", " << y;
    }
  }
  paint.end.x = 7;
  begin(20, 22, 2).transform(ui::Transform::scaling(0.97, {0, 0}));
  canvas->clip(Shape::rectangle({0, 9, 20, 5}));
  canvas->fill(shape, paint);
  EXPECT_EQ(at(20, 22), pixelAt(whole.get(), 20, 22));
  EXPECT_EQ(at(20, 10), nothing);
}

TEST_F(CairoCanvasTest, AGradientWithoutLengthIsItsLastColor) {
  Paint paint;
  paint.stops = {{black, 0}, {red, 1}};
  begin(2, 2).fill(Shape::rectangle({0, 0, 2, 2}), paint);
  EXPECT_EQ(at(1, 1), fullRed);
}

TEST_F(CairoCanvasTest, RestoreEndsAClipAndATransform) {
  begin(20, 4).save();
  canvas->clip(Shape::rectangle({0, 0, 4, 4}));
  canvas->transform(Transform::translation({2, 0}));
  canvas->fill(Shape::rectangle({0, 0, 10, 4}), Paint::solid(red));
  canvas->restore();
  EXPECT_EQ(at(1, 1), nothing);
  EXPECT_EQ(at(2, 1), fullRed);
  EXPECT_EQ(at(4, 1), nothing);
  canvas->fill(Shape::rectangle({10, 0, 1, 4}), Paint::solid(black));
  EXPECT_EQ(at(10, 1), fullBlack);
}

TEST_F(CairoCanvasTest, AScaleOfZeroDrawsNothingUntilItIsRestored) {
  begin(8, 8).save();
  canvas->transform(Transform::scaling(0, {4, 4}));
  canvas->fill(Shape::rectangle({0, 0, 8, 8}), Paint::solid(red));
  canvas->text("x", ui::Font::body(), black, {0, 4});
  canvas->symbol("lock", ui::Font::body(), black, {0, 0, 8, 8});
  canvas->beginLayer({0, 0, 8, 8}, 1, ui::PaintShadow{black, 4, {}});
  canvas->fill(Shape::rectangle({0, 0, 8, 8}), Paint::solid(red));
  canvas->endLayer();
  canvas->restore();
  EXPECT_EQ(ink(), 0);
  canvas->fill(Shape::rectangle({0, 0, 1, 1}), Paint::solid(red));
  EXPECT_EQ(at(0, 0), fullRed);
}

TEST_F(CairoCanvasTest, AShadowIsSymmetricAndLeavesItsShapeClear) {
  begin(60, 60).shadow(Shape::roundedRectangle({20, 20, 20, 20}, 5), {{0, 0, 0, 0.5}, 8, {}});
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      ASSERT_NEAR(at(x, y).alpha, at(59 - x, y).alpha, 1) << x << "," << y;
      ASSERT_NEAR(at(x, y).alpha, at(x, 59 - y).alpha, 1) << x << "," << y;
      ASSERT_NEAR(at(x, y).alpha, at(y, x).alpha, 1) << x << "," << y;
    }
  }
  EXPECT_EQ(at(30, 30), nothing);
  EXPECT_EQ(at(22, 30), nothing);
  EXPECT_GT(at(19, 30).alpha, at(15, 30).alpha);
  EXPECT_GT(at(15, 30).alpha, at(12, 30).alpha);
  EXPECT_EQ(at(2, 30), nothing);
}

TEST_F(CairoCanvasTest, AShadowWithoutBlurIsTheShapeAtItsOffset) {
  begin(20, 20).shadow(Shape::rectangle({4, 4, 6, 6}), {red, 0, {3, 5}});
  EXPECT_EQ(at(8, 12), fullRed);
  EXPECT_EQ(at(12, 14), fullRed);
  EXPECT_EQ(at(13, 14), nothing);
  EXPECT_EQ(at(8, 9), nothing);
}

TEST_F(CairoCanvasTest, AShadowFromTheCacheEqualsTheFirstOne) {
  const auto draw = [&](double x) {
    begin(120, 60).shadow(Shape::roundedRectangle({x, 20, 20, 20}, 5), {black, 10, {0, 3}});
  };
  draw(20);
  const std::size_t masks = resources.masks.count();
  std::vector<Pixel> first;
  for (int x = 0; x < 60; ++x) {
    first.push_back(at(x, 17));
  }
  draw(50);
  EXPECT_EQ(resources.masks.count(), masks);
  for (int x = 0; x < 60; ++x) {
    EXPECT_EQ(at(x + 30, 17), first[static_cast<std::size_t>(x)]);
  }
}

TEST_F(CairoCanvasTest, GroupOpacityDoesNotAddUpWhereShapesOverlap) {
  const Shape left = Shape::rectangle({0, 0, 6, 4});
  const Shape right = Shape::rectangle({4, 0, 6, 4});
  begin(10, 4).beginLayer({0, 0, 10, 4}, 0.5, std::nullopt);
  canvas->fill(left, Paint::solid(black));
  canvas->fill(right, Paint::solid(black));
  canvas->endLayer();
  EXPECT_NEAR(at(1, 1).alpha, 128, 1);
  EXPECT_EQ(at(5, 1), at(1, 1));

  begin(10, 4).fill(left, Paint::solid({0, 0, 0, 0.5}));
  canvas->fill(right, Paint::solid({0, 0, 0, 0.5}));
  EXPECT_NEAR(at(5, 1).alpha, 191, 1);
}

TEST_F(CairoCanvasTest, ALayerKeepsTheTransformAndTheClip) {
  begin(40, 40, 2).save();
  canvas->clip(Shape::rectangle({0, 0, 20, 40}));
  canvas->transform(Transform::translation({10, 5}));
  canvas->beginLayer({3, 4, 20, 6}, 1, std::nullopt);
  canvas->beginLayer({3, 4, 20, 6}, 1, std::nullopt);
  canvas->fill(Shape::rectangle({3, 4, 20, 6}), Paint::solid(red));
  canvas->endLayer();
  canvas->endLayer();
  canvas->restore();
  EXPECT_EQ(at(25, 20), nothing);
  EXPECT_EQ(at(26, 18), fullRed);
  EXPECT_EQ(at(39, 29), fullRed);
  EXPECT_EQ(at(40, 29), nothing);
  EXPECT_EQ(at(30, 30), nothing);
  EXPECT_EQ(at(30, 17), nothing);
}

TEST_F(CairoCanvasTest, TheShadowOfALayerIsThatOfTheWholePictureAndFadesWithIt) {
  begin(40, 20).beginLayer({10, 4, 10, 4}, 0.5, ui::PaintShadow{red, 0, {0, 6}});
  canvas->fill(Shape::rectangle({10, 4, 6, 4}), Paint::solid(black));
  canvas->fill(Shape::rectangle({14, 4, 6, 4}), Paint::solid(black));
  canvas->endLayer();
  EXPECT_NEAR(at(15, 5).alpha, 128, 1);
  EXPECT_EQ(at(15, 5).red, 0);
  EXPECT_NEAR(at(15, 11).red, 128, 1);
  EXPECT_EQ(at(11, 11), at(15, 11));
  EXPECT_EQ(at(15, 9), nothing);
  EXPECT_EQ(at(21, 11), nothing);
}

TEST_F(CairoCanvasTest, ALayersShadowIsBlurredOnceForEachPicture) {
  const auto draw = [&](double width) {
    begin(40, 30).beginLayer({10, 8, 20, 10}, 1, ui::PaintShadow{red, 6, {0, 4}});
    canvas->fill(Shape::rectangle({10, 8, width, 10}), Paint::solid(white));
    canvas->endLayer();
    return contentOf(surface.get());
  };
  const auto first = draw(12);
  const std::size_t masks = resources.masks.count();
  EXPECT_EQ(draw(12), first);
  EXPECT_EQ(resources.masks.count(), masks);
  EXPECT_NE(draw(13), first);
  EXPECT_EQ(resources.masks.count(), masks + 1);
  EXPECT_EQ(draw(12), first);
}

TEST_F(CairoCanvasTest, ALayerOutsideOfTheClipCastsItsShadowIntoIt) {
  begin(30, 10).save();
  canvas->clip(Shape::rectangle({15, 0, 15, 10}));
  canvas->beginLayer({0, 0, 10, 10}, 1, ui::PaintShadow{red, 0, {15, 0}});
  canvas->fill(Shape::rectangle({0, 0, 10, 10}), Paint::solid(black));
  canvas->endLayer();
  canvas->restore();
  EXPECT_EQ(at(20, 5), fullRed);
  EXPECT_EQ(at(5, 5), nothing);
}

TEST_F(CairoCanvasTest, TheBlurOfAShadowFollowsTheScale) {
  begin(40, 40).shadow(Shape::rectangle({10, 10, 20, 20}), {black, 10, {}});
  const int once = at(5, 20).alpha;
  begin(40, 40, 2).shadow(Shape::rectangle({10, 10, 20, 20}), {black, 10, {}});
  EXPECT_NEAR((at(10, 40).alpha + at(11, 40).alpha) / 2.0, once, 2);
}

TEST_F(CairoCanvasTest, UnknownNamesPaintNothingAndAreRecorded) {
  begin(20, 20).symbol("no.such.symbol", ui::Font::body(), black, {0, 0, 20, 20});
  canvas->image("NoSuchImage", {0, 0, 20, 20});
  EXPECT_EQ(ink(), 0);
  EXPECT_EQ(resources.missingNames, (std::set<std::string>{"NoSuchImage", "no.such.symbol"}));
}

TEST_F(CairoCanvasTest, ASymbolIsCenteredInItsRectangleInItsColor) {
  const ui::Font font{24, ui::Weight::bold};
  begin(40, 40, 2).symbol("minus", font, red, {3, 5, 22, 28});
  // The bar is 16 units of the grid long, has round ends and is 3 units thick; at 24 points a
  // unit is a point. Its middle is at (14, 19).
  for (const int x : {12, 28, 43}) {
    EXPECT_EQ(at(x, 34), nothing);
    EXPECT_EQ(at(x, 35), fullRed);
    EXPECT_EQ(at(x, 40), fullRed);
    EXPECT_EQ(at(x, 41), nothing);
  }
  EXPECT_EQ(at(8, 38), nothing);
  EXPECT_GT(at(9, 38).alpha, 127);
  EXPECT_GT(at(46, 38).alpha, 127);
  EXPECT_EQ(at(47, 38), nothing);
}

}  // namespace
}  // namespace orvane::desk
