// The order of the start-up, of the menu and of its actions, as the platform sees it: every call,
// and no other.
#include "tests/app/AppFixture.hpp"
#include "tests/app/SeamRecorder.hpp"

namespace orvane {
namespace {

/// Activation policy 1 is accessory; image position 1 is image-only, scaling 0 proportionally-down.
const std::string untilTheModel = R"(Application.setDelegate
Application.setActivationPolicy 1
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
const std::string theFirstMenu = R"(Menu.insertItem 0 "Open at Login"
Menu.insertItem 1 -
Menu.insertItem 2 "Prevent Dock Pop-Up"
Menu.insertItem 3 "Pin Dock"
Menu.insertItem 4 -
Menu.insertItem 5 "Choose Display"
Menu.insertItem 6 "No displays detected"
Menu.insertItem 7 -
Menu.insertItem 8 "Open Window"
Menu.insertItem 9 "Settings"
Menu.insertItem 10 "Quit"
)";

/// The second display is one more than the row that says there is none.
std::string theMenuOfTwoDisplays(const std::string& callForStudio) {
  return R"calls(Menu.changeItem 0 "Open at Login"
Menu.changeItem 2 "Prevent Dock Pop-Up"
Menu.changeItem 3 "Pin Dock"
Menu.changeItem 5 "Choose Display"
Menu.changeItem 6 "Display (Main)"
Menu.)calls" +
         callForStudio + R"( 7 "Studio"
Menu.changeItem 9 "Open Window"
Menu.changeItem 10 "Settings"
Menu.changeItem 11 "Quit"
)";
}

const std::string theTimer = "Timer.repeating 1 common\n";
const std::string theWatch = "Timer.repeating 1 common\nNotificationCenter.addObserver\n";

std::string theIcon(const std::string& name) {
  return "Image.systemSymbol \"" + name +
         "\" \"Orvane\" 16\nImage.setTemplate true\nImage.setSize 18 18\nStatusItem.setImage\n"
         "StatusItem.setAccessibilityValue \"" +
         (name == "lock.fill" ? "Locked" : "Unlocked") + "\"\n";
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
                                  theTimer + theIcon("lock.open") + theWatch);
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
                                  theTimer + restoring + theIcon("lock.fill") + theWatch);
}

TEST_F(StartUpTest, AStoredLockWithoutPermissionLooksAndGivesUp) {
  store("isOrvaneEnabled", true);
  const std::string looking = "UserDefaults.setString \"selectedDisplayID\" \"" +
                              desk::uuidNamed('A') + "\"\nAXIsProcessTrusted\nAXIsProcessTrusted\n";
  EXPECT_EQ(launchRecorded(), untilTheModel + theModel + theFirstMenu + theIcon("lock.open") +
                                  theTimer + looking + theIcon("lock.open") + theWatch);
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
  const std::string showing = R"(Application.setActivationPolicy 1
Window
OrvaneWindow.makeKeyAndOrderFront
OrvaneWindow.orderFrontRegardless
)";
  const std::string showingSettings = R"(Window
OrvaneWindow.addChildWindowAbove OrvaneSettingsWindow
OrvaneSettingsWindow.makeKeyAndOrderFront
OrvaneSettingsWindow.orderFrontRegardless
)";
  /// The main panel's, once it is drawn.
  const std::string appearing = "AXIsProcessTrusted\nTimer.repeating 1 common\n";
  const std::string activating = "Application.activateIgnoringOtherApps\n";
};

TEST_F(MenuActionCallsTest, OpenWindowActivatesOnceMoreAfterTheWindowAndThenLooksToTheIcon) {
  EXPECT_EQ(pressRecorded("Open Window"),
            closing + showing + activating + activating + theIcon("lock.open") + appearing);
}

TEST_F(MenuActionCallsTest, SettingsLeavesActivatingToTheWindow) {
  EXPECT_EQ(pressRecorded("Settings"), closing + showing + activating + showingSettings +
                                           activating + theIcon("lock.open") + appearing +
                                           "LoginItem.status\nLoginItem.status\n");
}

TEST_F(MenuActionCallsTest, QuitClosesTheMenuAndEnds) {
  EXPECT_EQ(pressRecorded("Quit"), closing + "Application.terminate\n");
}

TEST_F(MenuActionCallsTest, ADisplayIsStoredAfterTheMenuHasClosedAndBeforeItIsBroughtUpToDate) {
  const std::string calls = pressRecorded("Studio");
  EXPECT_EQ(calls, closing + "UserDefaults.setString \"selectedDisplayID\" \"" +
                       desk::uuidNamed('B') + "\"\n" + theMenuOfTwoDisplays("changeItem") +
                       theIcon("lock.open"));
}

TEST_F(StartUpTest, OpeningTheMenuReadsDisplaysAndLoginItemThenBuildsItThenLooksToTheIcon) {
  application.launch();
  const SeamRecorder recorder;
  ASSERT_TRUE(openMenu());
  EXPECT_EQ(recorder.text(), "UserDefaults.setString \"selectedDisplayID\" \"" +
                                 desk::uuidNamed('A') +
                                 "\"\nAXIsProcessTrusted\nLoginItem.status\nLoginItem.status\n" +
                                 theMenuOfTwoDisplays("insertItem") + theIcon("lock.open"));
}

TEST_F(StartUpTest, AnotherLanguageBuildsTheMenuOnceAndThenLooksToTheIcon) {
  store("appLanguage", std::string("chinese"));
  application.launch();
  model().refreshDisplays();
  const SeamRecorder recorder;
  model().setAppLanguage(OrvaneLanguage::english);
  machine.runDue();
  EXPECT_EQ(recorder.text(),
            "UserDefaults.setString \"appLanguage\" \"english\"\nAXIsProcessTrusted\n" +
                theMenuOfTwoDisplays("insertItem") + theIcon("lock.open"));
}

TEST_F(StartUpTest, SecondsInWhichNothingChangesAskForThePermissionAndForNothingElse) {
  machine.permission.setTrusted(true);
  application.launch();
  model().refreshDisplays();
  for (const bool isPinned : {false, true}) {
    if (isPinned) {
      model().toggleSelectedDisplayLock();
      machine.runDue();
    }
    const SeamRecorder recorder;
    const std::int64_t wakeUps = machine.runLoop.wakeUpCount();
    machine.advance(3);
    EXPECT_EQ(machine.runLoop.wakeUpCount() - wakeUps, 3);
    EXPECT_EQ(recorder.text(), "AXIsProcessTrusted\nAXIsProcessTrusted\nAXIsProcessTrusted\n");
  }
}

TEST_F(StartUpTest, TheScreensAreListedOnceForTheModelAndOnceForTheGuard) {
  machine.permission.setTrusted(true);
  application.launch();
  model().refreshDisplays();
  {
    const SeamRecorder recorder;
    model().toggleSelectedDisplayLock();
    EXPECT_EQ(SeamRecorder::screenLists(), 2);
  }
  const SeamRecorder recorder;
  desk::attach(machine, desk::monitorAbove());
  machine.runDue();
  EXPECT_EQ(SeamRecorder::screenLists(), 3) << "the guard, the model, and the guard's restart";
}

TEST_F(StartUpTest, TheIconFollowsTheGuardAtOnce) {
  machine.permission.setTrusted(true);
  application.launch();
  model().refreshDisplays();
  const SeamRecorder recorder;
  model().toggleSelectedDisplayLock();
  machine.runDue();
  EXPECT_TRUE(recorder.text().ends_with(theIcon("lock.fill"))) << recorder.text();
}

TEST_F(StartUpTest, OpenedAgainItAnswersThatTheSystemMayGoOn) {
  application.launch();
  const auto& reopened = SeamRecorder::delegate().shouldHandleReopen;
  ASSERT_TRUE(reopened);
  EXPECT_TRUE(reopened(false));
  ASSERT_TRUE(desk::Surfaces(server()).isOpen("main"));
  EXPECT_TRUE(reopened(true));
}

}  // namespace
}  // namespace orvane
