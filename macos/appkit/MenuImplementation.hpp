// The NSMenu behind a Menu, for the controls that show it.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/Menu.hpp"

/// Hears that the menu is about to be shown, and notes that it is open. A menu holds its delegate
/// weakly, so the menu's implementation holds it.
@interface OrvaneMenuDelegate : NSObject <NSMenuDelegate> {
 @public
  std::function<void()> _willOpen;
  /// That of the status item which shows the menu; nil without one.
  __weak NSStatusBarButton* _button;
}
@end

namespace orvane::appkit {

struct Menu::Implementation {
  NSMenu* _Nonnull menu;
  OrvaneMenuDelegate* _Nonnull delegate;
};

/// The Menu that is being tracked now; nil when none is.
[[nodiscard]] NSMenu* _Nullable openMenu();

/// Runs `task` from the run loop once no menu is tracked: in the default mode or in a modal
/// session.
void whenNoMenuIsTracked(std::function<void()> task);

}  // namespace orvane::appkit
