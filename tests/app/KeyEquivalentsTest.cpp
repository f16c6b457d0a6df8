// The key equivalents, in each of the application's windows.
#include <string>

#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "tests/app/AppFixture.hpp"

namespace orvane {
namespace {

class KeyEquivalentsTest : public AppFixture {
 protected:
  KeyEquivalentsTest() { begin(); }
};

TEST_F(KeyEquivalentsTest, CommandCommaOpensTheSettings) {
  application.reopen();
  EXPECT_FALSE(isOpen("settings"));
  EXPECT_TRUE(command(","));
  EXPECT_TRUE(isOpen("settings"));
  EXPECT_TRUE(command("w"));
  EXPECT_FALSE(isOpen("settings"));
  EXPECT_TRUE(isOpen("main"));
}

TEST_F(KeyEquivalentsTest, CommandQQuitsFromThePanels) {
  application.reopen();
  EXPECT_TRUE(command("q"));
  EXPECT_FALSE(application.isRunning());
  application.launch();
  application.reopen();
  ASSERT_TRUE(command(","));
  EXPECT_TRUE(command("q"));
  EXPECT_FALSE(application.isRunning());
}

TEST_F(KeyEquivalentsTest, CommandQQuitsFromTheGuide) {
  OrvanePermissionGuideWindowController::shared().show(nullptr);
  machine.runDue();
  ASSERT_TRUE(isOpen("guide"));
  ASSERT_FALSE(server().focus.isActive()) << "it becomes key without activating the application";
  EXPECT_TRUE(command("q"));
  EXPECT_FALSE(application.isRunning());
}

TEST_F(KeyEquivalentsTest, CommandHHidesUntilTheApplicationIsOpenedAgain) {
  application.reopen();
  EXPECT_TRUE(command("h"));
  EXPECT_FALSE(server().focus.isActive());
  EXPECT_FALSE(isOpen("main"));
  EXPECT_FALSE(command("q")) << "there is no key window";
  application.reopen();
  EXPECT_TRUE(isOpen("main"));
  EXPECT_TRUE(server().focus.isActive());
}

TEST_F(KeyEquivalentsTest, AnAlertAcceptsOnlyCommandQ) {
  application.reopen();
  OrvanePermissionAlert::show(nullptr);
  machine.runDue();
  ASSERT_TRUE(isOpen("alert"));
  EXPECT_FALSE(command(","));
  EXPECT_FALSE(command("h"));
  EXPECT_TRUE(isOpen("alert"));
  EXPECT_FALSE(isOpen("settings"));
  EXPECT_TRUE(command("q"));
  EXPECT_FALSE(application.isRunning());
}

TEST_F(KeyEquivalentsTest, OtherKeysAreNotHandled) {
  application.reopen();
  EXPECT_FALSE(command("n"));
  EXPECT_FALSE(hand.key({ui::Key::character, {}, "q"}));
  EXPECT_FALSE(hand.key({ui::Key::character, {true, false, false, true}, "q"}));
  machine.runDue();
  EXPECT_TRUE(application.isRunning());
}

}  // namespace
}  // namespace orvane
