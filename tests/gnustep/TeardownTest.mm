// Tests that a handler may destroy its view, its window and all their handles, and that nothing is
// leaked.
#include <memory>
#include <optional>

#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Picker.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "macos/appkit/NativeWindow.hpp"
#include "tests/gnustep/MacHalfFixture.hpp"

/// A delegate that refuses to terminate the application.
@interface OrvaneUndecided : NSObject <NSApplicationDelegate> {
 @public
  int _questions;
}
@end
@implementation OrvaneUndecided
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)application {
  ++_questions;
  return NSTerminateCancel;
}
@end

namespace orvane {
namespace {

using appkit::Window;

class Teardown : public MacHalfFixture {
 protected:
  /// Shows `root` and holds the only handle.
  void showAndWatch(appkit::HostingView::RootBuilder root) {
    @autoreleasepool {
      window.emplace(show(std::move(root)));
      native = nativeOf(*window);
      view = hostOf(*window);
    }
  }

  void endEverything() {
    window->close();
    window.reset();
  }

  void expectNothingLeft() {
    EXPECT_TRUE(isSoon([this] { return !window.has_value(); }));
    EXPECT_TRUE(isSoon([this] { return view == nil; })) << "the view is kept";
    EXPECT_TRUE(isSoon([this] { return native == nil; })) << "the window is kept";
  }

  ui::View buttonThatEndsEverything() {
    return ui::Button([this] { endEverything(); }, ui::Rectangle().frame(200, 100))
        .keyboardShortcut(ui::KeyboardShortcut::cancelAction());
  }

  std::optional<Window> window;
  __weak NSWindow* native = nil;
  __weak OrvaneHostView* view = nil;
};

TEST_F(Teardown, AClickMayEndEverything) {
  showAndWatch([this](const ui::Environment&) { return buttonThatEndsEverything(); });
  @autoreleasepool {
    click(native, 100, 50);
  }
  expectNothingLeft();
}

TEST_F(Teardown, AKeyMayEndEverything) {
  showAndWatch([this](const ui::Environment&) { return buttonThatEndsEverything(); });
  @autoreleasepool {
    key(native, @"\x1B");
  }
  expectNothingLeft();
}

TEST_F(Teardown, APressByVoiceOverMayEndEverything) {
  showAndWatch([this](const ui::Environment&) { return buttonThatEndsEverything(); });
  id kept = nil;
  @autoreleasepool {
    kept = [view accessibilityChildren].firstObject;
    [kept accessibilityPerformPress];
  }
  expectNothingLeft();
  // A screen reader may retain the element longer.
  EXPECT_TRUE(NSIsEmptyRect([kept accessibilityFrame]));
  [kept accessibilityPerformPress];
  [kept setAccessibilityFocused:YES];
}

TEST_F(Teardown, AChoiceInAMenuMayEndEverything) {
  int chosen = -1;
  showAndWatch([&](const ui::Environment&) -> ui::View {
    return ui::Picker{"label", {"one", "two"}, 0, [&](int index) {
                        chosen = index;
                        endEverything();
                      }};
  });
  @autoreleasepool {
    click(native, 100, 50);
    NSString* const down = functionKey(NSDownArrowFunctionKey);
    typeIntoMenu(@[ down, down, @"\r" ]);
  }
  EXPECT_TRUE(isSoon([&] { return chosen == 1; }));
  expectNothingLeft();
}

TEST_F(Teardown, NoMenuOpensOnceItsWindowHasGone) {
  showAndWatch([](const ui::Environment&) -> ui::View {
    return ui::Picker{"label", {"one", "two"}, 0, [](int) { ADD_FAILURE(); }};
  });
  __block bool hasOpened = false;
  const id observer =
      [NSNotificationCenter.defaultCenter addObserverForName:NSMenuDidBeginTrackingNotification
                                                      object:nil
                                                       queue:nil
                                                  usingBlock:^(NSNotification* notification) {
                                                    hasOpened = true;
                                                    [notification.object cancelTracking];
                                                  }];
  @autoreleasepool {
    click(native, 100, 50);
    endEverything();
  }
  letTimePass(0.3);
  EXPECT_FALSE(hasOpened);
  [NSNotificationCenter.defaultCenter removeObserver:observer];
  expectNothingLeft();
}

TEST_F(Teardown, NoMenuOpensOverAWindowThatIsClosedAndKept) {
  Window kept = show([](const ui::Environment&) -> ui::View {
    return ui::Picker{"label", {"one", "two"}, 0, [](int) { ADD_FAILURE(); }};
  });
  bool hasOpened = false;
  appkit::MainQueue::asyncAfter(0.1, [&] {
    hasOpened = openMenuWindow() != nil;
    [NSApp postEvent:keyEvent(openMenuWindow(), @"\x1B") atStart:NO];
  });
  click(nativeOf(kept), 100, 50);
  kept.close();
  letTimePass(0.3);
  EXPECT_FALSE(hasOpened);
}

TEST_F(Teardown, AnAnimationDoesNotKeepItsView) {
  struct Widening {
    ui::View body(const ui::Environment& environment) const {
      const auto isWide = environment.state("isWide", false);
      return ui::Rectangle().frame(isWide.value() ? 180 : 20, 20).onAppear([isWide] {
        isWide.set(true, ui::Curve::easeOut(5));
      });
    }
  };
  showAndWatch([](const ui::Environment&) -> ui::View { return Widening{}; });
  letTimePass(0.2);
  endEverything();
  expectNothingLeft();
}

TEST_F(Teardown, AShownWindowOutlivesItsHandles) {
  showAndWatch([](const ui::Environment&) { return ui::View(); });
  window.reset();
  letTimePass(0.05);
  ASSERT_NE(native, nil);
  @autoreleasepool {
    [native close];
  }
  expectNothingLeft();
}

TEST_F(Teardown, AChildIsKeptByItsParentAndClosesAlone) {
  Window parent = show([](const ui::Environment&) { return ui::View(); });
  showAndWatch([](const ui::Environment&) { return ui::View(); });
  parent.addChildWindowAbove(*window);
  window.reset();
  letTimePass(0.05);
  ASSERT_EQ(parent.childWindows().size(), 1U);
  @autoreleasepool {
    Window child = parent.childWindows().front();
    parent.removeChildWindow(child);
    child.close();
  }
  expectNothingLeft();
  parent.close();
}

TEST_F(Teardown, AModalSessionDoesNotKeepTheApplicationFromQuitting) {
  OrvaneUndecided* const undecided = [[OrvaneUndecided alloc] init];
  NSApp.delegate = undecided;
  Window panel(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
               appkit::StyleMask::titled);
  appkit::MainQueue::async([panel] { appkit::Application::runModal(panel, [](int) {}); });
  when([] { return NSApp.modalWindow != nil; },
       [] {
         appkit::Application::terminate();
         appkit::Application::stopModal(1001);
       });
  EXPECT_TRUE(isSoon([&] { return undecided->_questions == 1; }));
  letTimePass(0.05);
  NSApp.delegate = nil;
  panel.close();
}

TEST_F(Teardown, AModalPanelGoesWithItsSession) {
  int response = 0;
  @autoreleasepool {
    Window panel(appkit::WindowKind::panel, CGRectMake(100, 100, 200, 100),
                 appkit::StyleMask::titled | appkit::StyleMask::closable);
    const std::weak_ptr weak(panel.implementation());
    panel.setContentView(appkit::HostingView([weak](const ui::Environment&) -> ui::View {
      return ui::Button(
          [weak] {
            appkit::Application::stopModal(1000);
            if (const auto strong = weak.lock()) {
              Window(strong).close();
            }
          },
          ui::Rectangle().frame(200, 100));
    }));
    native = nativeOf(panel);
    view = hostOf(panel);
    appkit::MainQueue::async([panel, &response] {
      appkit::Application::runModal(panel, [panel, &response](int code) mutable {
        response = code;
        panel.clearDelegate();
        panel.clearContentView();
      });
    });
  }
  when([this] { return native != nil && NSApp.modalWindow == native; },
       [this] {
         for (NSEventType type : {NSLeftMouseDown, NSLeftMouseUp}) {
           [NSApp postEvent:mouseEvent(native, type, 100, 50) atStart:NO];
         }
       });
  EXPECT_TRUE(isSoon([&] { return response == 1000; }));
  expectNothingLeft();
}

}  // namespace
}  // namespace orvane
