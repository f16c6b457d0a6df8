// Contract tests for modal sessions.
#include <functional>
#include <memory>
#include <vector>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/ui/views/View.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Application;
using appkit::MainQueue;
using appkit::RunLoopMode;
using appkit::Timer;
using appkit::Window;
namespace ModalResponse = appkit::ModalResponse;

class ModalSessionContract : public ContractFixture {
 protected:
  static Window makePanel() {
    return {appkit::WindowKind::panel, CGRectMake(0, 0, 100, 100),
            appkit::StyleMask::titled | appkit::StyleMask::closable};
  }

  /// Runs the session from a main-queue task, and calls `within` once during the session.
  void run(const Window& panel, const std::function<void()>& within) {
    bool isDone = false;
    const Timer timer = Timer::repeating(0.05, RunLoopMode::common, [&] {
      if (!isDone) {
        isDone = true;
        within();
      }
    });
    MainQueue::async([this, panel] {
      Application::runModal(panel, [this](int response) { responses.push_back(response); });
    });
    letTimePass(0.2);
  }

  std::vector<int> responses;
};

TEST_F(ModalSessionContract, TheSessionHoldsTheMainQueueAndItsWindowStaysOpen) {
  Window panel = makePanel();
  bool taskRan = false;
  bool taskRanWithin = true;
  // The session starts before the inner task.
  MainQueue::async([&] { MainQueue::async([&] { taskRan = true; }); });
  run(panel, [&] {
    taskRanWithin = taskRan;
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(Application::modalWindow(), panel);
    Application::stopModal(ModalResponse::alertFirstButton);
  });
  EXPECT_EQ(responses, std::vector<int>{1000});
  EXPECT_FALSE(taskRanWithin);
  EXPECT_TRUE(taskRan);
  EXPECT_TRUE(panel.isVisible()) << "stopping the session does not close it";
  panel.close();
  EXPECT_FALSE(panel.isVisible());
}

TEST_F(ModalSessionContract, ThePanelMayCloseRightAfterTheSession) {
  Window panel = makePanel();
  int closings = 0;
  panel.onWillClose([&] { ++closings; });
  run(panel, [&] {
    Application::stopModal(ModalResponse::alertFirstButton);
    panel.close();
  });
  EXPECT_EQ(closings, 1);
  EXPECT_EQ(responses, std::vector<int>{1000});
  EXPECT_FALSE(panel.isVisible());
}

TEST_F(ModalSessionContract, TheCloseCallbackMayStopTheSession) {
  Window panel = makePanel();
  panel.onWillClose([] { Application::stopModal(ModalResponse::alertSecondButton); });
  run(panel, [&] { panel.close(); });
  EXPECT_EQ(responses, std::vector<int>{1001});
}

TEST_F(ModalSessionContract, StandardTimersWaitForTheEndOfTheSession) {
  Window panel = makePanel();
  int ticks = 0;
  int ticksWithin = -1;
  int commonTicks = 0;
  const Timer standard = Timer::repeating(0.02, RunLoopMode::standard, [&] { ++ticks; });
  MainQueue::async([this, panel] {
    Application::runModal(panel, [this](int response) { responses.push_back(response); });
  });
  const Timer common = Timer::repeating(0.02, RunLoopMode::common, [&] {
    if (++commonTicks == 5) {
      ticksWithin = ticks;
      Application::stopModal(ModalResponse::alertFirstButton);
    }
  });
  letTimePass(0.3);
  EXPECT_EQ(ticksWithin, 0);
  EXPECT_GT(ticks, 0);
  EXPECT_EQ(responses, std::vector<int>{1000});
  panel.close();
}

TEST_F(ModalSessionContract, TheContentViewMayBeRemovedAfterTheSession) {
  Window panel = makePanel();
  const auto held = std::make_shared<int>(0);
  panel.setContentView(appkit::HostingView([held](const ui::Environment&) { return ui::View(); }));
  run(panel, [&] {
    Application::stopModal(ModalResponse::alertFirstButton);
    panel.close();
  });
  panel.clearDelegate();
  panel.clearContentView();
  letTimePass(0.05);
  EXPECT_FALSE(panel.contentView().has_value());
  EXPECT_EQ(held.use_count(), 1) << "the content is released";
}

}  // namespace
}  // namespace orvane
