// The pointer, driven through the host's events.
#include <gtest/gtest.h>

#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/ui/TestHost.hpp"

namespace orvane::ui {
namespace {

// Shows its label with a mark while it is pressed; 40 by 20 points.
struct MarkingStyle {
  View operator()(const ButtonConfiguration& configuration, const Environment&) const {
    return ZStack({configuration.label, when(configuration.isPressed, [] { return Text("!"); })})
        .frame(40, 20);
  }
};

class PointerInputTest : public testing::Test {
 protected:
  View button(const std::string& title) {
    return Button(title, [this, title] { log += title; }).style(MarkingStyle{});
  }
  // As large as its title.
  View bareButton(const std::string& title) {
    return Button(title, [this, title] { log += title; }).style(BareButtonStyle{});
  }
  bool showsPress() { return test.draws("\"!\""); }

  TestHost test{{40, 20}};
  std::string log;
};

TEST_F(PointerInputTest, AClickIsAPressAndAReleaseInside) {
  test.show(button("a"));
  EXPECT_TRUE(test.host->pointerDown({20, 10}));
  test.host->layoutIfNeeded();
  EXPECT_TRUE(showsPress());
  EXPECT_EQ(log, "");
  EXPECT_TRUE(test.host->pointerUp({21, 10}));
  test.host->layoutIfNeeded();
  EXPECT_FALSE(showsPress());
  EXPECT_EQ(log, "a");
}

TEST_F(PointerInputTest, DraggingOutCancelsAndDraggingBackArmsAgain) {
  test.show(button("a"));
  test.host->pointerDown({20, 10});
  test.host->pointerDragged({60, 10});
  test.host->layoutIfNeeded();
  EXPECT_FALSE(showsPress());
  test.host->pointerDragged({20, 10});
  test.host->layoutIfNeeded();
  EXPECT_TRUE(showsPress());
  test.host->pointerDragged({60, 10});
  EXPECT_TRUE(test.host->pointerUp({60, 10}));
  EXPECT_EQ(log, "");
}

TEST_F(PointerInputTest, ACancelledPressDoesNothing) {
  test.show(button("a"));
  test.host->pointerDown({20, 10});
  test.host->pointerCancelled();
  EXPECT_FALSE(test.host->pointerUp({20, 10}));
  EXPECT_EQ(log, "");
}

TEST_F(PointerInputTest, APressEndsWithItsNode) {
  std::string id = "one";
  test.show([&](const Environment&) { return button("a").id(id); });
  test.host->pointerDown({20, 10});
  id = "two";
  test.update();
  EXPECT_FALSE(test.host->pointerUp({20, 10}));
  EXPECT_EQ(log, "");
  EXPECT_FALSE(showsPress());
}

TEST_F(PointerInputTest, APressEndsWhenItsControlIsDisabled) {
  bool isDisabled = false;
  test.show([&](const Environment&) { return button("a").disabled(isDisabled); });
  test.host->pointerDown({20, 10});
  isDisabled = true;
  test.update();
  test.host->pointerUp({20, 10});
  isDisabled = false;
  test.update();
  EXPECT_EQ(log, "");
  EXPECT_FALSE(showsPress());
}

TEST_F(PointerInputTest, DisabledSubtreesTakeThePressAndDoNothing) {
  test.show(ZStack({button("below"), VStack(8, {button("a")}).disabled(true)}));
  EXPECT_TRUE(test.host->pointerDown({20, 10}));
  test.host->pointerUp({20, 10});
  EXPECT_EQ(log, "");
}

TEST_F(PointerInputTest, TheTopmostControlIsHit) {
  test.show(ZStack({button("a"), button("b")}));
  test.click({20, 10});
  EXPECT_EQ(log, "b");
}

TEST_F(PointerInputTest, WhatCannotBeSeenLetsThePointerThrough) {
  test.show(ZStack({button("a"), button("c").opacity(0)}));
  test.click({20, 10});
  EXPECT_EQ(log, "a");
}

TEST_F(PointerInputTest, HitsFollowOffsetsAndScalesAsPresented) {
  test.host->setSize({200, 100});
  test.show(button("a").scale(0.5).offset(50, 0));
  // The button's 40 by 20 points in the middle, halved and moved: 140 to 160, 45 to 55.
  test.click({100, 50});
  test.click({138, 50});
  test.click({150, 57});
  EXPECT_EQ(log, "");
  test.click({142, 46});
  EXPECT_EQ(log, "a");
}

TEST_F(PointerInputTest, HitsFollowAMotionUnderWay) {
  test.host->setSize({200, 20});
  double x = -50;
  test.show(
      [&](const Environment&) { return button("a").offset(x, 0).animation(Curve::linear(1), x); });
  x = 50;
  test.update();
  test.at(0.5);
  test.click({100, 10});
  EXPECT_EQ(log, "a");
}

TEST_F(PointerInputTest, HoverIsReportedOnceEachWay) {
  test.host->setSize({100, 20});
  test.show(Rectangle().frame(40, 20).onHover([this](bool inside) { log += inside ? "+" : "-"; }));
  test.host->pointerMoved({10, 10});
  EXPECT_EQ(log, "");
  test.host->pointerMoved({50, 10});
  test.host->pointerMoved({51, 10});
  EXPECT_EQ(log, "+");
  test.host->pointerMoved({90, 10});
  EXPECT_EQ(log, "+-");
  test.host->pointerMoved({50, 10});
  test.host->pointerExited();
  EXPECT_EQ(log, "+-+-");
}

TEST_F(PointerInputTest, HoverIsFoundAnewAfterLayoutThoughThePointerIsStill) {
  test.host->setSize({100, 20});
  double x = 30;
  test.show([&](const Environment&) {
    return Rectangle()
        .frame(40, 20)
        .onHover([this](bool inside) { log += inside ? "+" : "-"; })
        .offset(x, 0);
  });
  test.host->pointerMoved({30, 10});
  EXPECT_EQ(log, "");
  x = -20;
  test.update();
  EXPECT_EQ(log, "+");
  x = 30;
  test.update();
  EXPECT_EQ(log, "+-");
}

TEST_F(PointerInputTest, AClusterAndTheControlInItHoverTogether) {
  test.show(HStack(0, {button("a").onHover([this](bool in) { log += in ? "i" : "o"; })})
                .onHover([this](bool in) { log += in ? "I" : "O"; }));
  test.host->pointerMoved({20, 10});
  EXPECT_EQ(log, "iI");
  test.host->pointerDown({20, 10});
  test.host->pointerDragged({60, 10});
  test.host->layoutIfNeeded();
  EXPECT_EQ(log, "iI") << "as long as the button is pressed";
  test.host->pointerUp({60, 10});
  EXPECT_EQ(log, "iIoO");
}

TEST_F(PointerInputTest, AHandlerMayRemoveItsView) {
  bool isShown = true;
  test.show([&](const Environment&) -> View {
    const auto remove = [&] {
      isShown = false;
      test.update();
      log += "gone";
    };
    return ZStack({when(isShown, [&] { return Button("a", remove).style(MarkingStyle{}); })});
  });
  test.click({20, 10});
  EXPECT_EQ(log, "gone");
  EXPECT_EQ(test.frames(), "");
}

TEST_F(PointerInputTest, AHandlerMayDestroyItsHost) {
  test.show([this](const Environment& environment) {
    const auto destroy = [this, environment] {
      environment.animate(Curve::linear(1), [this] { test.host.reset(); });
    };
    return Button("a", destroy).style(MarkingStyle{});
  });
  test.click({20, 10});
  EXPECT_FALSE(test.host);
}

TEST_F(PointerInputTest, AHoverOrAppearanceHandlerMayDestroyItsHost) {
  test.show(button("a").onHover([this](bool) { test.host.reset(); }));
  test.host->pointerMoved({20, 10});
  EXPECT_FALSE(test.host);

  TestHost other;
  other.host->setRoot(
      [&](const Environment&) { return Text("a").onAppear([&] { other.host.reset(); }); });
  other.host->layoutIfNeeded();
  EXPECT_FALSE(other.host);
}

TEST_F(PointerInputTest, ScrollingStopsAtBothEnds) {
  test.host->setSize({30, 10});
  test.show(
      ScrollView(HStack(0, {bareButton("aaaaaa"), bareButton("bbbbbb")})).font(Font::system(10)));
  EXPECT_EQ(test.element("aaaaaa")->frame.x, 0);
  EXPECT_FALSE(test.host->scroll({5, 5}, -4, 0));
  EXPECT_TRUE(test.host->scroll({5, 5}, 20, 0));
  EXPECT_EQ(test.element("aaaaaa")->frame.x, -20);
  test.click({15, 5});
  EXPECT_EQ(log, "bbbbbb") << "hits follow the offset";
  EXPECT_TRUE(test.host->scroll({5, 5}, 0, 100)) << "a wheel that turns only one way";
  EXPECT_EQ(test.element("aaaaaa")->frame.x, -30);
  EXPECT_FALSE(test.host->scroll({5, 5}, 1, 0));
  EXPECT_FALSE(test.host->scroll({5, 50}, -5, 0)) << "not over the view";
}

TEST_F(PointerInputTest, WhatIsScrolledOutOfSightCannotBeHit) {
  test.host->setSize({60, 10});
  test.show(ScrollView(HStack(0, {Text("aaaaaa"), bareButton("bbbbbb")}))
                .frame(30, 10, Alignment::leading())
                .font(Font::system(10)));
  // The scroll view covers 15 to 45; the second text begins there.
  test.click({50, 5});
  EXPECT_EQ(log, "");
}

TEST_F(PointerInputTest, TheScrollOffsetOutlivesARedrawAndFollowsItsContent) {
  std::string text = "aaaaaaaaaaaa";
  test.host->setSize({30, 10});
  test.show([&](const Environment&) { return ScrollView(Text(text)).font(Font::system(10)); });
  test.host->scroll({5, 5}, 25, 0);
  test.update();
  EXPECT_EQ(test.element(text)->frame.x, -25);
  text = "aaaaaaaa";
  test.update();
  EXPECT_EQ(test.element(text)->frame.x, -10);
}

TEST_F(PointerInputTest, ADragBeginsAfterAFewPointsAndClicksNothing) {
  test.show(Rectangle().frame(40, 20).dragSource([] {
    return DragRequest{"file:///app", "icon"};
  }));
  EXPECT_FALSE(test.host->movesWindowAt({20, 10}));
  EXPECT_TRUE(test.host->pointerDown({20, 10}));
  test.host->pointerDragged({22.9, 10});
  EXPECT_TRUE(test.drags.empty());
  test.host->pointerDragged({23, 10});
  EXPECT_EQ(test.drags.size(), 1U);
  test.host->pointerDragged({30, 10});
  ASSERT_EQ(test.drags.size(), 1U);
  EXPECT_EQ(test.drags[0].fileUrl, "file:///app");
  EXPECT_EQ(test.drags[0].imageName, "icon");
  EXPECT_EQ(test.drags[0].frame, (Rect{0, 0, 40, 20}));
}

TEST_F(PointerInputTest, ADragSourceWithoutAnItemStartsNothing) {
  test.show(Rectangle().dragSource([this]() -> std::optional<DragRequest> {
    log += "?";
    return std::nullopt;
  }));
  test.host->pointerDown({20, 10});
  test.host->pointerDragged({35, 10});
  test.host->pointerDragged({36, 10});
  EXPECT_TRUE(test.drags.empty());
  EXPECT_EQ(log, "?") << "it is asked once";
  EXPECT_TRUE(test.host->pointerUp({35, 10}));
}

TEST_F(PointerInputTest, AHostWithoutAViewIgnoresAllInput) {
  test.host->pointerMoved({20, 10});
  EXPECT_FALSE(test.host->pointerDown({20, 10}));
  EXPECT_FALSE(test.host->pointerUp({20, 10}));
  EXPECT_FALSE(test.host->scroll({20, 10}, 5, 5));
  EXPECT_FALSE(test.host->tooltipAt({20, 10}));
  EXPECT_FALSE(test.host->keyDown({.key = Key::tab}));
  EXPECT_FALSE(test.host->keyDown({.key = Key::enter}));
  EXPECT_FALSE(test.host->press(1));
  EXPECT_TRUE(test.host->focus(0));
  EXPECT_EQ(test.drawing() + test.host->dumpTree() + test.frames(), "");
}

TEST_F(PointerInputTest, TheWindowMovesWhereNoViewTakesThePress) {
  test.host->setSize({100, 20});
  test.show(HStack(0, {Text("title"), button("a")}));
  EXPECT_TRUE(test.host->movesWindowAt({5, 10}));
  EXPECT_FALSE(test.host->pointerDown({5, 10}));
  const Rect frame = test.element("a")->frame;
  EXPECT_FALSE(test.host->movesWindowAt(frame.center()));
}

}  // namespace
}  // namespace orvane::ui
