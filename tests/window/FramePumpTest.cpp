// Properties of the frame pump that do not depend on the computer's speed.
#include <chrono>
#include <thread>

#include <gtest/gtest.h>

#include "showroom/window/FramePump.hpp"
#include "tests/support/TestDisplays.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::showroom {
namespace {

class FramePumpTest : public SessionFixture {};

TEST_F(FramePumpTest, AdvancesTheMachineMonotonically) {
  FramePump pump(60);
  const std::int64_t before = session.machine().clock.now();
  std::int64_t last = before;
  for (int step = 0; step < 200; ++step) {
    pump.advance(session);
    EXPECT_GE(session.machine().clock.now(), last);
    last = session.machine().clock.now();
  }
  EXPECT_GT(last, before);
}

TEST_F(FramePumpTest, SchedulesTheFirstPictureImmediatelyAndTheNextOneAFrameLater) {
  // One picture a second, so that no computer is too slow for this test.
  FramePump pump(1);
  EXPECT_TRUE(pump.isTimeToDraw());
  EXPECT_EQ(pump.millisecondsToWait(session, true), 0);
  pump.beginPicture();
  pump.endPicture();
  EXPECT_EQ(pump.shownMilliseconds().size(), 1U);
  EXPECT_FALSE(pump.isTimeToDraw());
  const int wait = pump.millisecondsToWait(session, true);
  EXPECT_GT(wait, 0);
  EXPECT_LE(wait, 1000);
}

TEST_F(FramePumpTest, TheDrawingTimeDoesNotDelayTheNextPicture) {
  FramePump pump(2);
  pump.beginPicture();
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  pump.endPicture();
  EXPECT_GE(pump.shownMilliseconds().front(), 200);
  EXPECT_LE(pump.millisecondsToWait(session, true), 300);
}

TEST_F(FramePumpTest, APictureThatStartsLateInItsFrameKeepsTheGrid) {
  FramePump pump(4);
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  pump.beginPicture();
  EXPECT_LE(pump.millisecondsToWait(session, true), 150);
}

TEST_F(FramePumpTest, SleepsWhileNothingChanges) {
  session.advance(2 * second);
  session.application().terminate();
  FramePump pump(60);
  pump.beginPicture();
  EXPECT_GT(pump.millisecondsToWait(session, false), 10'000);
  desk::setDockAutoHide(session.machine(), true);
  EXPECT_LE(pump.millisecondsToWait(session, false), 17);
}

}  // namespace
}  // namespace orvane::showroom
