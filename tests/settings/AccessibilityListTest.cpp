// The entries of the Accessibility list, and their changes.
#include "Orvane/platform/Quartz.hpp"
#include "desk/settings/AccessibilityList.hpp"
#include "tests/support/MachineFixture.hpp"

namespace orvane::desk {
namespace {

class AccessibilityListTest : public MachineFixture {
 protected:
  [[nodiscard]] std::string names() const {
    std::string all;
    for (const AccessibilityList::Entry& entry : list.entries()) {
      all += (all.empty() ? "" : ", ") + entry.name + (entry.isAllowed ? " on" : " off");
    }
    return all;
  }

  AccessibilityList list{machine.permission};
};

TEST_F(AccessibilityListTest, RequestingThePermissionListsOrvane) {
  EXPECT_EQ(names(), "Remote Help on, Text Macros off");
  EXPECT_FALSE(AXIsProcessTrusted());
  EXPECT_EQ(names(), "Orvane off, Remote Help on, Text Macros off");
}

TEST_F(AccessibilityListTest, ARemovedApplicationLosesThePermissionAndARequestDoesNotRelistIt) {
  list.add("Orvane");
  list.remove("Orvane");
  EXPECT_FALSE(AXIsProcessTrusted());
  EXPECT_EQ(names(), "Remote Help on, Text Macros off");
  list.setAllowed("Orvane", true);
  EXPECT_FALSE(AXIsProcessTrusted()) << "an unlisted application has no switch";
  list.add("Orvane");
  EXPECT_TRUE(AXIsProcessTrusted());
  EXPECT_EQ(names(), "Orvane on, Remote Help on, Text Macros off");
}

TEST_F(AccessibilityListTest, OtherApplicationsAreIndependent) {
  list.setAllowed("Text Macros", true);
  list.remove("Remote Help");
  EXPECT_EQ(names(), "Text Macros on");
  EXPECT_FALSE(AXIsProcessTrusted());
}

TEST_F(AccessibilityListTest, UnlistedApplicationsCanBeAdded) {
  EXPECT_EQ(list.applicationsNotListed(), (std::vector<std::string>{"Orvane", "Pointer Lens"}));
  list.add("Pointer Lens");
  EXPECT_EQ(list.applicationsNotListed(), std::vector<std::string>{"Orvane"});
}

TEST_F(AccessibilityListTest, TheNameOfAnApplicationIsThatOfItsBundle) {
  EXPECT_EQ(AccessibilityList::applicationOf("file:///Applications/Orvane.app/"), "Orvane");
  EXPECT_EQ(AccessibilityList::applicationOf("file:///A/B.app"), "B");
  EXPECT_EQ(AccessibilityList::applicationOf("file:///A/B.txt"), "");
  EXPECT_EQ(AccessibilityList::applicationOf("https://example.org/B.app"), "");
  EXPECT_EQ(AccessibilityList::applicationOf(""), "");
}

}  // namespace
}  // namespace orvane::desk
