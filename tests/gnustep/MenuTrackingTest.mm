// Tests of open menus: rows that rebuild their own menu, the keyboard, and a modal session that
// begins meanwhile.
#include <functional>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Menu.hpp"
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "macos/appkit/MenuImplementation.hpp"
#include "macos/hosting/HostingContainer.hpp"
#include "tests/gnustep/MacHalfFixture.hpp"

namespace orvane {
namespace {

class MenuTracking : public MacHalfFixture {
 protected:
  static appkit::MenuItem rowWith(std::function<void()> action) {
    appkit::MenuItem row;
    row.title = "row";
    row.action = action;
    appkit::HostingView view([action](const ui::Environment&) -> ui::View {
      return ui::Button(action, ui::Rectangle().frame(180, 30));
    });
    view.setFrame(CGRectMake(0, 0, 180, 30));
    row.view = view;
    return row;
  }
  static void addRow(appkit::Menu& menu, std::function<void()> action) {
    menu.insertItem(0, rowWith(std::move(action)));
  }

  /// Opens the menu of a new status item and returns when it is closed.
  static void open(const appkit::Menu& menu) {
    appkit::StatusItem item;
    item.setMenu(menu);
    clickStatusItem();
  }

  /// The same with an existing item.
  static void clickStatusItem() {
    for (NSWindow* window in NSApp.windows) {
      if (window.visible && [window.contentView isKindOfClass:NSStatusBarButton.class]) {
        @autoreleasepool {
          [static_cast<NSStatusBarButton*>(window.contentView) performClick:nil];
        }
        return;
      }
    }
    ADD_FAILURE() << "the status bar has no item";
  }

  static bool isMenuOpen() { return openMenuWindow() != nil; }

  static NSView* row(int index) {
    return [[openMenuWindow().contentView subviews] objectAtIndex:static_cast<NSUInteger>(index)];
  }

  static void clickRow(int index) {
    const NSRect frame = [row(index) convertRect:row(index).bounds toView:nil];
    for (NSEventType type : {NSLeftMouseDown, NSLeftMouseUp}) {
      [NSApp postEvent:[NSEvent mouseEventWithType:type
                                          location:NSMakePoint(NSMidX(frame), NSMidY(frame))
                                     modifierFlags:0
                                         timestamp:0
                                      windowNumber:openMenuWindow().windowNumber
                                           context:nil
                                       eventNumber:0
                                        clickCount:1
                                          pressure:1]
               atStart:NO];
    }
  }
};

TEST_F(MenuTracking, ARowMayChangeItsOwnItemAndItsNeighbour) {
  appkit::Menu menu;
  int clicks = 0;
  appkit::MenuItem clicked;
  appkit::MenuItem neighbour = rowWith([] {});
  clicked = rowWith([&] {
    ++clicks;
    NSView* const before = row(0);
    clicked.title = "changed";
    neighbour.isEnabled = false;
    menu.changeItem(0, clicked);
    menu.changeItem(1, neighbour);
    EXPECT_EQ(row(0), before);
  });
  menu.insertItem(0, clicked);
  menu.insertItem(1, neighbour);
  when(isMenuOpen, [] { clickRow(0); });
  when([&] { return clicks == 1; }, [&] { clickRow(0); });
  when([&] { return clicks == 2; },
       [&] {
         NSMenu* const native = menu.implementation()->menu;
         EXPECT_STREQ([native itemAtIndex:0].title.UTF8String, "changed");
         EXPECT_FALSE([native itemAtIndex:1].isEnabled);
         menu.cancelTracking();
       });
  open(menu);
  EXPECT_EQ(clicks, 2);
}

TEST_F(MenuTracking, WhatFollowsTheClosingRunsWhenTheMenusLoopHasEnded) {
  appkit::Menu menu;
  int endings = 0;
  addRow(menu, [&] {
    menu.cancelTracking([&] {
      ++endings;
      EXPECT_FALSE(isMenuOpen());
      EXPECT_TRUE([NSRunLoop.currentRunLoop.currentMode isEqual:NSDefaultRunLoopMode]);
    });
    EXPECT_EQ(endings, 0);
  });
  when(isMenuOpen, [] { clickRow(0); });
  open(menu);
  EXPECT_EQ(endings, 0);
  EXPECT_TRUE(isSoon([&] { return endings == 1; }));
}

TEST_F(MenuTracking, WhatWaitsForTheEndOfAMenuWaitsWhileItIsOpen) {
  appkit::Menu menu;
  int runs = 0;
  addRow(menu, [&] {
    appkit::whenNoMenuIsTracked([&] { ++runs; });
    appkit::MainQueue::asyncAfter(0.1, [&] {
      EXPECT_TRUE(isMenuOpen());
      EXPECT_EQ(runs, 0);
      menu.cancelTracking();
    });
  });
  when(isMenuOpen, [] { clickRow(0); });
  open(menu);
  EXPECT_TRUE(isSoon([&] { return runs == 1; }));
}

TEST_F(MenuTracking, ASwitchThatTheKeyboardChoosesLeavesTheMenuOpen) {
  appkit::Menu menu;
  int choices = 0;
  int openings = 0;
  appkit::MenuItem row = rowWith([&] { ++choices; });
  row.keepsMenuOpen = true;
  menu.insertItem(0, row);
  menu.onWillOpen([&] { ++openings; });
  appkit::StatusItem item;
  item.setMenu(menu);
  typeIntoMenu(@[ functionKey(NSDownArrowFunctionKey), @"\r" ]);
  when([&] { return openings == 2 && isMenuOpen(); }, [&] { menu.cancelTracking(); });
  clickStatusItem();
  EXPECT_EQ(choices, 1);
  EXPECT_TRUE(isSoon([&] { return openings == 2 && !isMenuOpen(); }));
  letTimePass(0.05);
  EXPECT_EQ(openings, 2);
}

TEST_F(MenuTracking, ASwitchWhoseChoiceBringsUpAnAlertLeavesTheMenuClosed) {
  appkit::Menu menu;
  int openings = 0;
  appkit::Window panel(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
                       appkit::StyleMask::titled);
  int alerts = 0;
  appkit::MenuItem row = rowWith([&] {
    // The permission alert begins in the same way: in a main-queue task.
    appkit::MainQueue::async([&] {
      NSDate* const read = [NSDate dateWithTimeIntervalSinceNow:0.2];
      when([read] { return NSApp.modalWindow != nil && read.timeIntervalSinceNow < 0; },
           [&] {
             ++alerts;
             EXPECT_FALSE(isMenuOpen());
             appkit::Application::stopModal(1001);
           });
      [NSApp runModalForWindow:nativeOf(panel)];
    });
  });
  row.keepsMenuOpen = true;
  menu.insertItem(0, row);
  menu.onWillOpen([&] { ++openings; });
  appkit::StatusItem item;
  item.setMenu(menu);
  typeIntoMenu(@[ functionKey(NSDownArrowFunctionKey), @"\r" ]);
  clickStatusItem();
  EXPECT_TRUE(isSoon([&] { return alerts == 1; }));
  letTimePass(0.1);
  EXPECT_EQ(openings, 1);
  panel.close();
}

TEST_F(MenuTracking, TheButtonMayComeUpOverARowWhereItDidNotGoDown) {
  appkit::Menu menu;
  int clicks = 0;
  addRow(menu, [&] { ++clicks; });
  when(isMenuOpen, [] {
    // The menu's tracking loop sends it to the view under the pointer.
    OrvaneHostView* const view = static_cast<OrvaneHostingContainer*>(row(0)).hostView;
    const NSPoint middle = [view convertPoint:NSMakePoint(90, 15) toView:nil];
    [view mouseUp:mouseEvent(openMenuWindow(), NSLeftMouseUp, middle.x,
                             NSHeight([openMenuWindow().contentView frame]) - middle.y)];
  });
  when([&] { return clicks > 0; }, [&] { menu.cancelTracking(); });
  open(menu);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenuTracking, TheKeyboardLightsUpARowAndChoosesIt) {
  appkit::Menu menu;
  std::vector<int> chosen;
  for (std::size_t index = 0; index < 2; ++index) {
    menu.insertItem(index,
                    rowWith([&chosen, index] { chosen.push_back(static_cast<int>(index)); }));
  }
  const auto isLit = [](int index) {
    return static_cast<bool>(static_cast<OrvaneHostingContainer*>(row(index)).highlighted);
  };
  NSString* const down = functionKey(NSDownArrowFunctionKey);
  typeIntoMenu(@[ down, down ]);
  when([&] { return isMenuOpen() && isLit(1); },
       [&] {
         EXPECT_FALSE(isLit(0));
         typeIntoMenu(@[ @"\r" ]);
       });
  open(menu);
  EXPECT_EQ(chosen, std::vector<int>{1});
  for (NSMenuItem* item in menu.implementation()->menu.itemArray) {
    EXPECT_FALSE(static_cast<OrvaneHostingContainer*>(item.view).highlighted);
  }
}

TEST_F(MenuTracking, AModalSessionBeginsWhenTheMenuHasClosed) {
  appkit::Menu menu;
  bool wasMenuOpen = true;
  int response = 0;
  appkit::Window panel(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
                       appkit::StyleMask::titled);
  addRow(menu, [&] {
    appkit::Application::runModal(panel, [&](int code) { response = code; });
    EXPECT_EQ(response, 0) << "the menu's row waits for the session";
  });
  when([] { return NSApp.modalWindow != nil; },
       [&] {
         wasMenuOpen = isMenuOpen();
         appkit::Application::stopModal(1001);
       });
  when(isMenuOpen, [] { clickRow(0); });
  open(menu);
  EXPECT_TRUE(isSoon([&] { return response == 1001; }));
  EXPECT_FALSE(wasMenuOpen);
  panel.close();
}

}  // namespace
}  // namespace orvane
