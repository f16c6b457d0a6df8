// The fingerprint by which a changed drawing is repainted, the area that is, and the collecting of
// damaged areas.
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/ui/draw/InkProbe.hpp"
#include "Orvane/ui/host/Damage.hpp"

namespace orvane::ui {
namespace {

constexpr Rgba color{0.1, 0.2, 0.3, 0.4};
constexpr Rect area{1, 2, 3, 4};
constexpr Point place{5, 6};

// Of what `draw(canvas, value)` draws.
template <typename Value, typename Draw>
std::uint64_t fingerprintOf(const Value& value, const Draw& draw) {
  InkProbe probe({0, 0, 40, 20});
  draw(probe, value);
  return probe.fingerprint();
}

template <typename Value, typename Draw>
void expectDistinct(const std::vector<Value>& values, const Draw& draw) {
  std::set<std::uint64_t> fingerprints;
  for (const Value& value : values) {
    fingerprints.insert(fingerprintOf(value, draw));
    EXPECT_TRUE(fingerprints.contains(fingerprintOf(value, draw)));
  }
  EXPECT_EQ(fingerprints.size(), values.size());
}

TEST(InkProbeTest, EveryPropertyOfACallChangesTheFingerprint) {
  const Font font = Font::system(13);
  const Paint paint{.stops = {{color, 0}, {color, 1}}, .start = {1, 2}, .end = {3, 4}};
  const Shape shape = Shape::roundedRectangle(area, 5);
  const auto fill = [&](Canvas& canvas, const Shape& value) { canvas.fill(value, paint); };
  expectDistinct<Shape>({shape, Shape::roundedRectangle(area, 6),
                         Shape::roundedRectangle(area, 5, CornerStyle::circular),
                         Shape::capsule(area), Shape::ellipse(area)},
                        fill);
  expectDistinct<Paint>({paint,
                         Paint::solid(color),
                         {{{color, 0}, {color, 0.5}}, paint.start, paint.end},
                         {paint.stops, {0, 2}, paint.end},
                         {paint.stops, {1, 0}, paint.end},
                         {paint.stops, paint.start, {0, 4}},
                         {paint.stops, paint.start, {3, 0}}},
                        [&](Canvas& canvas, const Paint& value) { canvas.fill(shape, value); });
  expectDistinct<double>({1, 2, 1 + 0x1p-52},
                         [&](Canvas& canvas, double value) { canvas.stroke(shape, paint, value); });
  expectDistinct<PaintShadow>(
      {{color, 1, place},
       {color, 2, place},
       {color, 1, {0, 6}},
       {color, 1, {5, 0}},
       {{}, 1, place}},
      [&](Canvas& canvas, const PaintShadow& value) { canvas.shadow(shape, value); });
  expectDistinct<Rgba>(
      {color, {0, 0.2, 0.3, 0.4}, {0.1, 0, 0.3, 0.4}, {0.1, 0.2, 0, 0.4}, {}},
      [&](Canvas& canvas, const Rgba& value) { canvas.text("line", font, value, place); });
  expectDistinct<Font>(
      {font, Font::system(14), font.bold(), {13, Weight::regular, -0.1}},
      [&](Canvas& canvas, const Font& value) { canvas.text("line", value, color, place); });
  expectDistinct<Point>({place, {0, 6}, {5, 0}}, [&](Canvas& canvas, Point value) {
    canvas.text("line", font, color, value);
  });
  expectDistinct<std::string>({"lock", "look", ""}, [](Canvas& canvas, const std::string& value) {
    canvas.image(value, area);
  });
  expectDistinct<Rect>(
      {area, {0, 2, 3, 4}, {1, 0, 3, 4}, {1, 2, 9, 4}, {1, 2, 3, 9}},
      [&](Canvas& canvas, const Rect& value) { canvas.symbol("lock", font, color, value); });
}

TEST(InkProbeTest, MinusZeroIsZero) {
  const auto draw = [](Canvas& canvas, double x) {
    canvas.text("line", Font::system(13), color, {x, 0});
  };
  EXPECT_EQ(fingerprintOf(0.0, draw), fingerprintOf(-0.0, draw));
}

TEST(InkProbeTest, InkExceedsTheShapeByLinesShadowsAndGlyphs) {
  InkProbe probe({0, 0, 40, 20});
  EXPECT_TRUE(probe.ink().isEmpty());
  probe.image("photo", {10, 5, 4, 4});
  EXPECT_EQ(probe.ink(), (Rect{10, 5, 4, 4}));
  probe.fill(Shape::rectangle({10, 5, 8, 8}), Paint::solid(color));
  EXPECT_EQ(probe.ink(), (Rect{10, 5, 8, 8}));
  probe.stroke(Shape::rectangle({10, 5, 8, 8}), Paint::solid(color), 2);
  EXPECT_EQ(probe.ink(), (Rect{9, 4, 10, 10}));
  probe.symbol("lock", Font::system(16), color, {10, 5, 8, 8});
  EXPECT_EQ(probe.ink(), (Rect{8, 3, 12, 12}));
  // 1.5 radii and a point around it, and its offset.
  probe.shadow(Shape::rectangle({10, 5, 8, 8}), {color, 4, {0, 2}});
  EXPECT_EQ(probe.ink(), (Rect{3, 0, 22, 22}));
  probe.text("line", Font::system(8), color, place);
  EXPECT_EQ(probe.ink(), (Rect{-2, -2, 44, 24}));
}

TEST(DamageTest, OverlappingAreasAreJoinedTransitively) {
  Damage damage;
  damage.add({0, 0, 10, 10});
  damage.add({30, 0, 10, 10});
  damage.add({100, 0, 10, 10});
  // Overlaps only the first; the two together overlap the second.
  damage.add({5, 5, 30, 30});
  EXPECT_EQ(damage.take(), (std::vector<Rect>{{100, 0, 10, 10}, {0, 0, 40, 35}}));
}

TEST(DamageTest, IsTakenOnceAndHasNoEmptyAreas) {
  Damage damage;
  damage.add({5, 5, 0, 10});
  EXPECT_TRUE(damage.take().empty());
  damage.add({5, 5, 1, 1});
  EXPECT_EQ(damage.take().size(), 1U);
  EXPECT_TRUE(damage.take().empty());
}

}  // namespace
}  // namespace orvane::ui
