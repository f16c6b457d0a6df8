// Tests of the accessibility tree of a host view and the notifications of its changes.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/StatusItem.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/gnustep/MacHalfFixture.hpp"
#include "tests/gnustep/shim/World.hpp"

namespace orvane {
namespace {

using appkit::Window;
using gnustep::world;

class VoiceOver : public MacHalfFixture {
 protected:
  Window showTwoButtons() {
    return show([this](const ui::Environment&) -> ui::View {
      const auto button = [](int& presses, const char* label) {
        return ui::Button([&presses] { ++presses; }, ui::Rectangle().frame(200, 50))
            .accessibilityLabel(label);
      };
      return ui::VStack(0, {button(first, firstLabel.c_str()), button(second, "second")});
    });
  }

  static bool wasPosted(NSString* notification) {
    return std::ranges::count(world().announcements, std::string(notification.UTF8String) + "|") >
           0;
  }

  int first = 0;
  int second = 0;
  std::string firstLabel = "first";
};

TEST_F(VoiceOver, EachElementReportsItsRoleAndFrame) {
  Window window = showTwoButtons();
  OrvaneHostView* const view = hostOf(window);
  NSArray* const children = [view accessibilityChildren];
  ASSERT_EQ(children.count, 2U);
  NSAccessibilityElement* const top = children[0];
  NSAccessibilityElement* const bottom = children[1];
  EXPECT_STREQ(top.accessibilityLabel.UTF8String, "first");
  EXPECT_TRUE([top.accessibilityRole isEqual:NSAccessibilityButtonRole]);
  EXPECT_EQ(top.accessibilityParent, nativeOf(window));
  // A button includes the space of its focus ring.
  EXPECT_TRUE(CGRectEqualToRect(top.accessibilityFrame, CGRectMake(88, 150, 224, 60)));
  EXPECT_TRUE(CGRectEqualToRect(bottom.accessibilityFrame, CGRectMake(88, 90, 224, 60)));
  window.setFrameOrigin(CGPointMake(120, 90));
  EXPECT_TRUE(CGRectEqualToRect(bottom.accessibilityFrame, CGRectMake(108, 80, 224, 60)));
  window.close();
}

TEST_F(VoiceOver, AnElementInAnotherHasThatForItsParent) {
  Window window = show([](const ui::Environment&) -> ui::View {
    return ui::ScrollView(ui::Rectangle().frame(200, 300).accessibilityLabel("inside"));
  });
  NSAccessibilityElement* const area = [hostOf(window) accessibilityChildren].firstObject;
  ASSERT_EQ(area.accessibilityChildren.count, 1U);
  NSAccessibilityElement* const inside = area.accessibilityChildren.firstObject;
  EXPECT_EQ(inside.accessibilityParent, area);
  EXPECT_EQ(area.accessibilityParent, nativeOf(window));
  window.close();
}

TEST_F(VoiceOver, ATextIsAValueAndAHeadingALabel) {
  Window window = show([](const ui::Environment&) -> ui::View {
    return ui::VStack(0, {ui::Text("above").accessibilityRole(ui::Role::heading), ui::Text("below"),
                          ui::Text("state").accessibilityValue("on")});
  });
  NSArray* const children = [hostOf(window) accessibilityChildren];
  ASSERT_EQ(children.count, 3U);
  NSAccessibilityElement* const heading = children[0];
  EXPECT_STREQ(heading.accessibilityRole.UTF8String, "AXHeading");
  EXPECT_STREQ(heading.accessibilityLabel.UTF8String, "above");
  EXPECT_EQ(heading.accessibilityValue, nil);
  NSAccessibilityElement* const text = children[1];
  EXPECT_TRUE([text.accessibilityRole isEqual:NSAccessibilityStaticTextRole]);
  EXPECT_EQ(text.accessibilityLabel, nil);
  EXPECT_STREQ([text.accessibilityValue UTF8String], "below");
  NSAccessibilityElement* const state = children[2];
  EXPECT_EQ(state.accessibilityLabel, nil);
  EXPECT_STREQ([state.accessibilityValue UTF8String], "state, on");
  window.close();
}

TEST_F(VoiceOver, AnElementIsFoundByItsPositionAndPressed) {
  Window window = showTwoButtons();
  OrvaneHostView* const view = hostOf(window);
  NSArray* const children = [view accessibilityChildren];
  EXPECT_EQ([view accessibilityHitTest:NSMakePoint(150, 190)], children[0]);
  EXPECT_EQ([view accessibilityHitTest:NSMakePoint(150, 110)], children[1]);
  EXPECT_EQ([view accessibilityHitTest:NSMakePoint(0, 0)], view);
  EXPECT_TRUE([children[1] accessibilityPerformPress]);
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 1);
  for (const SEL selector : {
         @selector(accessibilityPerformPress), @selector(setAccessibilityFocused:),
             @selector(accessibilityLabel)
       }) {
    EXPECT_TRUE([children[1] isAccessibilitySelectorAllowed:selector]);
  }
  window.close();
}

TEST_F(VoiceOver, AnElementStaysTheSameThroughAnUpdate) {
  Window window = showTwoButtons();
  OrvaneHostView* const view = hostOf(window);
  NSAccessibilityElement* const before = [view accessibilityChildren][0];
  firstLabel = "another";
  window.contentView()->setNeedsUpdate();
  NSAccessibilityElement* const after = [view accessibilityChildren][0];
  EXPECT_EQ(before, after);
  EXPECT_STREQ(after.accessibilityLabel.UTF8String, "another");
  window.close();
}

TEST_F(VoiceOver, TheFocusOfTheKeyboardFollows) {
  Window window = showTwoButtons();
  OrvaneHostView* const view = hostOf(window);
  NSArray* const children = [view accessibilityChildren];
  EXPECT_EQ([view accessibilityFocusedUIElement], view);
  [children[1] setAccessibilityFocused:YES];
  EXPECT_EQ([view accessibilityFocusedUIElement], children[1]);
  EXPECT_TRUE([children[1] isAccessibilityFocused]);
  EXPECT_FALSE([children[0] isAccessibilityFocused]);
  EXPECT_TRUE(wasPosted(NSAccessibilityFocusedUIElementChangedNotification));
  key(nativeOf(window), @" ");
  EXPECT_EQ(second, 1);
  window.close();
}

TEST_F(VoiceOver, AListenerIsNotifiedOfAChange) {
  world().isVoiceOverOn = true;
  Window window = showTwoButtons();
  (void)[hostOf(window) accessibilityChildren];
  world().announcements.clear();
  firstLabel = "another";
  window.contentView()->setNeedsUpdate();
  letTimePass(0.05);
  EXPECT_TRUE(wasPosted(NSAccessibilityLayoutChangedNotification));
  window.close();
}

TEST_F(VoiceOver, TheStatusItemAnnouncesItsValueAndItsChanges) {
  appkit::StatusItem item;
  NSStatusBarButton* button = nil;
  for (NSWindow* window in NSApp.windows) {
    if (window.visible && [window.contentView isKindOfClass:NSStatusBarButton.class]) {
      button = static_cast<NSStatusBarButton*>(window.contentView);
    }
  }
  item.setAccessibilityValue("Unlocked");
  EXPECT_STREQ([button.accessibilityValue UTF8String], "Unlocked");
  world().announcements.clear();
  item.setAccessibilityValue("Locked");
  EXPECT_STREQ([button.accessibilityValue UTF8String], "Locked");
  EXPECT_TRUE(wasPosted(NSAccessibilityValueChangedNotification));
  world().announcements.clear();
  item.setAccessibilityValue("Locked");
  EXPECT_TRUE(world().announcements.empty());
}

TEST_F(VoiceOver, ARemovedElementAndANewValueAreAnnounced) {
  bool isOn = false;
  Window window = show([&](const ui::Environment&) -> ui::View {
    const auto toggle = ui::Rectangle()
                            .frame(200, 50)
                            .accessibilityLabel("switch")
                            .accessibilityRole(ui::Role::toggle)
                            .accessibilityValue(isOn ? "1" : "0");
    const auto other = ui::Rectangle().frame(200, 50).accessibilityLabel("other");
    return ui::VStack(0,
                      isOn ? std::vector<ui::View>{toggle} : std::vector<ui::View>{toggle, other});
  });
  NSAccessibilityElement* const element = [hostOf(window) accessibilityChildren].firstObject;
  EXPECT_TRUE([element.accessibilityRole isEqual:NSAccessibilityCheckBoxRole]);
  EXPECT_TRUE([element.accessibilitySubrole isEqual:NSAccessibilitySwitchSubrole]);
  EXPECT_EQ([element.accessibilityValue integerValue], 0);
  isOn = true;
  window.contentView()->setNeedsUpdate();
  (void)[hostOf(window) accessibilityChildren];
  EXPECT_EQ([element.accessibilityValue integerValue], 1);
  EXPECT_TRUE(wasPosted(NSAccessibilityValueChangedNotification));
  EXPECT_TRUE(wasPosted(NSAccessibilityUIElementDestroyedNotification));
  window.close();
}

}  // namespace
}  // namespace orvane
