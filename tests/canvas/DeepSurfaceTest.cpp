// A picture of sixteen bits looks like one of eight bits, but is rounded once.
#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "desk/canvas/DeepSurface.hpp"
#include "tests/canvas/PixelFixture.hpp"
#include "tests/support/KeptPicture.hpp"

namespace orvane::desk {
namespace {

using ui::Paint;
using ui::Rect;
using ui::Rgba;
using ui::Shape;

using Drawing = std::function<void(CairoCanvas&)>;

constexpr int side = 120;
constexpr double scale = 2;

Paint veil(ui::Point start, ui::Point end) {
  return {{{{1, 1, 1, 0.4}, 0}, {{0.1, 0.4, 1, 0.1}, 0.6}, {{0, 0, 0, 0.3}, 1}}, start, end};
}

class DeepSurfaceTest : public PixelFixture {
 protected:
  static SurfacePointer ground(const Rgba& color) { return filledSurface(side, side, color); }

  DeepSurface painted(const Drawing& draw) {
    DeepSurface deep(side, side);
    CairoCanvas onDeep(deep, scale, resources);
    draw(onDeep);
    return deep;
  }

  SurfacePointer shownOver(const Rgba& color, const DeepSurface& deep) {
    SurfacePointer target = ground(color);
    CairoCanvas(target.get(), scale, resources).picture(deep, {0, 0});
    return target;
  }

  /// Each kind of drawing.
  static std::vector<std::pair<std::string, Drawing>> plainDrawings() {
    const Shape card = Shape::roundedRectangle({8, 6, 40, 44}, 9);
    const Paint solid = Paint::solid({0.9, 0.3, 0.1, 0.6});
    std::vector<std::pair<std::string, Drawing>> plain{
        {"solid", [=](CairoCanvas& canvas) { canvas.fill(card, solid); }},
        {"down",
         [=](CairoCanvas& canvas) {
           canvas.fill(card, veil({0, 6}, {0, 50}));
         }},
        {"across",
         [=](CairoCanvas& canvas) {
           canvas.fill(card, veil({8, 6}, {48, 50}));
         }},
        {"between pixels",
         [=](CairoCanvas& canvas) {
           canvas.fill(Shape::rectangle({8.3, 6.1, 30, 20}), solid);
         }},
        {"line", [=](CairoCanvas& canvas) { canvas.stroke(card, solid, 1.3); }},
        {"shaded line",
         [=](CairoCanvas& canvas) {
           canvas.stroke(card, veil({0, 6}, {0, 50}), 2);
         }},
        {"shadow",
         [=](CairoCanvas& canvas) {
           canvas.shadow(card.inset(8), {{0, 0, 0.2, 0.5}, 5, {0, 2}});
         }},
        {"text",
         [](CairoCanvas& canvas) {
           canvas.text("Pin 固定", ui::Font::system(13), {0, 0, 0, 0.8}, {9, 30});
         }},
        {"symbol",
         [](CairoCanvas& canvas) {
           canvas.symbol("lock", ui::Font::system(24), {0.2, 0.2, 0.9, 1}, {12, 10, 30, 30});
         }},
        {"image",
         [](CairoCanvas& canvas) {
           canvas.image("DisplayMonitor", {6, 6, 48, 28});
         }},
        {"faint layer with a shadow",
         [=](CairoCanvas& canvas) {
           canvas.beginLayer(card.rect, 0.6, ui::PaintShadow{{0, 0, 0, 0.5}, 4, {0, 2}});
           canvas.fill(card.inset(8), solid);
           canvas.endLayer();
         }},
        {"opaque layer with a shadow", [=](CairoCanvas& canvas) {
           canvas.beginLayer(card.rect, 1, ui::PaintShadow{{0, 0, 0, 0.5}, 4, {0, 2}});
           canvas.fill(card.inset(8), solid);
           canvas.endLayer();
         }}};
    return plain;
  }

  /// The same, under every kind of clip.
  static std::vector<std::pair<std::string, Drawing>> drawings() {
    const Shape round = Shape::roundedRectangle({4, 4, 40, 34}, 12);
    const std::vector<std::pair<std::string, std::vector<Shape>>> clips{
        {"", {}},
        {" in a rectangle", {Shape::rectangle({10, 10, 20, 30})}},
        {" in a round clip", {round}},
        {" in two clips", {round, Shape::ellipse({2, 2, 50, 44})}}};
    std::vector<std::pair<std::string, Drawing>> all;
    for (const auto& [kind, shapes] : clips) {
      for (const auto& [name, draw] : plainDrawings()) {
        all.emplace_back(name + kind, [shapes = shapes, draw = draw](CairoCanvas& canvas) {
          canvas.save();
          for (const Shape& shape : shapes) {
            canvas.clip(shape);
          }
          draw(canvas);
          canvas.restore();
        });
      }
    }
    return all;
  }
};

TEST_F(DeepSurfaceTest, ShowsWhatASurfaceOfEightBitsShows) {
  for (const Rgba& color : {Rgba{0.97, 0.97, 0.98, 1}, Rgba{0.1, 0.3, 0.2, 1}, Rgba{0, 0, 0, 0}}) {
    for (const auto& [name, draw] : drawings()) {
      const SurfacePointer expected = ground(color);
      CairoCanvas direct(expected.get(), scale, resources);
      draw(direct);
      const DeepSurface deep = painted(draw);
      const SurfacePointer shown = shownOver(color, deep);
      // The two round at different steps, twice at the round edge of a layer.
      EXPECT_EQ(pictureDifference(shown.get(), expected.get(), 4), std::nullopt)
          << name << " on " << color.red;
      if (color.alpha > 0) {
        EXPECT_NE(pictureDifference(shown.get(), ground(color).get(), 5), std::nullopt)
            << name << " on " << color.red;
      }
    }
  }
}

TEST_F(DeepSurfaceTest, APartIsPaintedAsInTheWhole) {
  for (const auto& [name, draw] : drawings()) {
    const SurfacePointer whole = shownOver(white, painted(draw));
    const DeepSurface parts = painted([draw = draw](CairoCanvas& canvas) {
      for (const Rect& part :
           {Rect{0, 0, 17.5, 60}, Rect{17.5, 0, 42.5, 23}, Rect{17.5, 23, 42.5, 37}}) {
        canvas.save();
        canvas.clip(Shape::rectangle(part));
        draw(canvas);
        canvas.restore();
      }
    });
    // These are drawn through a layer, in which cairo rounds a clipped outline.
    const bool isRounded = name.starts_with("across") || name.starts_with("image");
    EXPECT_EQ(pictureDifference(shownOver(white, parts).get(), whole.get(), isRounded ? 2 : 0),
              std::nullopt)
        << name;
  }
}

TEST_F(DeepSurfaceTest, ManyTranslucentLayersAreRoundedOnce) {
  constexpr int veils = 60;
  constexpr Rgba light{1, 1, 1, 0.013};
  constexpr Rgba blue{0, 0.48, 1, 0.009};
  const Shape everything = Shape::rectangle({0, 0, 60, 60});
  double red = 0.4;
  for (int count = 0; count < veils; ++count) {
    red = red * (1 - light.alpha) + light.red * light.alpha;
    red = red * (1 - blue.alpha) + blue.red * blue.alpha;
  }
  const DeepSurface deep = painted([&](CairoCanvas& canvas) {
    for (int count = 0; count < veils; ++count) {
      canvas.fill(everything, Paint::solid(light));
      canvas.fill(everything, Paint::solid(blue));
    }
  });
  const SurfacePointer shown = shownOver({0.4, 0.4, 0.4, 1}, deep);
  EXPECT_NEAR(pixelAt(shown.get(), 60, 60).red, red * 255, 1);
}

TEST_F(DeepSurfaceTest, IsShownWithinTheClipOnTheNearestPixel) {
  const DeepSurface deep = painted([](CairoCanvas& canvas) {
    canvas.fill(Shape::rectangle({0, 0, 60, 60}), Paint::solid(red));
  });
  const SurfacePointer target = ground(black);
  CairoCanvas canvas(target.get(), scale, resources);
  canvas.clip(Shape::roundedRectangle({0, 0, 40, 40}, 20));
  canvas.picture(deep, {10.1, 10.1});
  EXPECT_EQ(pixelAt(target.get(), 19, 40), fullBlack);
  EXPECT_EQ(pixelAt(target.get(), 20, 40), fullRed);
  EXPECT_EQ(pixelAt(target.get(), 40, 40), fullRed);
  EXPECT_EQ(pixelAt(target.get(), 79, 79), fullBlack) << "beyond the round corner";
}

TEST_F(DeepSurfaceTest, IsClearWhereItIsCleared) {
  DeepSurface deep = painted([](CairoCanvas& canvas) {
    canvas.fill(Shape::rectangle({0, 0, 60, 60}), Paint::solid(red));
  });
  deep.clear({10, -5, 20, 30});
  const SurfacePointer shown = shownOver(white, deep);
  EXPECT_EQ(pixelAt(shown.get(), 10, 0), (Pixel{255, 255, 255, 255}));
  EXPECT_EQ(pixelAt(shown.get(), 20, 0), fullRed);
  EXPECT_EQ(pixelAt(shown.get(), 10, 30), fullRed);
}

}  // namespace
}  // namespace orvane::desk
