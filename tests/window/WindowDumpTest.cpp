// The dump of a session, parsed as JSON.
#include <nlohmann/json.hpp>

#include "showroom/window/WindowDump.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::showroom {
namespace {

class WindowDumpTest : public SessionFixture {
 protected:
  nlohmann::json dump() {
    return nlohmann::json::parse(windowDump(session, WindowLayout(1480, 800, 1), {60, {4, 20.5}}));
  }
};

TEST_F(WindowDumpTest, HasTheDocksDisplayAndCounts) {
  EXPECT_EQ(dump()["dock"]["display"], 1);
  EXPECT_EQ(dump()["dock"]["reveals"], nlohmann::json::object());
  pressRightDisplay(2);
  EXPECT_EQ(dump()["dock"]["display"], 2);
  EXPECT_EQ(dump()["dock"]["reveals"]["2"], 1);
  EXPECT_EQ(dump()["pointer"]["display"], 2);
}

TEST_F(WindowDumpTest, HasTheFrames) {
  EXPECT_EQ(dump()["drawnFrames"], 2);
  EXPECT_EQ(dump()["framesPerSecond"], 60);
  EXPECT_EQ(dump()["shownMilliseconds"], (std::vector<double>{4, 20.5}));
}

TEST_F(WindowDumpTest, HasTheGuardsState) {
  EXPECT_EQ(dump()["application"]["guardRunning"], false);
  pinOrUnpin();
  pressRightDisplay(4);
  const nlohmann::json application = dump()["application"];
  EXPECT_EQ(application["guardRunning"], true);
  EXPECT_EQ(application["zones"], 1);
  EXPECT_EQ(application["blockedCount"], 4);
}

TEST_F(WindowDumpTest, HasTheOpenWindows) {
  EXPECT_EQ(dump()["application"]["windows"], nlohmann::json::array());
  session.application().reopen();
  session.advance(second);
  EXPECT_EQ(dump()["application"]["windows"], nlohmann::json::array({"main"}));
}

TEST_F(WindowDumpTest, HasTheScreensInPixels) {
  const nlohmann::json screens = dump()["window"]["screens"];
  ASSERT_EQ(screens.size(), 2U);
  EXPECT_LT(screens[0]["pixels"][0].get<int>() + screens[0]["pixels"][2].get<int>(),
            screens[1]["pixels"][0].get<int>());
  EXPECT_LT(screens[1]["pixels"][0].get<int>() + screens[1]["pixels"][2].get<int>(), 1480);
}

TEST_F(WindowDumpTest, WorksWithoutApplicationAndDisplays) {
  session.application().crash();
  EXPECT_EQ(dump()["application"]["running"], false);
  ASSERT_FALSE(session.machine().displays.detach(1));
  ASSERT_FALSE(session.machine().displays.detach(2));
  EXPECT_TRUE(dump()["dock"]["display"].is_null());
  EXPECT_TRUE(dump()["window"]["screens"].empty());
}

}  // namespace
}  // namespace orvane::showroom
