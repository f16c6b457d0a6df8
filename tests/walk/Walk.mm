// Opens every window and the menu of the real application in both languages and both appearances,
// and saves a picture of each. Usage: OrvaneWalk FOLDER. Exits with 1 if something did not open.
#import <AppKit/AppKit.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <vector>

#include "Orvane/app/OrvaneApp.hpp"
#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "Orvane/platform/appkit/MainQueue.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"
#include "tests/walk/WindowPictures.hpp"

namespace orvane {
namespace {

NSStatusBarButton* statusButtonIn(NSView* view) {
  if ([view isKindOfClass:NSStatusBarButton.class]) {
    return static_cast<NSStatusBarButton*>(view);
  }
  for (NSView* subview in view.subviews) {
    if (NSStatusBarButton* const found = statusButtonIn(subview); found != nil) {
      return found;
    }
  }
  return nil;
}

NSStatusBarButton* statusButton() {
  for (NSWindow* window in NSApplication.sharedApplication.windows) {
    if (NSStatusBarButton* const found = statusButtonIn(window.contentView); found != nil) {
      return found;
    }
  }
  return nil;
}

/// Closes the window as its user would; a modal session ends with its window.
void closeWindow(NSString* identifier) {
  for (NSWindow* window in NSApplication.sharedApplication.windows.copy) {
    if (window.visible && [window.identifier hasSuffix:identifier]) {
      [window close];
    }
  }
}

/// Performs one step after another, with a pause in which animations end. The timer also fires
/// while the alert is modal and while the menu is open.
class Walk {
 public:
  explicit Walk(NSString* folder)
      : pictures_([[OrvaneWindowPictures alloc] initWithFolder:folder]) {
    for (const bool isChinese : {false, true}) {
      for (const bool isDark : {false, true}) {
        planRound(isChinese, isDark);
      }
    }
    [NSNotificationCenter.defaultCenter addObserverForName:NSMenuDidBeginTrackingNotification
                                                    object:nil
                                                     queue:nil
                                                usingBlock:^(NSNotification* notification) {
                                                  openMenu_ = notification.object;
                                                }];
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;

  void begin() {
    timer_.emplace(appkit::Timer::repeating(secondsPerStep, appkit::RunLoopMode::common,
                                            [this] { nextStep(); }));
  }

 private:
  static constexpr double secondsPerStep = 0.8;

  static OrvaneModel& model() { return OrvaneAppState::model(); }
  static OrvaneWindowController& windows() { return OrvaneWindowController::shared(); }
  static OrvanePermissionGuideWindowController& guide() {
    return OrvanePermissionGuideWindowController::shared();
  }

  void planRound(bool isChinese, bool isDark) {
    NSString* const round =
        [NSString stringWithFormat:@"%s-%s-", isChinese ? "zh" : "en", isDark ? "dark" : "light"];
    const auto named = [round](NSString* what) { return [round stringByAppendingString:what]; };
    steps_.push_back([isChinese, isDark] {
      NSApplication.sharedApplication.appearance =
          [NSAppearance appearanceNamed:isDark ? NSAppearanceNameDarkAqua : NSAppearanceNameAqua];
      model().setAppLanguage(isChinese ? OrvaneLanguage::chinese : OrvaneLanguage::english);
      windows().show(model());
    });
    steps_.push_back([this, named] {
      [pictures_ takeWindow:@"OrvaneWindow" as:named(@"main")];
      windows().showSettings(model());
    });
    steps_.push_back([this, named] {
      [pictures_ takeWindow:@"OrvaneSettingsWindow" as:named(@"settings")];
      windows().closeSettingsWindow();
      windows().closeWindow();
    });
    steps_.push_back([] { OrvanePermissionAlert::show([] {}); });
    steps_.push_back([this, named] {
      [pictures_ takeWindow:@"OrvaneAlertPanel" as:named(@"alert")];
      closeWindow(@"OrvaneAlertPanel");
    });
    steps_.push_back([] { guide().show([] {}); });
    steps_.push_back([this, named] {
      [pictures_ takeWindow:@"OrvaneGuidePanel" as:named(@"guide")];
      guide().close();
    });
    steps_.push_back([this] {
      // The menu has its own tracking loop, which must not run inside a callback of the timer.
      appkit::MainQueue::async([this] {
        if (NSStatusBarButton* const button = statusButton(); button != nil) {
          [button performClick:nil];
        } else {
          [pictures_ fail:@"the menu bar has no item"];
        }
      });
    });
    steps_.push_back([this, named] {
      if (openMenu_ == nil) {
        [pictures_ fail:named(@"menu: it did not open")];
        return;
      }
      [pictures_ takeMenu:openMenu_ as:named(@"menu")];
      [openMenu_ cancelTracking];
      openMenu_ = nil;
    });
  }

  void nextStep() {
    // After a late step on a busy machine, the timer fires too early for the animations.
    if (CFAbsoluteTimeGetCurrent() - steppedAt_ < 0.9 * secondsPerStep) {
      return;
    }
    if (next_ < steps_.size()) {
      steps_[next_++]();
      steppedAt_ = CFAbsoluteTimeGetCurrent();
      return;
    }
    std::printf("%ld pictures, %ld failures\n", static_cast<long>(pictures_.pictureCount),
                static_cast<long>(pictures_.failureCount));
    std::exit(pictures_.failureCount == 0 ? EXIT_SUCCESS : EXIT_FAILURE);
  }

  OrvaneWindowPictures* pictures_;
  NSMenu* openMenu_ = nil;
  std::vector<std::function<void()>> steps_;
  std::size_t next_ = 0;
  CFAbsoluteTime steppedAt_ = 0;
  std::optional<appkit::Timer> timer_;
};

}  // namespace
}  // namespace orvane

int main(int argumentCount, const char** arguments) {
  if (argumentCount != 2) {
    std::fputs("Usage: OrvaneWalk FOLDER\n", stderr);
    return EXIT_FAILURE;
  }
  @autoreleasepool {
    NSString* const folder = [NSString stringWithUTF8String:arguments[1]];
    NSApplication* const application = NSApplication.sharedApplication;
    orvane::OrvaneApp::install();
    static orvane::Walk walk(folder == nil ? @"." : folder);
    walk.begin();
    [application run];
  }
}
