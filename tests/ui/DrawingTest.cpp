// Recorded drawing calls, and the areas that are repainted.
#include <cmath>

#include <gtest/gtest.h>

#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

// The drawing without the host's own save, clip and restore.
std::string drawn(const View& view, Size size, double scaleFactor = 1) {
  TestHost test(size);
  test.show(view);
  RecordingCanvas canvas(scaleFactor);
  test.host->paint(canvas, {0, 0, size.width, size.height});
  EXPECT_EQ(canvas.depth(), 0);
  std::string result;
  for (std::size_t index = 2; index + 1 < canvas.lines().size(); ++index) {
    result += canvas.lines()[index].substr(2) + "\n";
  }
  return result;
}

// A composite view.
struct Pill {
  std::string text;
  bool isActive = false;

  View body(const Environment& environment) const {
    return Text(text)
        .font(Font::system(10, Weight::bold))
        .foreground(isActive ? Color::accent() : Color::secondary())
        .padding(Edges::symmetric(13, 8))
        .background(Capsule()
                        .fill(Color::white().opacity(environment.isDark() ? 0.095 : 0.05))
                        .stroke(Color::white().opacity(0.5), 0.7));
  }
};

TEST(DrawingTest, AComponentDrawsItsBackgroundThenItsText) {
  EXPECT_EQ(drawn(Pill{"ok", true}, {36, 26}),
            "fill capsule(0 0 36 26) rgba(1 1 1 0.05)\n"
            "stroke capsule(0 0 36 26) rgba(1 1 1 0.5) width 0.7\n"
            "text \"ok\" 10/700 rgba(0 0.478 1 1) at 13 16\n");
}

TEST(DrawingTest, AViewAtRestStaysSnappedWhileOthersMove) {
  // The text is at fractions of a point, and snapped while nothing moves it.
  bool isChanged = false;
  double shift = 0;
  TestHost test({100, 50});
  test.show([&](const Environment&) -> View {
    return Text("a")
        .font(Font::system(10))
        .foreground(isChanged ? Color::red() : Color::black())
        .opacity(isChanged ? 0.5 : 1)
        .frame({.maximumWidth = isChanged ? 60.0 : 80.0, .alignment = Alignment::leading()})
        .padding(Edges{.top = 0.3, .leading = 0.3 + shift})
        .frame(100, 50, Alignment::topLeading())
        .animation(Curve::linear(1), isChanged)
        .animation(Curve::linear(1), shift);
  });
  EXPECT_TRUE(test.draws(" at 0 8\n")) << test.drawing();
  isChanged = true;
  test.update();
  test.at(0.5);
  EXPECT_TRUE(test.draws(" at 0 8\n")) << test.drawing();
  test.at(1);
  shift = 10;
  test.update();
  test.at(1.5);
  EXPECT_TRUE(test.draws(" at 5.3 7.8\n")) << test.drawing();
}

TEST(DrawingTest, BorderStrokesRunInsideTheirShape) {
  EXPECT_EQ(drawn(RoundedRectangle(12).strokeBorder(Color::black(), 2), {40, 40}),
            "stroke rounded(1 1 38 38 r11 continuous) rgba(0 0 0 1) width 2\n");
}

TEST(DrawingTest, GradientsKeepAllTheirStops) {
  EXPECT_EQ(drawn(Rectangle().fill(Fill::gradient({Color::white(), Color::clear(), Color::black()},
                                                  UnitPoint::leading(), UnitPoint::trailing())),
                  {40, 20}),
            "fill rectangle(0 0 40 20) gradient(0 10 to 40 10, 0 rgba(1 1 1 1), 0.5 rgba(0 0 0 0), "
            "1 rgba(0 0 0 1))\n");
}

TEST(DrawingTest, AShapeCastsItsOwnShadowBeneathItsFill) {
  EXPECT_EQ(drawn(Rectangle()
                      .fill(Color::white())
                      .castShadow({.color = Color::black(), .radius = 8, .y = 3}),
                  {40, 20}),
            "shadow rectangle(0 0 40 20) rgba(0 0 0 1) radius 8 offset 0 3\n"
            "fill rectangle(0 0 40 20) rgba(1 1 1 1)\n");
}

TEST(DrawingTest, OpacityAndShadowOfASubtreeAreLayers) {
  const View box = Rectangle().fill(Color::white()).frame(10, 10);
  EXPECT_EQ(drawn(box.opacity(0.5), {10, 10}),
            "layer (-1 -1 12 12) opacity 0.5\n"
            "  fill rectangle(0 0 10 10) rgba(1 1 1 1)\n"
            "end\n");
  EXPECT_EQ(drawn(box.opacity(1), {10, 10}), "fill rectangle(0 0 10 10) rgba(1 1 1 1)\n");
  EXPECT_EQ(drawn(box.opacity(0), {10, 10}), "");
  EXPECT_EQ(drawn(box.shadow({Color::black(), 4, 0, 0}), {10, 10}),
            "layer (-8 -8 26 26) opacity 1 shadow rgba(0 0 0 1) radius 4 offset 0 0\n"
            "  fill rectangle(0 0 10 10) rgba(1 1 1 1)\n"
            "end\n");
}

TEST(DrawingTest, ClipsAndScalesEndWithTheirView) {
  EXPECT_EQ(drawn(Rectangle().fill(Color::white()).frame(10, 10).clip(Shape::circle()).scale(2),
                  {20, 20}),
            "save\n"
            "  transform scale 2 translate -10 -10\n"
            "  save\n"
            "    clip ellipse(5 5 10 10)\n"
            "    fill rectangle(5 5 10 10) rgba(1 1 1 1)\n"
            "  restore\n"
            "restore\n");
}

TEST(DrawingTest, EdgesSnapToWholePixelsOnlyWhenPainting) {
  const View thirds = HStack(0, {Rectangle().fill(Color::white()), Rectangle().fill(Color::white()),
                                 Rectangle().fill(Color::white())});
  EXPECT_EQ(drawn(thirds, {10, 4}),
            "fill rectangle(0 0 3 4) rgba(1 1 1 1)\n"
            "fill rectangle(3 0 4 4) rgba(1 1 1 1)\n"
            "fill rectangle(7 0 3 4) rgba(1 1 1 1)\n");
  EXPECT_EQ(drawn(thirds, {10, 4}, 2),
            "fill rectangle(0 0 3.5 4) rgba(1 1 1 1)\n"
            "fill rectangle(3.5 0 3 4) rgba(1 1 1 1)\n"
            "fill rectangle(6.5 0 3.5 4) rgba(1 1 1 1)\n");
}

TEST(DrawingTest, LinesOfTextAreAlignedInTheirFrame) {
  EXPECT_EQ(drawn(Text("aaa b").font(Font::system(10)).textAlignment(HorizontalAlignment::trailing),
                  {15, 20}),
            "text \"aaa\" 10/400 rgba(0 0 0 0.85) at 0 8\n"
            "text \"b\" 10/400 rgba(0 0 0 0.85) at 10 18\n");
}

TEST(DrawingTest, NumbersThatAreNotFiniteCountAsZero) {
  const View box = Rectangle().fill(Color::white()).frame(10, 10);
  EXPECT_EQ(drawn(box.offset(std::nan(""), infinity), {10, 10}),
            "fill rectangle(0 0 10 10) rgba(1 1 1 1)\n");
}

TEST(DrawingTest, SymbolsAndImagesAreDrawnByName) {
  EXPECT_EQ(drawn(Symbol("lock").font(Font::system(8, Weight::bold)).foreground(Color::white()),
                  {20, 20}),
            "symbol lock 8/700 rgba(1 1 1 1) (6 6 8 8)\n");
  EXPECT_EQ(drawn(Image("photo").resizable(), {12, 12}), "image photo (0 3 12 6)\n");
  EXPECT_EQ(drawn(HStack(8, {Symbol("unknown"), Image("unknown")}), {12, 12}), "");
}

TEST(DrawingTest, InTheDarkAppearanceAnImageIsReplacedByItsDarkVariant) {
  TestHost test({12, 12});
  test.show(Image("photo").resizable());
  test.appear({.dark = true});
  EXPECT_TRUE(test.draws("image photo-dark (0 3 12 6)\n"));
  EXPECT_FALSE(test.host->takeDirtyRects().empty());
  test.show(Image("icon").resizable());
  EXPECT_TRUE(test.draws("image icon (0 3 12 6)\n"));
}

class DirtyTest : public testing::Test {
 protected:
  std::vector<Rect> dirtyAfterUpdate() {
    test.host->takeDirtyRects();
    test.update();
    return test.host->takeDirtyRects();
  }
  static View box(const Color& color) { return Rectangle().fill(color).frame(20, 20); }

  TestHost test{{100, 20}};
};

TEST_F(DirtyTest, TheFirstPresentationIsDirtyAndARedrawWithoutChangeIsNot) {
  test.show(HStack(20, {box(Color::white()), Text("a")}));
  EXPECT_FALSE(test.host->takeDirtyRects().empty());
  EXPECT_TRUE(dirtyAfterUpdate().empty());
}

TEST_F(DirtyTest, OnlyChangedViewsAreRepainted) {
  Color color = Color::white();
  test.show([&](const Environment&) -> View {
    return HStack(20, {box(Color::black()), box(color), box(Color::black())});
  });
  color = Color::red();
  const std::vector<Rect> dirty = dirtyAfterUpdate();
  ASSERT_EQ(dirty.size(), 1U);
  EXPECT_EQ(dirty[0], (Rect{39, -1, 22, 22}));
  RecordingCanvas canvas;
  test.host->paint(canvas, dirty[0]);
  EXPECT_EQ(canvas.text(),
            "save\n"
            "  clip rectangle(39 -1 22 22)\n"
            "  fill rectangle(40 0 20 20) rgba(1 0.231 0.188 1)\n"
            "restore\n");
}

TEST_F(DirtyTest, AMovedViewIsRepaintedAtItsOldAndNewPlace) {
  double x = -40;
  test.show([&](const Environment&) { return box(Color::white()).offset(x, 0); });
  x = 40;
  EXPECT_EQ(dirtyAfterUpdate(), (std::vector<Rect>{{-1, -1, 22, 22}, {79, -1, 22, 22}}));
}

TEST_F(DirtyTest, ARemovedViewIsRepaintedWhereItWas) {
  bool isShown = true;
  test.show([&](const Environment&) -> View {
    return ZStack({when(isShown, [&] { return box(Color::white()); })});
  });
  isShown = false;
  EXPECT_EQ(dirtyAfterUpdate(), (std::vector<Rect>{{39, -1, 22, 22}}));
}

TEST_F(DirtyTest, ShadowsReachBeyondTheirViewAndClipsCutThem) {
  double radius = 4;
  test.show([&](const Environment&) {
    return box(Color::white()).shadow({Color::black(), radius, 0, 2});
  });
  radius = 2;
  // That of the larger one: 1.5 radii and two points around, two further down.
  EXPECT_EQ(dirtyAfterUpdate(), (std::vector<Rect>{{32, -6, 36, 36}}));
  test.show([&](const Environment&) {
    return box(Color::white()).shadow({Color::black(), radius, 0, 2}).clip(Shape::rectangle());
  });
  radius = 1;
  EXPECT_EQ(dirtyAfterUpdate(), (std::vector<Rect>{{40, 0, 20, 20}}));
  test.show([&](const Environment&) {
    return box(Color::white()).shadow({Color::black(), radius, 0, 2}).scale(2);
  });
  radius = 4;
  EXPECT_EQ(dirtyAfterUpdate(), (std::vector<Rect>{{15, -21, 70, 70}}));
}

TEST_F(DirtyTest, NestedClipsIntersect) {
  Color color = Color::white();
  test.show([&](const Environment&) {
    return Rectangle()
        .fill(color)
        .frame(40, 20)
        .offset(10, 0)
        .clip(Shape::rectangle())
        .frame(20, 20)
        .clip(Shape::rectangle());
  });
  color = Color::red();
  EXPECT_EQ(dirtyAfterUpdate(), (std::vector<Rect>{{40, 0, 20, 20}}));
}

TEST_F(DirtyTest, ALeavingViewIsRepaintedWhenItIsGone) {
  // The second one looks the same until then.
  double start = 0;
  for (const Transition& transition : {Transition{.absentScale = 0.5}, Transition{}}) {
    bool isShown = true;
    test.show([&](const Environment&) -> View {
      return ZStack({when(isShown, [&] { return box(Color::white()).transition(transition); })})
          .animation(Curve::linear(1), isShown);
    });
    isShown = false;
    dirtyAfterUpdate();
    test.at(start + 0.999);
    EXPECT_TRUE(test.draws("fill"));
    test.host->takeDirtyRects();
    test.at(start + 1);
    EXPECT_FALSE(test.host->takeDirtyRects().empty());
    EXPECT_FALSE(test.draws("fill"));
    ++start;
  }
}

TEST_F(DirtyTest, ALayersOpacityRepaintsEverythingInIt) {
  double opacity = 1;
  test.show([&](const Environment&) {
    return HStack(20, {box(Color::white()), box(Color::white())}).opacity(opacity);
  });
  opacity = 0.5;
  EXPECT_EQ(dirtyAfterUpdate().size(), 2U);
}

}  // namespace
}  // namespace orvane::ui
