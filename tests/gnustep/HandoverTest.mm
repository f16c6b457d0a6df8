// Tests of several copies of the application in one session.
#import <AppKit/AppKit.h>

#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/Application.hpp"
#include "macos/handover/Handover.hpp"
#include "tests/contract/ContractFixture.hpp"
#include "tests/gnustep/shim/World.hpp"

@interface OrvaneReopenCounter : NSObject <NSApplicationDelegate> {
 @public
  int _count;
}
@end
@implementation OrvaneReopenCounter
- (BOOL)applicationShouldHandleReopen:(NSApplication*)application
                    hasVisibleWindows:(BOOL)hasVisibleWindows {
  ++_count;
  return YES;
}
@end

namespace orvane {
namespace {

using gnustep::world;

/// The copy under test was launched at 1000 seconds.
class HandoverOnMac : public ContractFixture {
 protected:
  static constexpr int otherProcess = 1;
};

TEST_F(HandoverOnMac, TheOnlyCopyRemains) {
  EXPECT_FALSE(handOverToRunningCopy());
  EXPECT_TRUE(world().distributedNotifications.empty());
}

TEST_F(HandoverOnMac, ALaterCopyAsksTheFirstAndGivesWay) {
  world().otherCopies[otherProcess] = {.launchedAt = 999};
  world().otherCopies[otherProcess + 1] = {.launchedAt = 1001, .isRunning = false};
  EXPECT_TRUE(handOverToRunningCopy());
  EXPECT_EQ(world().distributedNotifications, std::vector<std::string>{"app.orvane.Orvane.show"});
  EXPECT_EQ(world().yieldedTo, std::vector<int>{otherProcess});
}

TEST_F(HandoverOnMac, TheFirstOfTwoThatStartAtOnceRemains) {
  world().otherCopies[otherProcess] = {.launchedAt = 1001, .isRunning = false};
  EXPECT_FALSE(handOverToRunningCopy());
  EXPECT_TRUE(world().yieldedTo.empty());
  world().otherCopies[otherProcess] = {.launchedAt = 999, .isRunning = false};
  EXPECT_TRUE(handOverToRunningCopy());
}

TEST_F(HandoverOnMac, ACopyStartedByHandRemainsWhenItRuns) {
  world().otherCopies[otherProcess] = {.launchedAt = std::nullopt};
  EXPECT_TRUE(handOverToRunningCopy());
  world().otherCopies[otherProcess] = {.launchedAt = std::nullopt, .isRunning = false};
  EXPECT_FALSE(handOverToRunningCopy());
}

TEST_F(HandoverOnMac, TheRunningCopyIsActivatedByTheNewOne) {
  appkit::Application::activateIgnoringOtherApps();
  EXPECT_EQ(world().activations, 1);
}

TEST_F(HandoverOnMac, TheFirstCopyShowsItsWindowWhenALaterOneAsks) {
  OrvaneReopenCounter* const delegate = [[OrvaneReopenCounter alloc] init];
  NSApp.delegate = delegate;
  answerLaterCopies();
  EXPECT_EQ(delegate->_count, 0);
  world().otherCopies[otherProcess] = {.launchedAt = 999};
  EXPECT_TRUE(handOverToRunningCopy());
  EXPECT_EQ(delegate->_count, 1);
  NSApp.delegate = nil;
}

}  // namespace
}  // namespace orvane
