// The order of the start-up, as the platform sees it: every call, and no other.
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

const std::string theTimer = "Timer.repeating 1 standard\n";

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

TEST_F(StartUpTest, OpeningItAgainIsRecordedToo) {
  application.launch();
  const SeamRecorder recorder;
  application.reopen();
  EXPECT_NE(recorder.text().find("Window\n"), std::string::npos)
      << "what would be recorded of a window at launch";
}

}  // namespace
}  // namespace orvane
