// The interactive desk without its window.
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "showroom/window/DeskSession.hpp"
#include "tests/support/TestDisplays.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::showroom {
namespace {

class DeskSessionTest : public SessionFixture {};

TEST_F(DeskSessionTest, BeginsWithDisplaysAPermissionAndAnUnlockedApplication) {
  EXPECT_EQ(session.machine().displays.count(), 2U);
  EXPECT_TRUE(session.machine().permission.isTrusted());
  ASSERT_TRUE(session.application().isRunning());
  EXPECT_FALSE(session.application().model().isGuardRunning());
  EXPECT_EQ(session.machine().pointer.displayIndex(), 0U);
}

TEST(DeskSessionSizeTest, HasBetweenOneAndFourDisplays) {
  EXPECT_EQ(DeskSession(0).machine().displays.count(), 1U);
  EXPECT_EQ(DeskSession(3).machine().displays.count(), 3U);
  EXPECT_EQ(DeskSession(99).machine().displays.count(), standardDisplayCount);
}

TEST_F(DeskSessionTest, MarksAMovementThatWasMovedBackForAShortTime) {
  pinOrUnpin();
  moveTo(1500, 600);
  EXPECT_FALSE(session.movedBack());
  session.movePointerBy(3, 60);
  ASSERT_TRUE(session.movedBack());
  EXPECT_DOUBLE_EQ(session.movedBack()->from.x, 1503);
  EXPECT_GE(session.movedBack()->from.y, 639);
  EXPECT_DOUBLE_EQ(session.movedBack()->to.y, session.machine().pointer.location().y);
  EXPECT_DOUBLE_EQ(session.movedBack()->strength, 1);
  EXPECT_EQ(session.nanosecondsToNextChange(), 0);
  session.advance(DeskSession::markNanoseconds / 2);
  EXPECT_NEAR(session.movedBack()->strength, 0.5, 1e-9);
  session.advance(DeskSession::markNanoseconds / 2);
  EXPECT_FALSE(session.movedBack());
}

TEST_F(DeskSessionTest, MarksWhereTheMovementOfAFreeCursorWasMovedBackTo) {
  session.machine().mouse.setCursor(desk::Mouse::Cursor::free);
  pinOrUnpin();
  moveTo(1500, 600);
  session.movePointerBy(0, 600);
  ASSERT_TRUE(session.movedBack());
  EXPECT_DOUBLE_EQ(session.movedBack()->from.y, session.machine().pointer.location().y);
  EXPECT_DOUBLE_EQ(session.movedBack()->to.y, session.movedBack()->from.y - 12);
}

TEST_F(DeskSessionTest, KnowsWhenThePictureNextChanges) {
  session.advance(2 * second);
  // The application has a timer of one second.
  EXPECT_EQ(session.nanosecondsToNextChange(), second);
  session.application().terminate();
  const std::int64_t untilMinute = session.nanosecondsToNextChange();
  EXPECT_GT(untilMinute, 50 * second);
  EXPECT_LE(untilMinute, 60 * second);
  desk::setDockAutoHide(session.machine(), true);
  EXPECT_EQ(session.nanosecondsToNextChange(), 0);
  session.advance(desk::Dock::slideNanoseconds / 2);
  EXPECT_EQ(session.nanosecondsToNextChange(), 0);
  session.advance(desk::Dock::slideNanoseconds);
  EXPECT_GT(session.nanosecondsToNextChange(), 40 * second);
  session.movePointerBy(1, 0);
  EXPECT_EQ(session.nanosecondsToNextChange(), second);
}

TEST_F(DeskSessionTest, ExplainsHowToReleaseTheMouse) {
  EXPECT_NE(session.hardwareContent(true).hint.find("Escape"), std::string::npos);
  EXPECT_EQ(session.hardwareContent(false).hint.find("Escape"), std::string::npos);
}

TEST_F(DeskSessionTest, SurvivesMovementsWithoutADisplay) {
  ASSERT_FALSE(session.machine().displays.detach(1));
  ASSERT_FALSE(session.machine().displays.detach(2));
  session.machine().runDue();
  session.movePointerBy(10, 10);
  EXPECT_EQ(session.machine().pointer.displayIndex(), std::nullopt);
  EXPECT_GT(session.nanosecondsToNextChange(), 0);
}

TEST_F(DeskSessionTest, CountsTheMovementsOfTheLastSecond) {
  EXPECT_EQ(session.eventsPerSecond(), 0);
  session.movePointerBy(1, 0);
  session.movePointerBy(1, 0);
  session.advance(second / 2);
  session.movePointerBy(1, 0);
  session.advance(second / 2 - 1);
  EXPECT_EQ(session.eventsPerSecond(), 3);
  session.advance(1);
  EXPECT_EQ(session.eventsPerSecond(), 1);
  session.advance(second / 2);
  EXPECT_EQ(session.eventsPerSecond(), 0);
}

}  // namespace
}  // namespace orvane::showroom
