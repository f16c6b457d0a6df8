// Every key of the window, by what it does to the machine and to the application.
#include <set>

#include "desk/window/WindowCommands.hpp"
#include "tests/window/SessionFixture.hpp"

namespace orvane::desk {
namespace {

class WindowCommandsTest : public SessionFixture {
 protected:
  [[nodiscard]] const WindowCommand& command(char key) const {
    for (const WindowCommand& candidate : windowCommands()) {
      if (candidate.key == key) {
        return candidate;
      }
    }
    ADD_FAILURE() << "no key " << key;
    return windowCommands().front();
  }
  [[nodiscard]] std::string state(char key) const { return command(key).state(session); }
  [[nodiscard]] bool isOn(char key) const { return command(key).isOn(session); }
  [[nodiscard]] OrvaneModel& model() { return session.application().model(); }
};

TEST_F(WindowCommandsTest, HaveOneKeyEach) {
  std::set<char> keys;
  for (const WindowCommand& candidate : windowCommands()) {
    EXPECT_TRUE(keys.insert(candidate.key).second) << candidate.key;
    EXPECT_FALSE(std::string(candidate.label).empty());
    EXPECT_FALSE(candidate.state(session).empty()) << candidate.key;
  }
}

TEST_F(WindowCommandsTest, AreFoundByLettersOfBothSizesAndByNothingElse) {
  EXPECT_TRUE(runWindowCommand(session, 'z'));
  EXPECT_FALSE(session.showsZones());
  EXPECT_TRUE(runWindowCommand(session, 'Z'));
  EXPECT_TRUE(session.showsZones());
  EXPECT_FALSE(runWindowCommand(session, 'x'));
  EXPECT_FALSE(runWindowCommand(session, ' '));
}

TEST_F(WindowCommandsTest, PinHerePinsToTheDisplayUnderThePointer) {
  moveTo(1500, 200);
  runWindowCommand(session, 'p');
  ASSERT_TRUE(model().isGuardRunning());
  EXPECT_TRUE(isOn('P'));
  EXPECT_EQ(state('P'), "Right Display");
  ASSERT_EQ(model().guardService().cachedTriggerZones().size(), 1U);
  EXPECT_DOUBLE_EQ(model().guardService().cachedTriggerZones()[0].rect.origin.x, 0);
}

TEST_F(WindowCommandsTest, PinHereMovesAPinAndLetsGoOfItsOwn) {
  moveTo(1500, 200);
  runWindowCommand(session, 'p');
  moveTo(300, 200);
  runWindowCommand(session, 'p');
  EXPECT_TRUE(model().isGuardRunning());
  EXPECT_EQ(state('P'), "Built-in Display");
  runWindowCommand(session, 'p');
  EXPECT_FALSE(model().isGuardRunning());
  EXPECT_EQ(state('P'), "Off");
}

TEST_F(WindowCommandsTest, PinHereTakesOverFromPrevention) {
  runWindowCommand(session, 'h');
  EXPECT_TRUE(isOn('H'));
  EXPECT_EQ(model().guardService().cachedTriggerZones().size(), 2U);
  moveTo(1500, 200);
  runWindowCommand(session, 'p');
  EXPECT_FALSE(isOn('H'));
  EXPECT_EQ(state('P'), "Right Display");
  runWindowCommand(session, 'h');
  EXPECT_TRUE(isOn('H'));
  EXPECT_FALSE(isOn('P'));
}

TEST_F(WindowCommandsTest, TrustIsNeededToLockAndItsLossEndsTheTap) {
  runWindowCommand(session, 't');
  EXPECT_EQ(state('T'), "Missing");
  EXPECT_EQ(state('P'), "Needs permission");
  runWindowCommand(session, 'p');
  EXPECT_FALSE(model().isGuardRunning());
  runWindowCommand(session, 't');
  EXPECT_EQ(state('T'), "Granted");
}

TEST_F(WindowCommandsTest, DisplaysComeAndGo) {
  runWindowCommand(session, 'a');
  EXPECT_EQ(state('A'), "3 attached");
  moveTo(1500, 200);
  EXPECT_EQ(state('D'), "Right Display");
  runWindowCommand(session, 'd');
  EXPECT_EQ(session.machine().displays.find(2), nullptr);
  EXPECT_EQ(state('A'), "2 attached");
  runWindowCommand(session, 'd');
  runWindowCommand(session, 'd');
  EXPECT_EQ(state('A'), "1 attached") << "the last one stays";
  runWindowCommand(session, 'a');
  EXPECT_EQ(state('A'), "2 attached");
}

TEST_F(WindowCommandsTest, AllDisplaysCanBeAttachedAndThenNoMore) {
  for (int time = 0; time < 6; ++time) {
    runWindowCommand(session, 'a');
  }
  EXPECT_EQ(state('A'), "4 attached");
}

TEST_F(WindowCommandsTest, TheDocksEdgeGoesRoundAndItHidesItself) {
  EXPECT_EQ(state('E'), "Bottom");
  runWindowCommand(session, 'e');
  EXPECT_EQ(session.machine().dock.edge(), DockEdge::left);
  runWindowCommand(session, 'e');
  EXPECT_EQ(session.machine().dock.edge(), DockEdge::right);
  runWindowCommand(session, 'e');
  EXPECT_EQ(session.machine().dock.edge(), DockEdge::bottom);
  runWindowCommand(session, 'u');
  EXPECT_TRUE(isOn('U'));
  EXPECT_FALSE(session.machine().dock.isVisible());
  runWindowCommand(session, 'u');
  EXPECT_TRUE(session.machine().dock.isVisible());
}

TEST_F(WindowCommandsTest, TheLookGoesRoundToo) {
  runWindowCommand(session, 'l');
  EXPECT_TRUE(session.machine().appearance.isDark);
  EXPECT_EQ(state('L'), "Dark");
  std::set<std::string> wallpapers;
  for (int time = 0; time < 4; ++time) {
    runWindowCommand(session, 'w');
    wallpapers.insert(state('W'));
  }
  EXPECT_EQ(wallpapers.size(), 4U);
  EXPECT_EQ(state('W'), "Landscape");
}

TEST_F(WindowCommandsTest, DoNoHarmWhenTheApplicationHasCrashed) {
  session.application().crash();
  for (const WindowCommand& candidate : windowCommands()) {
    EXPECT_TRUE(runWindowCommand(session, candidate.key));
    EXPECT_FALSE(candidate.state(session).empty());
  }
  EXPECT_FALSE(isOn('P'));
}

}  // namespace
}  // namespace orvane::desk
