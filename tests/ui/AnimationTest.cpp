// Changes over time, as a host presents them.
#include <gtest/gtest.h>

#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

class AnimationTest : public testing::Test {
 protected:
  double xOf(const std::string& label) { return test.element(label)->frame.x; }

  TestHost test{{100, 10}};
  double position = 0;
};

TEST_F(AnimationTest, AChangedValueAnimatesTheViewAndFramesEndWithIt) {
  test.show([&](const Environment&) {
    return Text("a").offset(position, 0).animation(Curve::linear(2), position);
  });
  test.at(10);
  const double start = xOf("a");
  position = 40;
  test.update();
  EXPECT_EQ(xOf("a"), start);
  EXPECT_TRUE(test.host->nextFrameWanted());
  EXPECT_EQ(test.frameRequests, 1);
  test.at(11);
  EXPECT_NEAR(xOf("a"), start + 20, 1e-9);
  test.at(12);
  EXPECT_EQ(xOf("a"), start + 40);
  EXPECT_FALSE(test.host->nextFrameWanted());
  EXPECT_EQ(test.frameRequests, 1);
}

TEST_F(AnimationTest, AValueThatStaysTheSameAnimatesNothing) {
  test.show([&](const Environment&) {
    return Text("a").offset(position, 0).animation(Curve::linear(2), std::string("other"));
  });
  const double start = xOf("a");
  position = 40;
  test.update();
  EXPECT_EQ(xOf("a"), start + 40);
  EXPECT_FALSE(test.host->nextFrameWanted());
}

TEST_F(AnimationTest, AnExplicitAnimationAppliesToEverythingThatChanges) {
  test.show([&](const Environment&) { return Text("a").offset(position, 0); });
  const double start = xOf("a");
  test.at(3);
  position = 10;
  test.host->invalidate(Curve::linear(1));
  test.at(3);
  test.at(3.5);
  EXPECT_NEAR(xOf("a"), start + 5, 1e-9);
  position = 100;
  test.update();
  EXPECT_EQ(xOf("a"), start + 100) << "the next update is not animated any more";
}

TEST_F(AnimationTest, PlacesInTheLayoutAnimateToo) {
  bool isAtEnd = false;
  test.show([&](const Environment&) -> View {
    return HStack(0, {when(isAtEnd, [] { return Spacer(); }).id("before"),
                      Text("a").font(Font::system(10)),
                      when(!isAtEnd, [] { return Spacer(); }).id("after")})
        .animation(Curve::linear(1), isAtEnd);
  });
  EXPECT_EQ(xOf("a"), 0);
  isAtEnd = true;
  test.update();
  EXPECT_EQ(xOf("a"), 0);
  test.at(0.5);
  EXPECT_NEAR(xOf("a"), 47.5, 1e-9);
  test.at(1);
  EXPECT_EQ(xOf("a"), 95);
}

TEST_F(AnimationTest, ColoursTravelBetweenTheirResolvedValues) {
  bool isRed = false;
  test.show([&](const Environment&) {
    return Rectangle()
        .fill(isRed ? Color::rgb(1, 0, 0) : Color::rgb(0, 0, 1))
        .animation(Curve::linear(1), isRed);
  });
  isRed = true;
  test.update();
  test.at(0.25);
  EXPECT_TRUE(test.draws("rgba(0.25 0 0.75 1)")) << test.drawing();
}

TEST_F(AnimationTest, ReduceMotionJumpsToTheEnd) {
  test.show([&](const Environment&) {
    return Text("a").offset(position, 0).animation(Curve::linear(1), position);
  });
  const double start = xOf("a");
  position = 40;
  test.update();
  test.at(0.25);
  EXPECT_NEAR(xOf("a"), start + 10, 1e-9);
  test.appear({.reduceMotion = true});
  EXPECT_EQ(xOf("a"), start + 40) << "a motion under way ends";
  position = 0;
  test.update();
  EXPECT_EQ(xOf("a"), start) << "and no new one begins";
  position = 20;
  test.host->invalidate(Curve::linear(1));
  test.host->layoutIfNeeded();
  EXPECT_EQ(xOf("a"), start + 20);
  EXPECT_FALSE(test.host->nextFrameWanted());
}

TEST_F(AnimationTest, AnEntranceRunsOnceWhenTheViewAppears) {
  struct Entrance {
    View body(const Environment& environment) const {
      const State<bool> hasAppeared = environment.state<bool>("hasAppeared", false);
      return Text("a").offset(hasAppeared.value() ? 0 : 10, 0).onAppear([hasAppeared] {
        hasAppeared.set(true, Curve::linear(0.5));
      });
    }
  };
  test.at(1);
  test.show(Entrance{});
  const double start = xOf("a");
  EXPECT_TRUE(test.host->nextFrameWanted());
  test.at(1.25);
  EXPECT_NEAR(xOf("a"), start - 5, 1e-9);
  test.at(1.5);
  EXPECT_NEAR(xOf("a"), start - 10, 1e-9);
  test.update();
  test.at(2);
  EXPECT_FALSE(test.host->nextFrameWanted());
}

TEST_F(AnimationTest, TimeNeverRunsBackwards) {
  test.at(5);
  test.at(3);
  EXPECT_EQ(test.host->time(), 5);
}

}  // namespace
}  // namespace orvane::ui
