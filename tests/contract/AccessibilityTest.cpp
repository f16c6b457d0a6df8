// Contract tests for screen-reader announcements.
#include <string>

#include "Orvane/platform/appkit/Accessibility.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Accessibility;

class AccessibilityContract : public ContractFixture {
 protected:
  /// Whether the main queue still delivers tasks after everything due has run.
  bool isAlive() {
    bool isDelivered = false;
    appkit::MainQueue::async([&isDelivered] { isDelivered = true; });
    letTimePass(0.05);
    return isDelivered;
  }
};

TEST_F(AccessibilityContract, ATextIsTakenWhetherAnybodyListensOrNot) {
  Accessibility::announce("The Dock is pinned to Left");
  Accessibility::announce("\xE5\xB7\xB2\xE9\x98\xB2\xE6\xAD\xA2 Dock");
  Accessibility::announce("The Dock is no longer guarded");
  EXPECT_TRUE(isAlive());
}

TEST_F(AccessibilityContract, NothingHappensForAnEmptyText) {
  Accessibility::announce("");
  EXPECT_TRUE(isAlive());
}

TEST_F(AccessibilityContract, NothingHappensForTextThatIsNotUtf8) {
  for (const char* const text :
       {"\xC3", "cut off \xE5\xB7", "\xED\xA0\x80", "\xC0\xAF", "\xFF\xFE"}) {
    Accessibility::announce(text);
  }
  EXPECT_TRUE(isAlive());
}

}  // namespace
}  // namespace orvane
