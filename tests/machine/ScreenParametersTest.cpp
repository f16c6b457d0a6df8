// When the screen-parameters notification is posted: after display changes, and when the Dock
// changes a visible frame; and the removal of observers during a notification.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "Orvane/platform/appkit/Screen.hpp"
#include "desk/machine/Observers.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

using appkit::NotificationName;

std::vector<CGRect> visibleFrames() {
  std::vector<CGRect> frames;
  for (const appkit::Screen& screen : appkit::Screen::screens()) {
    frames.push_back(screen.visibleFrame());
  }
  return frames;
}

class ScreenParametersTest : public MachineFixture {
 protected:
  ScreenParametersTest() {
    attach(machine, laptop());
    attach(machine, monitorAtTheRight());
    machine.mouse.moveTo(inTheOpen);
    observe();
  }

  void observe() {
    machine.observers.add(NotificationName::applicationDidChangeScreenParameters,
                          [this] { ++posted_; });
  }
  /// The number of notifications since the last call, after serving everything that is due.
  int countPosted() {
    machine.runDue();
    return std::exchange(posted_, 0);
  }
  [[nodiscard]] int postedSoFar() const { return posted_; }

  static constexpr CGPoint inTheOpen{900, 500};
  static constexpr CGPoint aboveTheOtherEdge{2800, 1050};

 private:
  int posted_ = 0;
};

TEST_F(ScreenParametersTest, NotificationsCanBeDelayed) {
  machine.notifications.delayNanoseconds = Clock::fromSeconds(0.5);
  setDockOrientation(machine, "left");
  machine.runLoop.enterMode(RunLoop::Mode::modalPanel);
  machine.runLoop.holdMainQueue();
  machine.advance(0.4);
  EXPECT_EQ(countPosted(), 0);
  machine.advance(0.1);
  EXPECT_EQ(countPosted(), 1);
  machine.advance(2);
  EXPECT_EQ(countPosted(), 0);
  machine.runLoop.releaseMainQueue();
  machine.runLoop.leaveMode();
}

TEST_F(ScreenParametersTest, NotificationsCanBeDoubled) {
  machine.notifications.isDoubled = true;
  setDockOrientation(machine, "left");
  EXPECT_EQ(countPosted(), 2);
}

TEST_F(ScreenParametersTest, NothingIsPostedDuringAMovement) {
  machine.mouse.moveTo(aboveTheOtherEdge);
  machine.mouse.moveBy(0, 60);
  EXPECT_EQ(postedSoFar(), 0);
  EXPECT_EQ(countPosted(), 1);
}

TEST_F(ScreenParametersTest, ModalSessionsAndMenusDoNotDelayIt) {
  for (const RunLoop::Mode mode : {RunLoop::Mode::modalPanel, RunLoop::Mode::eventTracking}) {
    machine.runLoop.enterMode(mode);
    machine.runLoop.holdMainQueue();
    setDockOrientation(machine, mode == RunLoop::Mode::modalPanel ? "left" : "right");
    EXPECT_EQ(countPosted(), 1);
    machine.runLoop.releaseMainQueue();
    machine.runLoop.leaveMode();
  }
}

TEST_F(ScreenParametersTest, AChangeThatIsUndoneAtOnceIsNotPosted) {
  setDockOrientation(machine, "left");
  setDockOrientation(machine, "bottom");
  EXPECT_EQ(countPosted(), 0);
}

TEST_F(ScreenParametersTest, ADisplayChangeThatMovesTheDockIsPostedOnce) {
  ASSERT_EQ(machine.displays.renumber(2, 9), std::nullopt);
  EXPECT_EQ(countPosted(), 1);
  ASSERT_EQ(machine.displays.setMain(9), std::nullopt);
  EXPECT_EQ(countPosted(), 1) << "the Dock moves with it";
  setDockOrientation(machine, "left");
  detach(machine, 9);
  EXPECT_EQ(countPosted(), 1) << "one notification for both changes";
}

TEST_F(ScreenParametersTest, ADockThatMovesDuringAGroupOfChangesIsPostedAtItsEnd) {
  ASSERT_EQ(machine.displays.beginChanges(), std::nullopt);
  setDockOrientation(machine, "left");
  EXPECT_EQ(countPosted(), 0);
  ASSERT_EQ(machine.displays.endChanges(), std::nullopt);
  EXPECT_EQ(countPosted(), 1);
}

TEST_F(ScreenParametersTest, AChangeBeforeALaunchIsNotPosted) {
  setDockOrientation(machine, "left");
  machine.process.end();
  setDockAutoHide(machine, true);
  machine.process.start();
  observe();
  machine.mouse.moveTo(inTheOpen);
  setDockAutoHide(machine, true);
  EXPECT_EQ(countPosted(), 0);
  setDockAutoHide(machine, false);
  EXPECT_EQ(countPosted(), 1);
}

struct FrameStep {
  int kind;
  int choice;
  int x;
  int y;
};

std::ostream& operator<<(std::ostream& out, const FrameStep& step) {
  return out << "{" << step.kind << " " << step.choice << " " << step.x << " " << step.y << "}";
}

void take(Machine& machine, const FrameStep& step) {
  const std::vector<PropertyValue> edges = {std::string("bottom"), std::string("left"),
                                            std::string("right"), std::string("top"), 3.0};
  switch (step.kind) {
    case 0:
      return setDockOrientation(machine, edges.at(static_cast<std::size_t>(step.choice)));
    case 1:
      return setDockAutoHide(machine, step.choice > 2);
    case 2:
      return machine.advance(0.1 * step.choice);
    default:
      machine.mouse.moveTo({static_cast<double>(step.x), static_cast<double>(step.y)});
  }
}

RC_GTEST_PROP(ScreenParametersProperty, ArePostedExactlyWhenAVisibleFrameHasChanged, ()) {
  MachineScope scope;
  Machine& machine = scope.machine();
  machine.process.start();
  attach(machine, displayOf(1, "", {{0, 0}, {200, 100}}));
  attach(machine, displayOf(2, "", {{200, 30}, {100, 100}}));
  attach(machine, displayOf(3, "", {{0, 100}, {100, 120}}));
  int heard = 0;
  machine.observers.add(NotificationName::applicationDidChangeScreenParameters,
                        [&heard] { ++heard; });
  const auto steps = *rc::gen::container<std::vector<FrameStep>>(
      rc::gen::construct<FrameStep>(rc::gen::element(0, 1, 2, 3, 3, 3, 3), rc::gen::inRange(0, 5),
                                    rc::gen::inRange(-100, 400), rc::gen::inRange(-200, 200)));
  for (const FrameStep& step : steps) {
    const std::vector<CGRect> before = visibleFrames();
    take(machine, step);
    machine.runDue();
    const std::vector<CGRect> after = visibleFrames();
    bool isSame = true;
    for (std::size_t index = 0; index < before.size(); ++index) {
      isSame = isSame && CGRectEqualToRect(before[index], after[index]);
    }
    RC_ASSERT(std::exchange(heard, 0) == (isSame ? 0 : 1));
  }
}

constexpr auto screenParameters = appkit::NotificationName::applicationDidChangeScreenParameters;

class ObserversTest : public testing::Test {
 protected:
  std::shared_ptr<Observers::Observer> add(std::string name, std::function<void()> also = {}) {
    return observers.add(screenParameters, [this, name = std::move(name), also = std::move(also)] {
      log.push_back(name);
      if (also) {
        also();
      }
    });
  }

  Observers observers;
  std::vector<std::string> log;
  using Log = std::vector<std::string>;
};

TEST_F(ObserversTest, AnObserverRemovedBeforeItsTurnIsSkipped) {
  std::shared_ptr<Observers::Observer> second;
  add("first", [&] { observers.remove(second); });
  second = add("second");
  add("third");
  observers.post(screenParameters);
  EXPECT_EQ(log, (Log{"first", "third"}));
}

TEST_F(ObserversTest, RemoveAllRemovesEvenDuringAPost) {
  add("a", [&] { observers.removeAll(); });
  add("b");
  observers.post(screenParameters);
  observers.post(screenParameters);
  EXPECT_EQ(log, (Log{"a"}));
}

}  // namespace
}  // namespace orvane::desk
