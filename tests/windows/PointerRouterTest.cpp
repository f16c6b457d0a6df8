// Routing of pointer movements, clicks and drags, and the tooltips of a pointer at rest.
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using appkit::Window;

using PointerRouterTest = WindowFixture;

TEST_F(PointerRouterTest, AClickReachesTheFrontmostWindowThere) {
  std::string clicked;
  Window back = makeWindow({0, 0});
  back.setContentView(hosting(wideButton("Back", [&] { clicked += "back "; })));
  Window front = makeWindow({100, 0});
  front.setContentView(hosting(wideButton("Front", [&] { clicked += "front "; })));
  back.orderFrontRegardless();
  front.orderFrontRegardless();
  click({150, 750});
  click({50, 750});
  EXPECT_EQ(clicked, "front back ");
}

TEST_F(PointerRouterTest, RoundedCornersAreNotPartOfAWindow) {
  Window window = makeWindow({0, 0});
  appkit::HostingView view = hosting(wideButton("Button", [] {}));
  view.setLayerCorners(24, appkit::CornerCurve::continuous, true);
  window.setContentView(view);
  window.orderFrontRegardless();
  EXPECT_EQ(server().windowAt({1, 701}), nullptr);
  EXPECT_NE(server().windowAt({100, 701}), nullptr);
}

TEST_F(PointerRouterTest, AHandlerMayCloseItsWindowAndDropItsHandle) {
  auto window = std::make_unique<Window>(makeWindow({0, 0}));
  window->setContentView(hosting(wideButton("Close", [&] {
    window->close();
    window.reset();
  })));
  window->orderFrontRegardless();
  click({100, 750});
  EXPECT_EQ(window, nullptr);
  EXPECT_TRUE(server().windows().empty());
}

TEST_F(PointerRouterTest, HoverFollowsThePointerAndTheWindowsUnderIt) {
  std::string heard;
  Window window = makeWindow({0, 0});
  window.setContentView(
      hosting(ui::Rectangle().onHover([&](bool isInside) { heard += isInside ? "in " : "out "; })));
  moveTo({100, 750});
  window.orderFrontRegardless();
  machine.runDue();
  EXPECT_EQ(heard, "in ");
  Window above = makeWindow({0, 0});
  above.orderFrontRegardless();
  machine.runDue();
  EXPECT_EQ(heard, "in out ");
  above.close();
  machine.runDue();
  moveTo({900, 300});
  EXPECT_EQ(heard, "in out in out ");
}

TEST_F(PointerRouterTest, ABackgroundMovesItsWindowAndAControlDoesNot) {
  int clicks = 0;
  Window window = makeWindow({0, 0});
  window.setMovableByWindowBackground(true);
  window.setContentView(
      hosting(ui::HStack(0, {ui::Rectangle(), wideButton("Button", [&] { ++clicks; })})));
  window.orderFrontRegardless();
  pressAt({50, 750});
  moveTo({80, 730});
  release();
  EXPECT_EQ(window.frame().origin.x, 30);
  EXPECT_EQ(window.frame().origin.y, 20);
  pressAt({190, 730});
  moveTo({195, 735});
  release();
  EXPECT_EQ(window.frame().origin.x, 30);
  EXPECT_EQ(clicks, 1);
}

TEST_F(PointerRouterTest, AWindowThatIsNotMovableStaysAndATitleBarAlwaysMoves) {
  Window fixed = makeWindow({0, 0});
  fixed.orderFrontRegardless();
  pressAt({50, 750});
  moveTo({80, 750});
  release();
  EXPECT_EQ(fixed.frame().origin.x, 0);
  Window titled(appkit::WindowKind::window, CGRectMake(300, 0, 200, 100),
                appkit::StyleMask::titled);
  titled.orderFrontRegardless();
  pressAt({400, 680});
  moveTo({410, 680});
  release();
  EXPECT_EQ(titled.frame().origin.x, 310);
}

TEST_F(PointerRouterTest, TheCloseButtonClosesWhenItIsReleasedThere) {
  int closings = 0;
  Window window(appkit::WindowKind::window, CGRectMake(300, 0, 200, 100),
                appkit::StyleMask::titled | appkit::StyleMask::closable);
  window.onWillClose([&] { ++closings; });
  window.orderFrontRegardless();
  pressAt({314, 686});
  moveTo({400, 750});
  release();
  EXPECT_TRUE(window.isVisible());
  click({314, 686});
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(closings, 1);
}

TEST_F(PointerRouterTest, MovementsWithTheButtonDownAreNoMouseMovedEvents) {
  int moves = 0;
  const auto callback = [](CGEventTapProxy, CGEventType, CGEventRef event,
                           void* count) -> CGEventRef {
    ++*static_cast<int*>(count);
    return event;
  };
  const auto tap = machine.eventTaps.create(kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                                            CGEventMask{1} << kCGEventMouseMoved, callback, &moves);
  ASSERT_TRUE(tap.has_value());
  EventTap* const created = machine.eventTaps.find(*tap);
  created->isEnabled = true;
  created->sourceModes = RunLoop::commonModes;
  moveTo({500, 500});
  EXPECT_EQ(moves, 1);
  pressAt({500, 500});
  const int before = moves;
  moveTo({510, 500});
  EXPECT_EQ(moves, before);
  release();
}

TEST_F(PointerRouterTest, AnIdleWindowHasNoTimerAndDrawsNothing) {
  bool isWide = false;
  Window window = makeWindow({0, 0});
  appkit::HostingView view([&](const ui::Environment&) -> ui::View {
    return ui::Rectangle().width(isWide ? 100 : 50).animation(ui::Curve::easeInOut(0.5), isWide);
  });
  window.setContentView(view);
  window.orderFrontRegardless();
  machine.runDue();
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
  isWide = true;
  view.setNeedsUpdate();
  machine.runDue();
  EXPECT_TRUE(view.implementation()->hasFrames());
  const std::int64_t before = machine.runLoop.timerFireCount();
  machine.advance(0.25);
  EXPECT_EQ(machine.runLoop.timerFireCount() - before, 15);
  machine.advance(0.5);
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
  EXPECT_EQ(view.implementation()->picture.drawnAreaCount(), 0);
  const long long changes = server().updates.changeCount();
  machine.advance(60);
  EXPECT_EQ(server().updates.changeCount(), changes);
}

class TooltipsTest : public WindowFixture {
 protected:
  TooltipsTest() : window(makeWindow({0, 0})) {
    window.setContentView(hosting(ui::Rectangle().tooltip("What it does")));
    window.orderFrontRegardless();
  }
  [[nodiscard]] bool isShown() { return server().tooltips.shown().has_value(); }

  appkit::Window window;
};

TEST_F(TooltipsTest, ATooltipAppearsAfterASecondOfRest) {
  moveTo({50, 750});
  machine.advance(0.9);
  moveTo({60, 750});
  machine.advance(0.9);
  EXPECT_FALSE(isShown());
  machine.advance(0.1);
  ASSERT_TRUE(isShown());
  EXPECT_EQ(server().tooltips.shown()->text, "What it does");
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
}

TEST_F(TooltipsTest, ItDisappearsWhenThePointerLeavesTheViewOrClicks) {
  moveTo({50, 750});
  machine.advance(1);
  moveTo({70, 750});
  EXPECT_TRUE(isShown());
  moveTo({700, 400});
  EXPECT_FALSE(isShown());
  EXPECT_EQ(machine.runLoop.timerCount(), 0U);
  moveTo({50, 750});
  machine.advance(1);
  EXPECT_TRUE(isShown());
  click({50, 750});
  EXPECT_FALSE(isShown());
}

}  // namespace
}  // namespace orvane::desk
