// Clicks and spaces that amount to a press, and those that do not.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "desk/explore/CheckedSession.hpp"
#include "desk/explore/Lines.hpp"
#include "desk/explore/Operations.hpp"
#include "desk/hand/Hand.hpp"

namespace orvane::desk::explore {
namespace {

class OperationsTest : public testing::Test {
 protected:
  OperationsTest() {
    session.runAll({"display attach 1 frame=0,0,1440,900 main", "launch", "reopen"});
    operations.note(session.observation());
  }
  [[nodiscard]] std::string clickOn(const std::string& label, double distance = 0) const {
    const CGRect frame = Hand(session.machine()).control(label, "main")->visibleFrame;
    return "click " + decimal(std::floor(CGRectGetMidX(frame)) + distance) + " " +
           decimal(std::floor(CGRectGetMidY(frame)));
  }
  /// The panel slides in, and is then still.
  void wait() {
    for (int second = 0; second < 2; ++second) {
      session.run("advance 1");
      operations.note(session.observation());
    }
  }

  CheckedSession session;
  Operations operations;
};

TEST_F(OperationsTest, AClickIntoTheMiddleIsAPress) {
  wait();
  EXPECT_EQ(operations.operationOf(clickOn("Settings")), "press \"Settings\" in main");
  const std::string beside = clickOn("Settings", 3);
  EXPECT_EQ(operations.operationOf(beside), beside);
}

TEST_F(OperationsTest, AControlThatHasJustAppearedCannotBeClicked) {
  const std::string click = clickOn("Settings");
  EXPECT_EQ(operations.operationOf(click), click);
}

TEST_F(OperationsTest, AHeldKeyMayGiveAClickAnotherMeaning) {
  wait();
  session.run("hold control");
  const std::string click = clickOn("Settings");
  EXPECT_EQ(operations.operationOf(click), click);
}

TEST_F(OperationsTest, AnOpenMenuTakesTheClick) {
  wait();
  const std::string click = clickOn("Pin Dock");
  session.run("menu open");
  EXPECT_EQ(operations.operationOf(click), click);
}

TEST_F(OperationsTest, ASpacePressesTheControlWithTheFocus) {
  wait();
  EXPECT_EQ(operations.operationOf("key space"), "key space");
  session.run("key tab");
  EXPECT_EQ(operations.operationOf("key space"), "press \"Settings\" in main");
}

TEST_F(OperationsTest, AHeldCursorDoesNotReachTheTarget) {
  session.run("move 300 300");
  EXPECT_TRUE(Operations::hasReachedTarget("click 300 300"));
  EXPECT_FALSE(Operations::hasReachedTarget("click 300 301"));
}

}  // namespace
}  // namespace orvane::desk::explore
