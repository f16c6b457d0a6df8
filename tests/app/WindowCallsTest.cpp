// What the two panels ask of the platform when they are brought back and when they go. Much of it
// the simulated window server would do unasked, so only the calls themselves tell.
#include "tests/app/AppFixture.hpp"
#include "tests/app/SeamRecorder.hpp"

namespace orvane {
namespace {

class WindowCallsTest : public AppFixture {
 protected:
  WindowCallsTest() {
    store("appLanguage", std::string("english"));
    begin();
    application.reopen();
  }

  /// The calls on windows while the menu's row is chosen.
  std::string callsOnWindows(const std::string& row) {
    EXPECT_TRUE(openMenu());
    const SeamRecorder recorder;
    EXPECT_TRUE(press(row));
    return linesAboutWindows(recorder.text());
  }
  static std::string linesAboutWindows(const std::string& calls) {
    std::string lines;
    for (std::size_t begin = 0; begin < calls.size();) {
      const std::size_t end = calls.find('\n', begin) + 1;
      const std::string line = calls.substr(begin, end - begin);
      lines += line.find("Window") != std::string::npos ? line : "";
      begin = end;
    }
    return lines;
  }

  const std::string mainToFront =
      "OrvaneWindow.makeKeyAndOrderFront\nOrvaneWindow.orderFrontRegardless\n";
  const std::string settingsToFront =
      "OrvaneSettingsWindow.makeKeyAndOrderFront\nOrvaneSettingsWindow.orderFrontRegardless\n";
};

TEST_F(WindowCallsTest, AMinimisedMainPanelIsTakenOutOfTheDockBeforeItComesToTheFront) {
  for (const bool isForSettings : {false, true}) {
    server().miniaturize(desk::Surfaces(server()).window("main"));
    const std::string calls = callsOnWindows(isForSettings ? "Settings" : "Open Window");
    EXPECT_TRUE(calls.starts_with("OrvaneWindow.deminiaturize\n" + mainToFront)) << calls;
  }
}

TEST_F(WindowCallsTest, AMainPanelThatIsNotMinimisedIsOnlyBroughtToTheFront) {
  EXPECT_EQ(callsOnWindows("Open Window"), mainToFront);
}

TEST_F(WindowCallsTest, TheSettingsBecomeAChildOnceAndComeToTheFrontEachTime) {
  EXPECT_EQ(callsOnWindows("Settings"),
            mainToFront + "Window\nOrvaneWindow.addChildWindowAbove OrvaneSettingsWindow\n" +
                settingsToFront);
  EXPECT_EQ(callsOnWindows("Settings"), mainToFront + settingsToFront);
}

TEST_F(WindowCallsTest, SettingsThatCloseAreNoLongerAChild) {
  ASSERT_EQ(callsOnWindows("Settings").empty(), false);
  const SeamRecorder recorder;
  ASSERT_TRUE(press("Close", "settings"));
  EXPECT_EQ(linesAboutWindows(recorder.text()),
            "OrvaneSettingsWindow.close\nOrvaneWindow.removeChildWindow OrvaneSettingsWindow\n");
}

TEST_F(WindowCallsTest, AMainPanelThatClosesTakesTheSettingsAlong) {
  ASSERT_EQ(callsOnWindows("Settings").empty(), false);
  const SeamRecorder recorder;
  ASSERT_TRUE(press("Close", "main"));
  EXPECT_EQ(linesAboutWindows(recorder.text()),
            "OrvaneWindow.close\nOrvaneSettingsWindow.close\n"
            "OrvaneWindow.removeChildWindow OrvaneSettingsWindow\n");
}

}  // namespace
}  // namespace orvane
