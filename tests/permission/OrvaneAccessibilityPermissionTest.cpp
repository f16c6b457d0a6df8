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
  [[nodiscard]] std::vector<std::string> openedLinks() const {
    std::vector<std::string> urls;
    for (const desk::Links::Opened& opened : machine.links.opened()) {
      urls.push_back(opened.url + (opened.wasAccepted ? "" : " refused"));
    }
    return urls;
  }

  std::vector<std::function<void()>> prompts;
  std::string granted;
};

const char* const newPane =
    "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_Accessibility";
const char* const olderPane =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
const char* const olderPaneWithoutAnchor =
    "x-apple.systempreferences:com.apple.preference.security";

TEST_F(OrvaneAccessibilityPermissionTest, WithThePermissionTheCallbackIsCalledAtOnce) {
  machine.permission.setTrusted(true);
  check('a');
  EXPECT_EQ(granted, "a");
  EXPECT_TRUE(prompts.empty());
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
  EXPECT_EQ(machine.runLoop.pendingTaskCount(), 0U);
}

TEST_F(OrvaneAccessibilityPermissionTest, ACallbackMayBeMissing) {
  machine.permission.setTrusted(true);
  OrvaneAccessibilityPermission::check(nullptr);
  machine.permission.setTrusted(false);
  OrvaneAccessibilityPermission::check(nullptr);
  EXPECT_EQ(prompts.size(), 1U);
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

TEST_F(OrvaneAccessibilityPermissionTest, TwoChecksWithinASecondAskOnce) {
  check('a');
  machine.advance(0.999);
  check('b');
  machine.runDue();
  EXPECT_EQ(prompts.size(), 1U);
  machine.advance(60);
  for (const auto& prompt : prompts) {
    prompt();
  }
  EXPECT_EQ(granted, "a") << "the second callback was dropped";
}

TEST_F(OrvaneAccessibilityPermissionTest, AfterASecondTheUserIsAskedAgain) {
  check('a');
  machine.advance(1.0);
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
  check('b');
  machine.runDue();
  EXPECT_EQ(prompts.size(), 2U);
}

TEST_F(OrvaneAccessibilityPermissionTest, ADroppedRequestDoesNotProlongTheSecond) {
  check('a');
  machine.advance(0.75);
  check('b');
  machine.advance(0.25);
  EXPECT_FALSE(OrvaneAccessibilityPermission::isChecking());
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

TEST_F(OrvaneAccessibilityPermissionTest, TheSettingsOpenByTheNewPane) {
  OrvaneAccessibilityPermission::openSystemSettings();
  EXPECT_EQ(openedLinks(), std::vector<std::string>{newPane});
}

TEST_F(OrvaneAccessibilityPermissionTest, RefusedLinksFallBackInOrder) {
  const std::string refused = " refused";
  machine.links.refuse("x-apple.systempreferences:com.apple.settings");
  OrvaneAccessibilityPermission::openSystemSettings();
  machine.runDue();
  EXPECT_EQ(openedLinks(), (std::vector<std::string>{newPane + refused, olderPane}));

  machine.links.refuse(olderPane);
  OrvaneAccessibilityPermission::openSystemSettings();
  machine.runDue();
  const std::vector<std::string> opened = openedLinks();
  EXPECT_EQ(
      std::vector<std::string>(opened.begin() + 2, opened.end()),
      (std::vector<std::string>{newPane + refused, olderPane + refused, olderPaneWithoutAnchor}));
}

TEST_F(OrvaneAccessibilityPermissionTest, WhenEveryLinkIsRefusedSystemSettingsItselfOpens) {
  const std::string refused = " refused";
  machine.links.refuse("x-apple.systempreferences:");
  OrvaneAccessibilityPermission::openSystemSettings();
  machine.runDue();
  EXPECT_EQ(openedLinks(),
            (std::vector<std::string>{newPane + refused, olderPane + refused,
                                      olderPaneWithoutAnchor + refused,
                                      "file:///System/Applications/System%20Settings.app"}));
}

}  // namespace
}  // namespace orvane
