// The check for the permission, the prompt at most once a second, and the links to the settings.
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane {
namespace {

class OrvaneAccessibilityPermissionTest : public desk::MachineFixture {
 protected:
  OrvaneAccessibilityPermissionTest() { notePrompts(); }

  void notePrompts() {
    OrvaneAccessibilityPermission::setPrompt(
        [this](std::function<void()> onGranted) { prompts.push_back(std::move(onGranted)); });
  }
  /// A check whose callback appends `name` to `granted`.
  void check(char name) {
    OrvaneAccessibilityPermission::check([this, name] { granted += name; });
  }

  std::vector<std::function<void()>> prompts;
  std::string granted;
};

TEST_F(OrvaneAccessibilityPermissionTest, WithThePermissionTheCallbackIsCalledAtOnce) {
  machine.permission.setTrusted(true);
  check('a');
  EXPECT_EQ(granted, "a");
  EXPECT_TRUE(prompts.empty());
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
  EXPECT_EQ(machine.runLoop.pendingTaskCount(), 0U);
  OrvaneAccessibilityPermission::check(nullptr);
}

TEST_F(OrvaneAccessibilityPermissionTest, WithoutThePermissionTheUserIsAsked) {
  check('a');
  machine.runDue();
  ASSERT_EQ(prompts.size(), 1U);
  EXPECT_TRUE(OrvaneAccessibilityPermission::isChecking());
  EXPECT_EQ(granted, "");
  prompts[0]();
  EXPECT_EQ(granted, "a") << "the callback of the check";
}

TEST_F(OrvaneAccessibilityPermissionTest, ACheckWithinASecondOfAPromptIsDropped) {
  check('a');
  machine.advance(0.75);
  check('b');
  EXPECT_EQ(prompts.size(), 1U);
  // The dropped request does not prolong the second.
  machine.advance(0.249);
  EXPECT_TRUE(OrvaneAccessibilityPermission::isChecking());
  machine.advance(0.001);
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
  OrvaneAccessibilityPermission::check(nullptr);
  EXPECT_EQ(prompts.size(), 2U);
}

TEST_F(OrvaneAccessibilityPermissionTest, AGrantedPermissionIsNoticedAfterAPrompt) {
  check('a');
  machine.permission.setTrusted(true);
  check('b');
  EXPECT_EQ(granted, "b");
}

TEST_F(OrvaneAccessibilityPermissionTest, WithoutAPromptTheUserIsNotAsked) {
  OrvaneAccessibilityPermission::setPrompt(nullptr);
  check('a');
  machine.advance(5);
  EXPECT_EQ(granted, "");
}

TEST_F(OrvaneAccessibilityPermissionTest, TheNextProcessAsksAgain) {
  check('a');
  machine.process.end();
  machine.process.start();
  notePrompts();
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
  check('b');
  machine.runDue();
  EXPECT_EQ(prompts.size(), 2U);
}

TEST_F(OrvaneAccessibilityPermissionTest, WhenEveryLinkIsRefusedSystemSettingsItselfOpens) {
  machine.links.refuse("x-apple.systempreferences:");
  OrvaneAccessibilityPermission::openSystemSettings();
  machine.runDue();
  const std::string prefix = "x-apple.systempreferences:com.apple.";
  EXPECT_EQ(openedLinks(),
            (std::vector<std::string>{
                prefix + "settings.PrivacySecurity.extension?Privacy_Accessibility refused",
                prefix + "preference.security?Privacy_Accessibility refused",
                prefix + "preference.security refused",
                "file:///System/Applications/System%20Settings.app"}));
}

}  // namespace
}  // namespace orvane
