// The guide: its panel, its position, its polling and its end.
#include <memory>
#include <optional>
#include <string>

#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "tests/permission/PermissionFlow.hpp"

namespace orvane {
namespace {

using State = PermissionGuideState;

class OrvanePermissionGuideWindowControllerTest : public PermissionFlow {
 protected:
  void show(char name = 'a') {
    guide().show([this, name] { granted += name; });
    machine.runDue();
  }
  /// Replaces the displays by a single one with that frame.
  void haveDisplay(CGRect frame) {
    desk::attach(machine, desk::displayOf(9, "Only", frame));
    EXPECT_FALSE(machine.displays.setMain(9));
    EXPECT_FALSE(machine.displays.detach(1));
    EXPECT_FALSE(machine.displays.detach(2));
  }
  void grant() { machine.permission.setTrusted(true); }
};

TEST_F(OrvanePermissionGuideWindowControllerTest, ThePanelFloatsAndDoesNotActivateTheApplication) {
  show();
  const auto panel = window("guide");
  ASSERT_NE(panel, nullptr);
  EXPECT_TRUE(panel->isPanel());
  EXPECT_EQ(panel->styleMask, 128U);
  EXPECT_EQ(panel->level, 25);
  EXPECT_TRUE(panel->isFloatingPanel);
  EXPECT_FALSE(panel->hidesOnDeactivate);
  EXPECT_FALSE(panel->isReleasedWhenClosed);
  EXPECT_EQ(panel->collectionBehavior, 0x20112U);
  EXPECT_TRUE(panel->isMovableByBackground);
  EXPECT_TRUE(panel->hasClearBackground);
  EXPECT_FALSE(panel->isOpaque);
  EXPECT_TRUE(panel->hasShadow);
  EXPECT_EQ(panel->frame.size.width, 360);
  EXPECT_EQ(panel->frame.size.height, 500);
  EXPECT_EQ(server().focus.keyReceiver(), panel);
  EXPECT_FALSE(server().focus.isActive());
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ItIsCreatedOnceAndNotShown) {
  EXPECT_EQ(OrvanePermissionGuideWindowController::snapshot().frame.size.width, 0)
      << "a snapshot does not create it";
  guide();
  expectGuideOrigin(1280, 313);
  EXPECT_FALSE(isGuideVisible());
  EXPECT_FALSE(isPolling());
  show();
  const auto panel = window("guide");
  guide().close();
  show();
  EXPECT_EQ(window("guide"), panel);
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ItIsRightOfTheCentreOfTheScreenWithThePointer) {
  show();
  expectGuideOrigin(1280, 313);
  moveTo({2500, 300});
  show();
  expectGuideOrigin(3200, 278);
}

TEST_F(OrvanePermissionGuideWindowControllerTest, OnANarrowerScreenItKeepsItsDistanceFromTheEdge) {
  haveDisplay(CGRectMake(0, 0, 1300, 900));
  show();
  EXPECT_EQ(guide().snapshot().frame.origin.x, 1300 - 360 - 20);
}

TEST_F(OrvanePermissionGuideWindowControllerTest, OnAScreenThatIsTooSmallTheUpperLimitWins) {
  haveDisplay(CGRectMake(0, 0, 390, 520));
  desk::setDockAutoHide(machine, true);
  show();
  expectGuideOrigin(390 - 360 - 20, 520 - 24 - 500 - 20);
}

TEST_F(OrvanePermissionGuideWindowControllerTest, WithoutAScreenItIsShownAnyway) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  const std::string calls = callsOf([this] { show(); });
  EXPECT_NE(calls.find("Window.center \"OrvaneGuidePanel\""), std::string::npos);
  expectGuideOrigin(0, 0);
  EXPECT_TRUE(isGuideVisible());
  EXPECT_TRUE(isPolling());
}

TEST_F(OrvanePermissionGuideWindowControllerTest,
       AfterMoreThanTenSecondsItShowsATimeoutAndContinues) {
  show();
  machine.advance(10.999);
  EXPECT_EQ(state(), State::checking) << "the poll at exactly ten seconds";
  machine.advance(0.001);
  EXPECT_EQ(state(), State::timeout);
  machine.advance(100);
  EXPECT_EQ(state(), State::timeout);
  grant();
  machine.advance(1);
  EXPECT_EQ(state(), State::success);
  machine.advance(30);
  EXPECT_EQ(granted, "a") << "once";
}

TEST_F(OrvanePermissionGuideWindowControllerTest,
       ItPollsOnceASecondAndShowsItsSuccessForASecondAndAHalf) {
  show();
  grant();
  machine.advance(0.999);
  EXPECT_EQ(state(), State::checking);
  machine.advance(0.001);
  EXPECT_EQ(state(), State::success);
  EXPECT_FALSE(isPolling());
  machine.advance(1.499);
  EXPECT_TRUE(isGuideVisible());
  machine.advance(0.001);
  EXPECT_FALSE(isGuideVisible());
  EXPECT_EQ(state(), State::success) << "until it is shown again";
  show();
  EXPECT_EQ(state(), State::checking);
}

TEST_F(OrvanePermissionGuideWindowControllerTest, AnOldSuccessDoesNotCloseTheGuideShownAgain) {
  show();
  grant();
  machine.advance(1);
  ASSERT_EQ(state(), State::success);
  machine.advance(1);
  show('b');
  machine.advance(0.5);
  // A second and a half after the first success.
  EXPECT_TRUE(isGuideVisible());
  EXPECT_TRUE(isPolling());
  machine.advance(0.5);
  EXPECT_EQ(granted, "ab") << "the second request is answered, too";
  machine.advance(1.499);
  EXPECT_TRUE(isGuideVisible());
  machine.advance(0.001);
  EXPECT_FALSE(isGuideVisible());
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ACallbackMayShowTheGuideAgain) {
  guide().show([this] {
    granted += 'a';
    show('b');
  });
  grant();
  machine.advance(1);
  EXPECT_EQ(granted, "a");
  EXPECT_EQ(state(), State::checking);
  EXPECT_TRUE(isPolling());
  machine.permission.setTrusted(false);
  machine.advance(1.5);
  EXPECT_TRUE(isGuideVisible()) << "the first success does not close it";
  grant();
  machine.advance(1);
  EXPECT_EQ(granted, "ab");
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ClosingStopsPollingAndReleasesTheCallback) {
  const auto calls = std::make_shared<int>(0);
  guide().show([calls] { ++*calls; });
  machine.advance(3);
  const std::size_t timers = machine.runLoop.timerCount();
  guide().close();
  EXPECT_EQ(machine.runLoop.timerCount(), timers - 1);
  EXPECT_FALSE(isPolling());
  EXPECT_FALSE(isGuideVisible());
  grant();
  machine.advance(30);
  EXPECT_EQ(*calls, 0);
  EXPECT_EQ(calls.use_count(), 1);
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ShownWhileVisibleItReplacesTimerAndCallback) {
  show();
  machine.runDue();
  const std::size_t timers = machine.runLoop.timerCount();
  machine.advance(0.5);
  show('b');
  EXPECT_EQ(machine.runLoop.timerCount(), timers);
  grant();
  machine.advance(0.9);
  EXPECT_EQ(granted, "") << "the earlier timer is gone";
  machine.advance(0.1);
  EXPECT_EQ(granted, "b");
}

TEST_F(OrvanePermissionGuideWindowControllerTest, TheCallbackSeesTheSuccessAndMayCloseTheGuide) {
  guide().show([this] {
    granted += 'a';
    EXPECT_EQ(state(), State::success);
    EXPECT_FALSE(isPolling());
    EXPECT_TRUE(isGuideVisible());
    guide().close();
  });
  grant();
  machine.advance(5);
  EXPECT_EQ(granted, "a");
  EXPECT_FALSE(isGuideVisible());
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ItsBackgroundMovesItAndBothButtonsCloseIt) {
  for (const char* const button : {"Close", "Done"}) {
    show();
    const CGPoint corner = server().topLeftOf(*window("guide"));
    pressAt({corner.x + 10, corner.y + 10});
    moveTo({corner.x + 40, corner.y + 30});
    release();
    expectGuideOrigin(1310, 293);
    press(button, "guide");
    EXPECT_FALSE(isGuideVisible());
    EXPECT_FALSE(isPolling());
    moveTo({20, 200});
  }
}

TEST_F(OrvanePermissionGuideWindowControllerTest, ClosedBeforeItPollsAgainItStillNoticesTheGrant) {
  show('a');
  press("Done", "guide");
  EXPECT_EQ(granted, "") << "closed without the permission";
  show('b');
  grant();
  press("Done", "guide");
  EXPECT_EQ(granted, "b");
  EXPECT_FALSE(isGuideVisible());
}

/// The pointer is on no screen.
class PermissionGuidePlaceTest : public OrvanePermissionGuideWindowControllerTest {
 protected:
  PermissionGuidePlaceTest() {
    // In window-system coordinates the uppermost position is on the screen's far edge and so
    // outside of it.
    moveTo({20, 0});
    EXPECT_EQ(appkit::Application::mouseLocation().y, 1080);
  }

  /// A window of the application with its lower left corner there, which becomes key.
  void haveKeyWindow(CGPoint corner) {
    window_.emplace(appkit::WindowKind::window, CGRectMake(corner.x, corner.y, 300, 200),
                    appkit::StyleMask::titled);
    window_->setReleasedWhenClosed(false);
    appkit::Application::activateIgnoringOtherApps();
    window_->makeKeyAndOrderFront();
    machine.runDue();
    ASSERT_TRUE(appkit::Application::keyWindow());
  }
  void expectGuideOn(std::uint32_t number) {
    EXPECT_TRUE(
        CGRectContainsPoint(machine.displays.find(number)->frame, guide().snapshot().frame.origin));
  }

 private:
  std::optional<appkit::Window> window_;
};

TEST_F(PermissionGuidePlaceTest, TheScreenUnderThePointerPrecedesThatOfTheKeyWindow) {
  haveKeyWindow({2500, 400});
  show();
  expectGuideOn(2);
  moveTo({20, 200});
  show();
  expectGuideOn(1);
}

TEST_F(PermissionGuidePlaceTest, WithoutAKeyWindowOnAScreenItIsOnTheMainScreen) {
  EXPECT_EQ(machine.displays.setMain(2), std::nullopt);
  ASSERT_FALSE(appkit::Application::keyWindow());
  show();
  expectGuideOn(2);
  guide().close();
  EXPECT_EQ(machine.displays.setMain(1), std::nullopt);
  haveKeyWindow({-5000, -5000});
  show();
  expectGuideOn(1);
}

}  // namespace
}  // namespace orvane
