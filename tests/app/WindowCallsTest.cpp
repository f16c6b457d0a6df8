// The calls that create the two panels, bring them to the front and close them. The simulated
// window server does part of it unasked, so only the calls show whether the application asks for
// it.
#include <sstream>

#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

const std::string newSettings = "Window\nWindow.setHasShadow \"OrvaneSettingsWindow\" true\n";
const std::string mainToFront =
    "Window.makeKeyAndOrderFront \"OrvaneWindow\"\nWindow.orderFrontRegardless \"OrvaneWindow\"\n";
const std::string settingsToFront =
    "Window.makeKeyAndOrderFront \"OrvaneSettingsWindow\"\n"
    "Window.orderFrontRegardless \"OrvaneSettingsWindow\"\n";
const std::string addSettings =
    "Window.addChildWindowAbove \"OrvaneWindow\" \"OrvaneSettingsWindow\"\n";
const std::string closeSettings =
    "Window.close \"OrvaneSettingsWindow\"\n"
    "Window.removeChildWindow \"OrvaneWindow\" \"OrvaneSettingsWindow\"\n";

class WindowCallsTest : public AppFixture {
 protected:
  WindowCallsTest() {
    begin();
    application.reopen();
  }

  /// The calls on windows when a row of the menu is chosen.
  std::string callsOfRow(const std::string& title) {
    EXPECT_TRUE(openMenu());
    return callsOf(title, desk::Surfaces::menu);
  }
  std::string callsOf(const std::string& label, const std::string& surface) {
    std::istringstream calls(AppFixture::callsOf([&] { EXPECT_TRUE(press(label, surface)); }));
    std::string windowCalls;
    for (std::string call; std::getline(calls, call);) {
      windowCalls += call.starts_with("Window") ? call + "\n" : "";
    }
    return windowCalls;
  }
};

TEST_F(WindowCallsTest, AMinimisedMainPanelIsDeminiaturizedBeforeItComesToTheFront) {
  for (const bool isForSettings : {false, true}) {
    server().miniaturize(desk::Surfaces(server()).window("main"));
    const std::string calls = callsOfRow(isForSettings ? "Settings" : "Open Window");
    EXPECT_TRUE(calls.starts_with("Window.deminiaturize \"OrvaneWindow\"\n" + mainToFront))
        << calls;
  }
}

TEST_F(WindowCallsTest, TheSettingsBecomeAChildOnceAndComeToTheFrontEachTime) {
  EXPECT_EQ(callsOfRow("Settings"), mainToFront + newSettings + addSettings + settingsToFront);
  EXPECT_EQ(callsOfRow("Settings"), mainToFront + settingsToFront);
}

TEST_F(WindowCallsTest, ClosedSettingsAreNoLongerAChild) {
  callsOfRow("Settings");
  EXPECT_EQ(callsOf("Close", "settings"), closeSettings);
}

TEST_F(WindowCallsTest, TheMainPanelClosesTheSettingsToo) {
  callsOfRow("Settings");
  EXPECT_EQ(callsOf("Close", "main"), "Window.close \"OrvaneWindow\"\n" + closeSettings);
}

}  // namespace
}  // namespace orvane
