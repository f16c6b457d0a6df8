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
}
@end

namespace orvane::appkit {

struct Menu::Implementation {
  NSMenu* _Nonnull menu;
  OrvaneMenuDelegate* _Nonnull delegate;
};

/// The Menu that is being tracked now; nil when none is.
[[nodiscard]] NSMenu* _Nullable openMenu();

}  // namespace orvane::appkit
