// Tests of a host view's events on AppKit: pointer, keys, wheel and changes of its environment.
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/ScrollView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "tests/gnustep/MacHalfFixture.hpp"
#include "tests/gnustep/shim/World.hpp"

@interface OrvaneNextResponder : NSResponder {
 @public
  int _keys;
  int _scrolls;
}
@end
@implementation OrvaneNextResponder
- (void)keyDown:(NSEvent*)event {
  ++_keys;
}
- (void)scrollWheel:(NSEvent*)event {
  ++_scrolls;
}
@end

namespace orvane {
namespace {

using appkit::Window;

class HostView : public MacHalfFixture {
 protected:
  Window showTwoButtons() {
    return show([this](const ui::Environment&) -> ui::View {
      const auto button = [](int& clicks) {
        return ui::Button([&clicks] { ++clicks; }, ui::Rectangle().frame(200, 50));
      };
      return ui::VStack(0, {button(first), button(second)});
    });
  }

  int first = 0;
  int second = 0;
};

TEST_F(HostView, AClickReachesWhatLiesUnderIt) {
  Window window = showTwoButtons();
  click(nativeOf(window), 100, 20);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 0);
  click(nativeOf(window), 100, 80);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
  window.close();
}

TEST_F(HostView, AClickThatIsReleasedElsewhereIsIgnored) {
  Window window = showTwoButtons();
  mouse(nativeOf(window), NSLeftMouseDown, 100, 20);
  mouse(nativeOf(window), NSLeftMouseDragged, 100, 80);
  mouse(nativeOf(window), NSLeftMouseUp, 100, 80);
  EXPECT_EQ(first + second, 0);
  window.close();
}

TEST_F(HostView, ACommandKeyIsAKeyEquivalentAndItsRepeatIsNot) {
  int calls = 0;
  Window window = show([&](const ui::Environment&) -> ui::View {
    return ui::Button([&] { ++calls; }, ui::Rectangle().frame(200, 100))
        .keyboardShortcut(ui::KeyboardShortcut::command("w"));
  });
  key(nativeOf(window), @"w", NSCommandKeyMask);
  EXPECT_EQ(calls, 1);
  key(nativeOf(window), @"w", NSCommandKeyMask, YES);
  EXPECT_EQ(calls, 1);
  window.close();
}

TEST_F(HostView, AKeyEquivalentThatNoViewTakesIsTheApplications) {
  std::string heard;
  appkit::ApplicationDelegate delegate;
  delegate.performKeyEquivalent = [&](const ui::KeyEvent& event) {
    heard += event.characters;
    return event.characters == ",";
  };
  appkit::Application::setDelegate(delegate);
  Window window = show([](const ui::Environment&) -> ui::View {
    return ui::Button([] {}, ui::Rectangle().frame(200, 100))
        .keyboardShortcut(ui::KeyboardShortcut::command("w"));
  });
  OrvaneHostView* const view = hostOf(window);
  EXPECT_TRUE([view performKeyEquivalent:keyEvent(nil, @",", NSCommandKeyMask)]);
  EXPECT_FALSE([view performKeyEquivalent:keyEvent(nil, @"x", NSCommandKeyMask)]);
  EXPECT_TRUE([view performKeyEquivalent:keyEvent(nil, @"w", NSCommandKeyMask)]);
  EXPECT_FALSE([view performKeyEquivalent:keyEvent(nil, @",", NSCommandKeyMask, YES)]);
  EXPECT_EQ(heard, ",x");
  appkit::Application::setDelegate({});
  window.close();
}

TEST_F(HostView, EveryKeyOfTheKitIsTranslated) {
  Window window = showTwoButtons();
  NSWindow* const native = nativeOf(window);
  // The first Tab focuses the first button, the next the second, and the back-tab the first again.
  key(native, @"\t");
  key(native, @" ");
  EXPECT_EQ(first, 1);
  key(native, @"\t");
  key(native, @"\r");
  EXPECT_EQ(second, 1);
  key(native, @"\x19", NSShiftKeyMask);
  key(native, @"\x03");
  EXPECT_EQ(first, 2);
  key(native, @" ", 0, YES);
  EXPECT_EQ(first, 2);
  window.close();
}

TEST_F(HostView, TheWheelScrollsWhatLiesUnderIt) {
  std::vector<int> clicks;
  Window window = show([&](const ui::Environment&) -> ui::View {
    std::vector<ui::View> columns;
    for (int column = 0; column < 10; ++column) {
      columns.push_back(ui::Button([&clicks, column] { clicks.push_back(column); },
                                   ui::Rectangle().frame(50, 100)));
    }
    return ui::ScrollView(ui::HStack(0, std::move(columns)));
  });
  click(nativeOf(window), 20, 50);
  NSEvent* const wheel = [NSEvent mouseEventWithType:NSScrollWheel
                                            location:NSMakePoint(100, 50)
                                       modifierFlags:0
                                           timestamp:0
                                        windowNumber:nativeOf(window).windowNumber
                                             context:nil
                                         eventNumber:0
                                          clickCount:1
                                            pressure:0
                                        buttonNumber:0
                                              deltaX:-8
                                              deltaY:0
                                              deltaZ:0];
  [NSApp sendEvent:wheel];
  letTimePass(0.05);
  // Eight lines of ten points each; a column with its margins is 74 points wide.
  click(nativeOf(window), 20, 50);
  EXPECT_EQ(clicks, (std::vector<int>{0, 1}));
  window.close();
}

TEST_F(HostView, ATooltipShowsItsText) {
  Window window = show([](const ui::Environment&) -> ui::View {
    return ui::HStack(0, {ui::Rectangle().frame(100, 100).tooltip("what this is"),
                          ui::Rectangle().frame(100, 100)});
  });
  mouse(nativeOf(window), NSMouseMoved, 50, 50);
  OrvaneHostView* const view = hostOf(window);
  EXPECT_STREQ([view view:view stringForToolTip:0 point:NSZeroPoint userData:nullptr].UTF8String,
               "what this is");
  mouse(nativeOf(window), NSMouseMoved, 150, 50);
  EXPECT_STREQ([view view:view stringForToolTip:0 point:NSZeroPoint userData:nullptr].UTF8String,
               "");
  window.close();
}

TEST_F(HostView, TheSettingsOfTheDisplayReachItsContent) {
  std::vector<bool> contrasts;
  Window window = show([&](const ui::Environment& environment) -> ui::View {
    contrasts.push_back(environment.appearance.increaseContrast);
    return ui::Rectangle();
  });
  gnustep::world().increasesContrast = true;
  [NSWorkspace.sharedWorkspace.notificationCenter
      postNotificationName:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
                    object:nil];
  letTimePass(0.05);
  ASSERT_GE(contrasts.size(), 2U);
  EXPECT_FALSE(contrasts.front());
  EXPECT_TRUE(contrasts.back());
  window.close();
}

TEST_F(HostView, APointerThatLeavesHoversOverNothing) {
  std::vector<bool> hovers;
  Window window = show([&](const ui::Environment&) -> ui::View {
    return ui::Rectangle().frame(200, 100).onHover([&](bool isOver) { hovers.push_back(isOver); });
  });
  mouse(nativeOf(window), NSMouseMoved, 100, 50);
  mouse(nativeOf(window), NSMouseMoved, 100, 150);
  EXPECT_EQ(hovers, (std::vector<bool>{true, false}));
  window.close();
}

TEST_F(HostView, UnhandledEventsGoToTheNextResponder) {
  Window window = showTwoButtons();
  OrvaneHostView* const view = hostOf(window);
  OrvaneNextResponder* const next = [[OrvaneNextResponder alloc] init];
  view.nextResponder = next;
  [view keyDown:keyEvent(nativeOf(window), @"x")];
  [view keyDown:keyEvent(nativeOf(window), @"x", 0, YES)];
  EXPECT_EQ(next->_keys, 1) << "a repeat goes nowhere";
  [view scrollWheel:mouseEvent(nativeOf(window), NSMouseMoved, 100, 50)];
  EXPECT_EQ(next->_scrolls, 1);
  window.close();
}

TEST_F(HostView, ItsContentMayDismissIt) {
  bool isDismissed = false;
  Window window = show([](const ui::Environment& environment) -> ui::View {
    return ui::Button([environment] { environment.dismiss(); }, ui::Rectangle().frame(200, 100));
  });
  click(nativeOf(window), 100, 50);
  window.contentView()->onDismiss([&] { isDismissed = true; });
  click(nativeOf(window), 100, 50);
  EXPECT_TRUE(isDismissed);
  window.close();
}

TEST_F(HostView, ItHasOneTrackingAreaHoweverOftenItMoves) {
  Window window = showTwoButtons();
  OrvaneHostView* const view = hostOf(window);
  [view updateTrackingAreas];
  [view updateTrackingAreas];
  EXPECT_EQ(view.trackingAreas.count, 1U);
  window.close();
}

TEST_F(HostView, AWindowIsMiniaturisedAndIsOnAScreen) {
  Window window(appkit::WindowKind::window, CGRectMake(100, 100, 200, 100),
                appkit::StyleMask::titled | appkit::StyleMask::miniaturizable);
  window.makeKeyAndOrderFront();
  ASSERT_TRUE(window.screen());
  EXPECT_EQ(window.screen()->frame().size.width, 1440);
  window.miniaturize();
  letTimePass(0.05);
  EXPECT_TRUE(window.isMiniaturized());
  window.deminiaturize();
  letTimePass(0.05);
  EXPECT_FALSE(window.isMiniaturized());
  window.close();
}

TEST_F(HostView, APressOnTheBackgroundDragsTheWindow) {
  Window window = show([](const ui::Environment&) -> ui::View { return ui::View(); });
  window.setMovableByWindowBackground(true);
  NSWindow* const native = nativeOf(window);
  [NSApp postEvent:mouseEvent(native, NSLeftMouseDragged, 110, 40) atStart:NO];
  [NSApp postEvent:mouseEvent(native, NSLeftMouseUp, 100, 50) atStart:NO];
  mouse(native, NSLeftMouseDown, 100, 50);
  EXPECT_EQ(window.frame().origin.x, 110);
  EXPECT_EQ(window.frame().origin.y, 110);
  window.close();
}

TEST_F(HostView, ItsLayerHasSixteenBitsForEachColour) {
  Window window = showTwoButtons();
  EXPECT_TRUE([hostOf(window).layer.contentsFormat isEqual:kCAContentsFormatRGBA16Float]);
  window.close();
}

TEST_F(HostView, ABackdropIsTheContentViewOfItsWindowAndHoldsTheContent) {
  Window window(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
                appkit::StyleMask::nonactivatingPanel);
  {
    appkit::HostingView view([](const ui::Environment&) -> ui::View { return ui::Rectangle(); });
    view.setFrame(CGRectMake(0, 0, 200, 100));
    view.setLayerCorners(24, appkit::CornerCurve::continuous, true);
    view.setBackdrop(appkit::Backdrop::behindWindow);
    window.setContentView(view);
  }
  auto* const backdrop = static_cast<NSVisualEffectView*>(nativeOf(window).contentView);
  ASSERT_TRUE([backdrop isKindOfClass:NSVisualEffectView.class]);
  // Its mask determines the window's shadow.
  EXPECT_NE(backdrop.maskImage, nil);
  EXPECT_EQ(backdrop.maskImage.capInsets.left, 39);
  OrvaneHostView* const view = hostOf(window);
  EXPECT_TRUE([view isDescendantOf:backdrop]);
  EXPECT_TRUE(NSEqualRects([view convertRect:view.bounds toView:backdrop], backdrop.bounds));
  [backdrop setFrameSize:NSMakeSize(300, 150)];
  EXPECT_TRUE(NSEqualRects([view convertRect:view.bounds toView:backdrop], backdrop.bounds));
  window.close();
}

}  // namespace
}  // namespace orvane
