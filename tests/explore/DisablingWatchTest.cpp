// Taps that the system disables, and when the guard enables them again.
#include <string>

#include "desk/explore/DisablingWatch.hpp"
#include "tests/explore/StepFixture.hpp"

namespace orvane::desk::explore {
namespace {

class DisablingWatchTest : public StepFixture {
 protected:
  DisablingWatchTest() {
    before.isGuardRunning = after.isGuardRunning = true;
    before.isTapEnabled = after.isTapEnabled = true;
  }
  [[nodiscard]] std::string violationOf(const std::string& text) {
    const auto violation = watch.check(step(text));
    return violation ? violation->text : "";
  }

  DisablingWatch watch;
};

TEST_F(DisablingWatchTest, RequiresTheTapToBeEnabledAtOnce) {
  EXPECT_EQ(violationOf("tap disabled timeout"), "");
  after.isTapEnabled = false;
  EXPECT_EQ(violationOf("tap disabled userinput"), "the guard did not enable it at once");
}

TEST_F(DisablingWatchTest, RequiresItToStayDisabledTheFifthTime) {
  for (int time = 1; time < 5; ++time) {
    EXPECT_EQ(violationOf("tap disabled timeout"), "") << time;
    machine().advance(2.4);
  }
  EXPECT_NE(violationOf("tap disabled timeout"), "");
}

TEST_F(DisablingWatchTest, AllowsMoreOverALongerTime) {
  for (int time = 1; time < 10; ++time) {
    EXPECT_EQ(violationOf("tap disabled timeout"), "") << time;
    machine().advance(2.6);
  }
}

TEST_F(DisablingWatchTest, RequiresATapThatIsDisabledSilentlyToBeRevivedWithinTwoSeconds) {
  after.isTapEnabled = false;
  EXPECT_EQ(violationOf("tap disabled forgood"), "");
  before.isTapEnabled = false;
  EXPECT_EQ(violationOf("advance 1"), "");
  machine().advance(2);
  EXPECT_EQ(violationOf("advance 2"), "");
  machine().advance(0.1);
  EXPECT_EQ(violationOf("advance 0.1"), "it stays disabled");
}

}  // namespace
}  // namespace orvane::desk::explore
