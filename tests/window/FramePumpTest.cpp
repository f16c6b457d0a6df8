// The pump's promises that do not depend on how fast the computer is.
#include "desk/window/FramePump.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::desk {
namespace {

class FramePumpTest : public SessionFixture {};

TEST_F(FramePumpTest, NeverTakesTheMachineBackAndGivesItTime) {
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

TEST_F(FramePumpTest, DrawsTheFirstPictureAtOnceAndTheNextOneAFrameLater) {
  // One picture a second, so that no computer is too slow for this test.
  FramePump pump(1);
  EXPECT_TRUE(pump.isTimeToDraw());
  EXPECT_EQ(pump.millisecondsToWait(session, true), 0);
  pump.noteDrawn();
  EXPECT_FALSE(pump.isTimeToDraw());
  const int wait = pump.millisecondsToWait(session, true);
  EXPECT_GT(wait, 0);
  EXPECT_LE(wait, 1000);
}

TEST_F(FramePumpTest, SleepsWhileNothingChanges) {
  session.advance(2 * second);
  session.application().terminate();
  FramePump pump(60);
  pump.noteDrawn();
  EXPECT_GT(pump.millisecondsToWait(session, false), 10'000);
  session.machine().preferences.set({Dock::preferencesDomain}, Dock::autoHideKey, true);
  EXPECT_LE(pump.millisecondsToWait(session, false), 17);
}

}  // namespace
}  // namespace orvane::desk
