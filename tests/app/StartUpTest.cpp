// The application's calls of the platform interface, in their order: at launch, when the menu
// opens, for each action of the menu, and on windows that are already open.
#include <sstream>
#include <string>

#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

/// Activation policy 1 is accessory; image position 1 is image-only, scaling 0 proportionally-down.
const std::string statusItemCalls = R"(Application.setDelegate
Application.setActivationPolicy 1
StatusItem
StatusItem.setAutosaveName "Orvane"
StatusItem.setImagePosition 1
StatusItem.setImageScaling 0
StatusItem.setSquareLength
Menu.onWillOpen
StatusItem.setMenu
)";

/// The model is created when its language is first observed.
const std::string modelCalls = R"(AXIsProcessTrusted
LoginItem.status
LoginItem.status
NotificationCenter.addObserver
)";

/// The displays have not been listed yet.
const std::string firstMenuCalls = R"(Menu.insertItem 0 "Open at Login"
Menu.insertItem 1 ""
Menu.insertItem 2 "Prevent Dock Pop-Up"
Menu.insertItem 3 "Pin Dock"
Menu.insertItem 4 ""
Menu.insertItem 5 "Choose Display"
Menu.insertItem 6 "No displays detected"
Menu.insertItem 7 ""
Menu.insertItem 8 "Open Window"
Menu.insertItem 9 "Settings"
Menu.insertItem 10 "Quit"
)";

const std::string timerCall = "Timer.repeating 1 true\n";
const std::string tapWatchCalls = timerCall + "NotificationCenter.addObserver\n";
const std::string activateCall = "Application.activateIgnoringOtherApps\n";

const std::string mainToFront = R"(Window.makeKeyAndOrderFront "OrvaneWindow"
Window.orderFrontRegardless "OrvaneWindow"
)";
const std::string newSettings = R"(Window
Window.setHasShadow "OrvaneSettingsWindow" true
Window.addChildWindowAbove "OrvaneWindow" "OrvaneSettingsWindow"
)";
const std::string settingsToFront = R"(Window.makeKeyAndOrderFront "OrvaneSettingsWindow"
Window.orderFrontRegardless "OrvaneSettingsWindow"
)";
const std::string closeSettings = R"(Window.close "OrvaneSettingsWindow"
Window.removeChildWindow "OrvaneWindow" "OrvaneSettingsWindow"
)";

/// The model refreshes the displays, selects a display if it has none, and then asks for the
/// permission.
std::string refreshCalls(const std::string& select) {
  return "Screen.screens\n" + select + "AXIsProcessTrusted\n";
}

const std::string removeTapCalls =
    "CGEventTapEnable false\nCFRunLoopRemoveSource\nCFMachPortInvalidate\n";

/// A restarted guard first removes its tap.
std::string startGuardCalls(const std::string& removal) {
  return "AXIsProcessTrusted\n" + removal + R"(Screen.screens
CGEventTapCreate
CFMachPortCreateRunLoopSource
CFRunLoopAddSource
CGEventTapEnable true
NotificationCenter.addObserver
)";
}

/// The second display replaces none of the first menu's rows.
std::string menuCalls(const std::string& callForSecondDisplay) {
  return R"calls(Menu.changeItem 0 "Open at Login"
Menu.changeItem 2 "Prevent Dock Pop-Up"
Menu.changeItem 3 "Pin Dock"
Menu.changeItem 5 "Choose Display"
Menu.changeItem 6 "Display (Main)"
)calls" + callForSecondDisplay +
         R"( 7 "Studio"
Menu.changeItem 9 "Open Window"
Menu.changeItem 10 "Settings"
Menu.changeItem 11 "Quit"
)";
}

std::string iconCalls(const std::string& symbol) {
  return "Image.systemSymbol \"" + symbol +
         "\" \"Orvane\" 16\nImage.setTemplate true\nImage.setSize 18 18\nStatusItem.setImage true\n"
         "StatusItem.setAccessibilityValue \"" +
         (symbol == "lock.fill" ? "Locked" : "Unlocked") + "\"\n";
}

std::string selectCall(char display) {
  return "UserDefaults.setString \"selectedDisplayID\" \"" + desk::uuidNamed(display) + "\"\n";
}

class StartUpTest : public AppFixture {
 protected:
  StartUpTest() {
    store("appLanguage", "english");
    attachTwoDisplays();
  }

  std::string launchCalls() {
    return callsOf([this] { application.launch(); });
  }
  /// The calls of a launch that makes these calls to restore the lock.
  static std::string expectedLaunchCalls(const std::string& restoring, const std::string& symbol) {
    return statusItemCalls + modelCalls + firstMenuCalls + iconCalls("lock.open") + timerCall +
           restoring + iconCalls(symbol) + tapWatchCalls;
  }
};

TEST_F(StartUpTest, RestoresNothingWhenNothingIsStored) {
  machine.permission.setTrusted(true);
  EXPECT_EQ(launchCalls(), expectedLaunchCalls("", "lock.open"));
}

TEST_F(StartUpTest, RestoresAStoredLockBeforeItUpdatesTheIcon) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(true);
  EXPECT_EQ(launchCalls(), expectedLaunchCalls(refreshCalls(selectCall('A')) +
                                                   "AXIsProcessTrusted\n" + startGuardCalls(""),
                                               "lock.fill"));
}

TEST_F(StartUpTest, ChecksAndGivesUpAStoredLockWithoutThePermission) {
  store("isOrvaneEnabled", true);
  EXPECT_EQ(
      launchCalls(),
      expectedLaunchCalls(refreshCalls(selectCall('A')) + "AXIsProcessTrusted\n", "lock.open"));
}

TEST_F(StartUpTest, OpeningTheMenuRefreshesTheModelThenTheMenuThenTheIcon) {
  application.launch();
  EXPECT_EQ(callsOf([this] { EXPECT_TRUE(openMenu()); }),
            refreshCalls(selectCall('A')) + "LoginItem.status\nLoginItem.status\n" +
                menuCalls("Menu.insertItem") + iconCalls("lock.open"));
}

TEST_F(StartUpTest, AnotherLanguageRebuildsTheMenuOnce) {
  store("appLanguage", "chinese");
  application.launch();
  model().refreshDisplays();
  const std::string calls = callsOf([this] {
    model().setAppLanguage(OrvaneLanguage::english);
    machine.runDue();
  });
  EXPECT_EQ(calls, "UserDefaults.setString \"appLanguage\" \"english\"\n" + refreshCalls("") +
                       menuCalls("Menu.insertItem") + iconCalls("lock.open"));
}

TEST_F(StartUpTest, WhileNothingChangesItOnlyChecksThePermissionOnceASecond) {
  machine.permission.setTrusted(true);
  application.launch();
  model().refreshDisplays();
  for (const bool isPinned : {false, true}) {
    if (isPinned) {
      model().toggleSelectedDisplayLock();
      machine.runDue();
    }
    const std::int64_t wakeUps = machine.runLoop.wakeUpCount();
    EXPECT_EQ(callsOf([this] { machine.advance(3); }),
              "AXIsProcessTrusted\nAXIsProcessTrusted\nAXIsProcessTrusted\n");
    EXPECT_EQ(machine.runLoop.wakeUpCount() - wakeUps, 3);
  }
}

TEST_F(StartUpTest, ADisplayChangeListsTheScreensForGuardModelAndRestartOnly) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(true);
  application.launch();
  const std::string calls = callsOf([this] {
    desk::attach(machine, desk::monitorAbove());
    machine.runDue();
  });
  EXPECT_EQ(calls, "Screen.screens\n" + refreshCalls("") + startGuardCalls(removeTapCalls));
}

class MenuActionCallsTest : public StartUpTest {
 protected:
  MenuActionCallsTest() {
    machine.permission.setTrusted(true);
    application.launch();
    EXPECT_TRUE(openMenu());
  }

  std::string callsOfRow(const std::string& title) {
    return callsOf([&] { EXPECT_TRUE(press(title)); });
  }

  const std::string closeCall = "Menu.cancelTracking\n";
  const std::string showMainCalls =
      "Application.setActivationPolicy 1\nWindow\nWindow.setHasShadow \"OrvaneWindow\" true\n" +
      mainToFront + activateCall;
  const std::string showSettingsCalls = newSettings + settingsToFront + activateCall;
  /// Those of the main panel's view when it appears.
  const std::string mainAppearsCalls = refreshCalls("");
};

TEST_F(MenuActionCallsTest, OpenWindowActivatesAfterTheWindowToo) {
  EXPECT_EQ(callsOfRow("Open Window"),
            closeCall + showMainCalls + activateCall + iconCalls("lock.open") + mainAppearsCalls);
}

TEST_F(MenuActionCallsTest, SettingsShowsTheMainPanelFirst) {
  EXPECT_EQ(callsOfRow("Settings"), closeCall + showMainCalls + showSettingsCalls +
                                        iconCalls("lock.open") + mainAppearsCalls +
                                        "LoginItem.status\nLoginItem.status\n");
}

TEST_F(MenuActionCallsTest, QuitClosesTheMenuFirst) {
  EXPECT_EQ(callsOfRow("Quit"), closeCall + "Application.terminate\n");
}

TEST_F(MenuActionCallsTest, ADisplayIsStoredBetweenTheClosingOfTheMenuAndItsUpdate) {
  EXPECT_EQ(callsOfRow("Studio"),
            closeCall + selectCall('B') + menuCalls("Menu.changeItem") + iconCalls("lock.open"));
}

/// The simulated window server brings windows to the front without some of these calls, so the test
/// compares the calls.
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
  EXPECT_EQ(callsOfRow("Settings"), mainToFront + newSettings + settingsToFront);
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
