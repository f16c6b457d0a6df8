// The NSMenu behind a Menu, for the controls that show it.
#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "Orvane/platform/appkit/Menu.hpp"

/// Runs the callback when the menu is about to open, and tracks whether it is open. A menu holds
/// its delegate weakly, so the menu's implementation owns it.
@interface OrvaneMenuDelegate : NSObject <NSMenuDelegate> {
 @public
  std::function<void()> _willOpen;
  /// The button of the status item that shows the menu; nil without one.
  __weak NSStatusBarButton* _button;
}
@end

namespace orvane::appkit {

struct Menu::Implementation {
  NSMenu* _Nonnull menu;
  OrvaneMenuDelegate* _Nonnull delegate;
};

/// The menu that is being tracked; nil when none is.
[[nodiscard]] NSMenu* _Nullable openMenu();

/// Runs `task` from the run loop once no menu is tracked: in the default mode or in a modal
/// session.
void whenNoMenuIsTracked(std::function<void()> task);

}  // namespace orvane::appkit
