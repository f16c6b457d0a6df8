// Contract tests for screen-reader announcements.
#include <string>

#include "Orvane/platform/appkit/Accessibility.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::Accessibility;

using AccessibilityContract = ContractFixture;

TEST_F(AccessibilityContract, AnyTextCanBeAnnouncedWithoutAScreenReader) {
  for (const char* const text :
       {"The Dock is pinned to Left", "\xE5\xB7\xB2\xE9\x98\xB2\xE6\xAD\xA2 Dock", ""}) {
    Accessibility::announce(text);
  }
  for (const char* const invalidUtf8 :
       {"\xC3", "cut off \xE5\xB7", "\xED\xA0\x80", "\xC0\xAF", "\xFF\xFE"}) {
    Accessibility::announce(invalidUtf8);
  }
  bool isDelivered = false;
  appkit::MainQueue::async([&isDelivered] { isDelivered = true; });
  letTimePass(0.05);
  EXPECT_TRUE(isDelivered) << "the main queue still runs";
}

}  // namespace
}  // namespace orvane
