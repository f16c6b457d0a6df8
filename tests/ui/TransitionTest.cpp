// Views that come and go.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

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
