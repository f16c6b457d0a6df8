// Modal sessions: what they block, and when they end.
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using appkit::Application;
using appkit::MainQueue;
using appkit::Window;

class ModalSessionsTest : public WindowFixture {
 protected:
  /// Shows the panel modally, from a task of the main queue, as the application does.
  void run(Window& panel) {
    MainQueue::async([this, panel] {
      Application::runModal(panel, [this](int response) { responses.push_back(response); });
    });
    machine.runDue();
  }

  std::vector<int> responses;
};

TEST_F(ModalSessionsTest, TheSessionEndsWhenTheHandlerThatStopsItHasReturned) {
  Window panel = makeWindow({0, 0});
  bool hadEndedInHandler = true;
  panel.setContentView(hosting(wideButton("Stop", [&] {
    Application::stopModal(1000);
    hadEndedInHandler = !responses.empty();
  })));
  run(panel);
  click({100, 750});
  EXPECT_FALSE(hadEndedInHandler);
  EXPECT_EQ(responses, std::vector<int>{1000});
  EXPECT_EQ(machine.runLoop.mode(), RunLoop::Mode::standard);
}

TEST_F(ModalSessionsTest, TheFirstResponseCountsAndStoppingWithoutASessionDoesNothing) {
  Application::stopModal(1);
  Window panel = makeWindow({0, 0});
  run(panel);
  Application::stopModal(2);
  Application::stopModal(3);
  machine.runDue();
  EXPECT_EQ(responses, std::vector<int>{2});
}

TEST_F(ModalSessionsTest, OtherWindowsReceiveNothing) {
  int otherClicks = 0;
  int panelClicks = 0;
  Window other = makeWindow({300, 0}, "other");
  other.setContentView(hosting(wideButton("Other", [&] { ++otherClicks; })));
  other.orderFrontRegardless();
  Window panel = makeWindow({0, 0});
  panel.setContentView(hosting(wideButton("Panel", [&] { ++panelClicks; })));
  run(panel);
  click({400, 750});
  EXPECT_EQ(otherClicks, 0);
  EXPECT_EQ(order(), "other NSWindow");
  click({100, 750});
  EXPECT_EQ(panelClicks, 1);
  Application::stopModal(0);
  machine.runDue();
  click({400, 750});
  EXPECT_EQ(otherClicks, 1);
}

TEST_F(ModalSessionsTest, AChildOfTheModalWindowReceivesEvents) {
  int clicks = 0;
  Window panel = makeWindow({0, 0});
  Window child = makeWindow({300, 0});
  child.setContentView(hosting(wideButton("Child", [&] { ++clicks; })));
  run(panel);
  panel.addChildWindowAbove(child);
  click({400, 750});
  EXPECT_EQ(clicks, 1);
}

TEST_F(ModalSessionsTest, SessionsNest) {
  Window outer = makeWindow({0, 0});
  Window inner = makeWindow({300, 0});
  run(outer);
  Application::runModal(inner, [this](int response) { responses.push_back(response); });
  Application::stopModal(1);
  machine.runDue();
  EXPECT_EQ(responses, std::vector<int>{1});
  EXPECT_TRUE(machine.runLoop.isMainQueueHeld());
  Application::stopModal(2);
  machine.runDue();
  EXPECT_EQ(responses, (std::vector<int>{1, 2}));
  EXPECT_FALSE(machine.runLoop.isMainQueueHeld());
}

TEST_F(ModalSessionsTest, TheEndOfTheProcessEndsASessionWithoutAnAnswer) {
  Window panel = makeWindow({0, 0});
  run(panel);
  machine.process.end();
  machine.process.start();
  EXPECT_TRUE(responses.empty());
  EXPECT_FALSE(server().modal.isRunning());
  EXPECT_FALSE(machine.runLoop.isMainQueueHeld());
}

}  // namespace
}  // namespace orvane::desk
