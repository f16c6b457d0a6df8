// The order of the start-up, and of the menu's actions, as the platform sees it: every call, and no
// other.
#include "tests/app/AppFixture.hpp"
#include "tests/app/SeamRecorder.hpp"

namespace orvane {
namespace {

/// Activation policy 1 is accessory; image position 1 is image-only, scaling 0 proportionally-down.
const std::string untilTheModel = R"(Application.setActivationPolicy 1
StatusItem
StatusItem.setAutosaveName "Orvane"
StatusItem.setImagePosition 1
StatusItem.setImageScaling 0
StatusItem.setSquareLength
Menu.onWillOpen
StatusItem.setMenu
)";

/// The model comes into being when its language is first observed.
const std::string theModel = R"(AXIsProcessTrusted
LoginItem.status
LoginItem.status
NotificationCenter.addObserver
)";

/// Nobody has listed the displays yet.
const std::string theFirstMenu = R"(Menu.removeAllItems
Menu.addItem "Open at Login"
Menu.addItem -
Menu.addItem "Prevent Dock Pop-Up"
Menu.addItem "Pin Dock"
Menu.addItem -
Menu.addItem "Choose Display"
Menu.addItem "No displays detected"
Menu.addItem -
Menu.addItem "Open Window"
Menu.addItem "Settings"
Menu.addItem "Quit"
)";

const std::string theTimer = "Timer.repeating 1 common\n";

std::string theIcon(const std::string& name) {
  return "Image.systemSymbol \"" + name +
         "\" \"Orvane\" 16\nImage.setTemplate true\nImage.setSize 18 18\nStatusItem.setImage\n";
}

class StartUpTest : public AppFixture {
 protected:
  StartUpTest() {
    store("appLanguage", std::string("english"));
    attachTwoDisplays();
  }

  std::string launchRecorded() {
    const SeamRecorder recorder;
    application.launch();
    return recorder.text();
  }
};

TEST_F(StartUpTest, WithNothingStoredNothingIsRestored) {
  machine.permission.setTrusted(true);
  EXPECT_EQ(launchRecorded(), untilTheModel + theModel + theFirstMenu + theIcon("lock.open") +
                                  theTimer + theIcon("lock.open"));
}

TEST_F(StartUpTest, AStoredLockIsRestoredBetweenTheTimerAndTheLastIcon) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(true);
  const std::string restoring =
      "UserDefaults.setString \"selectedDisplayID\" \"" + desk::uuidNamed('A') + R"("
AXIsProcessTrusted
AXIsProcessTrusted
AXIsProcessTrusted
CGEventTapCreate
NotificationCenter.addObserver
)";
  EXPECT_EQ(launchRecorded(), untilTheModel + theModel + theFirstMenu + theIcon("lock.open") +
                                  theTimer + restoring + theIcon("lock.fill"));
}

TEST_F(StartUpTest, AStoredLockWithoutPermissionLooksAndGivesUp) {
  store("isOrvaneEnabled", true);
  const std::string looking = "UserDefaults.setString \"selectedDisplayID\" \"" +
                              desk::uuidNamed('A') + "\"\nAXIsProcessTrusted\nAXIsProcessTrusted\n";
  EXPECT_EQ(launchRecorded(), untilTheModel + theModel + theFirstMenu + theIcon("lock.open") +
                                  theTimer + looking + theIcon("lock.open"));
}

class MenuActionCallsTest : public StartUpTest {
 protected:
  MenuActionCallsTest() {
    machine.permission.setTrusted(true);
    application.launch();
    EXPECT_TRUE(openMenu());
  }

  std::string pressRecorded(const std::string& title) {
    const SeamRecorder recorder;
    EXPECT_TRUE(press(title));
    return recorder.text();
  }

  const std::string closing = "Menu.cancelTracking\n";
  const std::string activating = "Application.activateIgnoringOtherApps\n";
};

TEST_F(MenuActionCallsTest, OpenWindowActivatesOnceMoreAfterTheWindowAndThenLooksToTheIcon) {
  const std::string calls = pressRecorded("Open Window");
  EXPECT_TRUE(calls.starts_with(closing)) << calls;
  EXPECT_NE(calls.find("Window\n" + activating + activating + theIcon("lock.open")),
            std::string::npos)
      << calls;
}

TEST_F(MenuActionCallsTest, SettingsLeavesActivatingToTheWindow) {
  const std::string calls = pressRecorded("Settings");
  EXPECT_TRUE(calls.starts_with(closing)) << calls;
  EXPECT_NE(calls.find("Window\n" + activating + theIcon("lock.open")), std::string::npos) << calls;
  EXPECT_EQ(calls.find(activating + activating), std::string::npos) << calls;
}

TEST_F(MenuActionCallsTest, QuitClosesTheMenuAndEnds) {
  EXPECT_EQ(pressRecorded("Quit"), closing + "Application.terminate\n");
}

TEST_F(MenuActionCallsTest, ADisplayIsStoredAfterTheMenuHasClosedAndBeforeItIsBuiltAnew) {
  const std::string calls = pressRecorded("Studio");
  EXPECT_TRUE(calls.starts_with(closing + "UserDefaults.setString \"selectedDisplayID\" \"" +
                                desk::uuidNamed('B') + "\"\nMenu.removeAllItems\n"))
      << calls;
  EXPECT_TRUE(calls.ends_with("Menu.addItem \"Quit\"\n" + theIcon("lock.open"))) << calls;
}

}  // namespace
}  // namespace orvane
