// Tests that the position of the status item is kept while the item exists.
#import <AppKit/AppKit.h>

#include <optional>

#include "Orvane/platform/appkit/StatusItem.hpp"
#include "tests/contract/ContractFixture.hpp"
#include "tests/gnustep/shim/Methods.hpp"

namespace orvane {
namespace {

class StatusItemOnMac : public ContractFixture {
 protected:
  /// Records the item that the bar creates, and counts the removed items. GNUstep's bar never
  /// releases its items.
  StatusItemOnMac() {
    gnustep::replaceMethod(NSStatusBar.class, @selector(statusItemWithLength:),
                           ^NSStatusItem*(NSStatusBar*, CGFloat) {
                             NSStatusItem* const item = [[NSStatusItem alloc] init];
                             made() = item;
                             return item;
                           });
    gnustep::replaceMethod(NSStatusBar.class, @selector(removeStatusItem:),
                           ^(NSStatusBar*, NSStatusItem* item) {
                             ++removals();
                             [item.button.window close];
                           });
    removals() = 0;
  }

  static __weak NSStatusItem*& made() {
    static __weak NSStatusItem* item = nil;
    return item;
  }
  static int& removals() {
    static int count = 0;
    return count;
  }
  void makeItem() {
    @autoreleasepool {
      owner.emplace();
    }
  }
  void endItem() {
    @autoreleasepool {
      owner.reset();
    }
    // Drains the test's own autorelease pool, too.
    letTimePass(0.01);
  }

  std::optional<appkit::StatusItem> owner;
};

TEST_F(StatusItemOnMac, ItLeavesTheBarWithItsOwner) {
  makeItem();
  EXPECT_NE(made(), nil);
  endItem();
  EXPECT_EQ(removals(), 1);
  EXPECT_EQ(made(), nil);
}

TEST_F(StatusItemOnMac, AtTheEndOfTheApplicationItNeitherLeavesTheBarNorEnds) {
  makeItem();
  [NSNotificationCenter.defaultCenter postNotificationName:NSApplicationWillTerminateNotification
                                                    object:NSApp];
  endItem();
  EXPECT_EQ(removals(), 0);
  EXPECT_NE(made(), nil);
}

}  // namespace
}  // namespace orvane
