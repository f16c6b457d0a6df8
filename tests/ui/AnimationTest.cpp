// Changes over time, as a host presents them, and views that come and go.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
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

class TransitionTest : public testing::Test {
 protected:
  void showWith(const Transition& transition) {
    test.show([this, transition](const Environment&) -> View {
      return ZStack(
                 {when(isShown,
                       [&] {
                         return Text("a").font(Font::system(10)).transition(transition).padding(0);
                       })})
          .animation(Curve::linear(1), isShown);
    });
  }
  void setShown(bool shown) {
    isShown = shown;
    test.update();
  }

  TestHost test{{100, 50}};
  bool isShown = true;
};

TEST_F(TransitionTest, AViewFadesOutAndIsThenGone) {
  showWith(Transition::opacity());
  setShown(false);
  test.at(0.25);
  EXPECT_TRUE(test.draws("opacity 0.75"));
  EXPECT_FALSE(test.element("a")) << "leaving views take no input";
  test.at(1);
  EXPECT_FALSE(test.draws("text \"a\""));
  EXPECT_FALSE(test.host->nextFrameWanted());
}

TEST_F(TransitionTest, AViewFadesIn) {
  isShown = false;
  showWith(Transition::opacity());
  setShown(true);
  EXPECT_FALSE(test.draws("text \"a\""));
  test.at(0.25);
  EXPECT_TRUE(test.draws("opacity 0.25"));
  test.at(1);
  EXPECT_FALSE(test.draws("layer"));
}

TEST_F(TransitionTest, AViewThatComesBackTurnsRoundWhereItIs) {
  showWith(Transition::opacity());
  setShown(false);
  test.at(0.25);
  setShown(true);
  EXPECT_TRUE(test.draws("opacity 0.75"));
  const std::string drawing = test.drawing();
  EXPECT_EQ(drawing.find("text \"a\""), drawing.rfind("text \"a\"")) << "it is one view, not two";
  test.at(2);
  EXPECT_TRUE(test.draws("text \"a\""));
  EXPECT_FALSE(test.draws("layer"));
}

TEST_F(TransitionTest, ScaleAndMoveCombine) {
  isShown = false;
  showWith({.absentScale = 0.5, .absentOffset = 1});
  setShown(true);
  test.at(0.5);
  // Half way: three quarters of the size, and half of its width of 5 to the right. The 5 by 10 text
  // stands at 0, 0 in its own transition node; its middle at 2.5, 5 stays the middle of the scale.
  EXPECT_EQ(test.element("a")->frame, (Rect{47.5 + 2.5 - 1.875 + 2.5, 20 + 5 - 3.75, 3.75, 7.5}));
}

TEST_F(TransitionTest, WithoutAnAnimationAViewComesAndGoesAtOnce) {
  test.show([&](const Environment&) -> View {
    return ZStack({when(isShown, [] { return Text("a").transition(Transition::opacity()); })});
  });
  setShown(false);
  EXPECT_FALSE(test.draws("text \"a\""));
  EXPECT_FALSE(test.host->nextFrameWanted());
}

TEST_F(TransitionTest, WithReducedMotionAViewIsThereOrGoneAtOnce) {
  test.appear({.reduceMotion = true});
  showWith(Transition::opacity());
  setShown(false);
  EXPECT_FALSE(test.draws("text \"a\""));
  setShown(true);
  EXPECT_TRUE(test.draws("text \"a\""));
  EXPECT_FALSE(test.draws("layer"));
  EXPECT_FALSE(test.host->nextFrameWanted());
}

// A text that says whether it is shown, each state with an identity of its own.
class FadeThroughTest : public TransitionTest {
 protected:
  void showTexts(const Curve& curve) {
    test.show([this, curve](const Environment&) -> View {
      const std::string text = isShown ? "on" : "off";
      return ZStack({Text(text).transition(Transition::fadeThrough()).id(text)})
          .animation(curve, isShown);
    });
  }
};

TEST_F(FadeThroughTest, TheOldViewIsGoneBeforeTheNewOneComes) {
  showTexts(Curve::linear(1));
  setShown(false);
  test.at(0.125);
  EXPECT_TRUE(test.draws("opacity 0.75"));
  EXPECT_TRUE(test.draws("text \"on\""));
  EXPECT_FALSE(test.draws("text \"off\""));
  test.at(0.5);
  EXPECT_FALSE(test.draws("text"));
  test.at(0.875);
  EXPECT_TRUE(test.draws("opacity 0.75"));
  EXPECT_FALSE(test.draws("text \"on\""));
  EXPECT_TRUE(test.draws("text \"off\""));
  test.at(1);
  EXPECT_FALSE(test.draws("layer"));
  EXPECT_TRUE(test.draws("text \"off\""));
}

TEST_F(FadeThroughTest, ViewsThatTurnRoundAnywhereAreNeverSeenAtOnce) {
  for (const Curve& curve : {Curve::linear(1), Curve::easeInOut(1), Curve::spring(0.5, 0.6)}) {
    for (double moment = 0.05; moment < 1; moment += 0.05) {
      isShown = true;
      double now = test.host->time() + 10;
      test.at(now);
      showTexts(curve);
      setShown(false);
      test.at(now += moment);
      setShown(true);
      for (int frame = 0; frame < 100; ++frame) {
        test.at(now += 0.02);
        EXPECT_FALSE(test.draws("text \"on\"") && test.draws("text \"off\"")) << test.drawing();
      }
      EXPECT_TRUE(test.draws("text \"on\""));
    }
  }
}

TEST_F(TransitionTest, WithoutACurveAChangeIsThereAtOnceInsideAnAnimation) {
  test.show([this](const Environment&) -> View {
    const View text = Text("a").font(Font::system(10)).padding({.leading = isShown ? 0.0 : 40.0});
    return ZStack({text.animation(std::nullopt, isShown)})
        .frame(100, 50, Alignment::leading())
        .animation(Curve::linear(1), isShown);
  });
  EXPECT_EQ(test.element("a")->frame.x, 0);
  setShown(false);
  EXPECT_EQ(test.element("a")->frame.x, 40);
}

TEST_F(TransitionTest, ALeavingLayerStaysWhereItWas) {
  test.show([&](const Environment&) -> View {
    const auto badge = [] {
      return Text("a").font(Font::system(10)).transition(Transition::opacity());
    };
    return Spacer()
        .overlay(when(isShown, badge), Alignment::topTrailing())
        .animation(Curve::linear(1), isShown);
  });
  setShown(false);
  test.at(0.5);
  EXPECT_TRUE(test.draws("at 95 8")) << test.drawing();
}

TEST_F(TransitionTest, ALeavingButtonTakesNoClick) {
  int clicks = 0;
  test.show([&](const Environment&) -> View {
    const auto button = [&] {
      return Button("a", [&] { ++clicks; }).transition(Transition::opacity());
    };
    return ZStack({when(isShown, button)}).animation(Curve::linear(1), isShown);
  });
  test.click({50, 25});
  EXPECT_EQ(clicks, 1);
  setShown(false);
  test.at(0.5);
  test.click({50, 25});
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace orvane::ui
