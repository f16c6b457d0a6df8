// Menus by NSMenu and NSMenuItem.
#include "Orvane/platform/appkit/Menu.hpp"

#include <utility>

#include "macos/appkit/MenuImplementation.hpp"
#include "macos/appkit/NativeView.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/hosting/HostingContainer.hpp"

/// A menu item that runs a function when it is chosen.
@interface OrvaneMenuItem : NSMenuItem {
 @public
  std::function<void()> _chosen;
}
- (void)choose:(nullable id)sender;
@end

@implementation OrvaneMenuItem

- (void)choose:(id)sender {
  // The action may take this item out of its menu.
  const std::function<void()> chosen = _chosen;
  if (chosen) {
    chosen();
  }
}

@end

namespace {

__weak NSMenu* trackedMenu = nil;

/// Under the pointer a row looks as it wants to.
bool isUnderPointer(NSView* view) {
  const NSRect frame = [view.window convertRectToScreen:[view convertRect:view.bounds toView:nil]];
  return NSPointInRect(NSEvent.mouseLocation, frame);
}

}  // namespace

@implementation OrvaneMenuDelegate

// The items may be replaced here; when the menu is about to open, that would be too late.
- (void)menuNeedsUpdate:(NSMenu*)menu {
  if (_willOpen) {
    _willOpen();
  }
}

- (void)menuWillOpen:(NSMenu*)menu {
  trackedMenu = menu;
}

- (void)menuDidClose:(NSMenu*)menu {
  trackedMenu = nil;
}

// A row with a view of its own shows nothing of what the keyboard has come to, unless it is told.
- (void)menu:(NSMenu*)menu willHighlightItem:(NSMenuItem*)highlighted {
  for (NSMenuItem* item in menu.itemArray) {
    if ([item.view isKindOfClass:OrvaneHostingContainer.class]) {
      static_cast<OrvaneHostingContainer*>(item.view).highlighted =
          item == highlighted && !isUnderPointer(item.view);
    }
  }
}

@end

namespace orvane::appkit {

NSMenu* openMenu() {
  return trackedMenu;
}

Menu::Menu()
    : implementation_(std::make_shared<Implementation>(
          Implementation{[[NSMenu alloc] init], [[OrvaneMenuDelegate alloc] init]})) {
  // Otherwise the menu itself would decide which items are enabled.
  implementation_->menu.autoenablesItems = NO;
  implementation_->menu.delegate = implementation_->delegate;
}

void Menu::removeAllItems() {
  [implementation_->menu removeAllItems];
}

void Menu::addItem(MenuItem item) {
  if (item.isSeparator) {
    [implementation_->menu addItem:NSMenuItem.separatorItem];
    return;
  }
  NSString* const title = foundationString(item.title);
  OrvaneMenuItem* const native = [[OrvaneMenuItem alloc] initWithTitle:title == nil ? @"" : title
                                                                action:@selector(choose:)
                                                         keyEquivalent:@""];
  native.target = native;
  native.enabled = item.isEnabled;
  native.state = item.isOn ? NSControlStateValueOn : NSControlStateValueOff;
  native.view = item.view ? nativeView(*item.view) : nil;
  // An item chosen by the keyboard always closes the menu; a click in a view leaves it open, so
  // keepsMenuOpen asks for nothing more here.
  native->_chosen = std::move(item.action);
  [implementation_->menu addItem:native];
}

void Menu::onWillOpen(std::function<void()> willOpen) {
  implementation_->delegate->_willOpen = std::move(willOpen);
}

void Menu::cancelTracking() {
  [implementation_->menu cancelTracking];
}

}  // namespace orvane::appkit
