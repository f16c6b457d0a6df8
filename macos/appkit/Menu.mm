// Menus with NSMenu and NSMenuItem.
#include "Orvane/platform/appkit/Menu.hpp"

#include <utility>

#include "macos/appkit/MenuImplementation.hpp"
#include "macos/appkit/NativeView.hpp"
#include "macos/appkit/RunSoon.hpp"
#include "macos/appkit/Strings.hpp"
#include "macos/hosting/HostingContainer.hpp"

/// A menu item that runs a function when it is chosen.
@interface OrvaneMenuItem : NSMenuItem {
 @public
  std::function<void()> _chosen;
  BOOL _keepsMenuOpen;
}
- (void)choose:(nullable id)sender;
@end

namespace {

__weak NSMenu* trackedMenu = nil;

NSArray<NSRunLoopMode>* modesWithoutMenu() {
  return @[ NSDefaultRunLoopMode, NSModalPanelRunLoopMode ];
}

/// Under the pointer, a row draws its own hover state.
bool isUnderPointer(NSView* view) {
  const NSRect frame = [view.window convertRectToScreen:[view convertRect:view.bounds toView:nil]];
  return NSPointInRect(NSEvent.mouseLocation, frame);
}

/// A choice by keyboard or VoiceOver always closes the menu, so it is opened again, but not over an
/// alert that the choice has opened.
void openAgain(NSStatusBarButton* button) {
  // Gives the main queue time to show such an alert first.
  constexpr double delaySeconds = 0.05;
  __weak NSStatusBarButton* const weakButton = button;
  orvane::appkit::runSoon(
      modesWithoutMenu(),
      ^{
        if (NSApplication.sharedApplication.modalWindow == nil) {
          [weakButton performClick:nil];
        }
      },
      delaySeconds);
}

}  // namespace

@implementation OrvaneMenuItem

- (void)choose:(id)sender {
  // The action may remove this item from its menu.
  const std::function<void()> chosen = _chosen;
  OrvaneMenuDelegate* const delegate = static_cast<OrvaneMenuDelegate*>(self.menu.delegate);
  NSStatusBarButton* const button = _keepsMenuOpen && delegate != nil ? delegate->_button : nil;
  if (chosen) {
    chosen();
  }
  if (button != nil) {
    openAgain(button);
  }
}

@end

@implementation OrvaneMenuDelegate

// The items may be replaced here; menuWillOpen: would be too late for that.
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
  [self menu:menu willHighlightItem:nil];
}

// AppKit does not draw the highlight of an item with a view, so its container does.
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

void whenNoMenuIsTracked(std::function<void()> task) {
  runSoon(modesWithoutMenu(), ^{
    task();
  });
}

namespace {

void fill(OrvaneMenuItem* native, MenuItem item) {
  NSString* const title = foundationString(item.title);
  native.title = title == nil ? @"" : title;
  native.enabled = item.isEnabled;
  native.state = item.isOn ? NSControlStateValueOn : NSControlStateValueOff;
  NSView* const view = item.view ? nativeView(*item.view) : nil;
  if (view != native.view) {
    native.view = view;
  }
  native->_chosen = std::move(item.action);
  native->_keepsMenuOpen = item.keepsMenuOpen;
}

}  // namespace

Menu::Menu()
    : implementation_(std::make_shared<Implementation>(
          Implementation{[[NSMenu alloc] init], [[OrvaneMenuDelegate alloc] init]})) {
  // Otherwise the menu would decide which items are enabled.
  implementation_->menu.autoenablesItems = NO;
  implementation_->menu.delegate = implementation_->delegate;
}

void Menu::insertItem(std::size_t index, MenuItem item) {
  const auto place = static_cast<NSInteger>(index);
  if (item.isSeparator) {
    [implementation_->menu insertItem:NSMenuItem.separatorItem atIndex:place];
    return;
  }
  OrvaneMenuItem* const native = [[OrvaneMenuItem alloc] initWithTitle:@""
                                                                action:@selector(choose:)
                                                         keyEquivalent:@""];
  native.target = native;
  fill(native, std::move(item));
  [implementation_->menu insertItem:native atIndex:place];
}

void Menu::changeItem(std::size_t index, MenuItem item) {
  NSMenuItem* const native = [implementation_->menu itemAtIndex:static_cast<NSInteger>(index)];
  fill(static_cast<OrvaneMenuItem*>(native), std::move(item));
}

void Menu::removeItem(std::size_t index) {
  NSMenu* const menu = implementation_->menu;
  [menu removeItem:[menu itemAtIndex:static_cast<NSInteger>(index)]];
}

bool Menu::isOpen() const {
  return openMenu() == implementation_->menu;
}

void Menu::onWillOpen(std::function<void()> willOpen) {
  implementation_->delegate->_willOpen = std::move(willOpen);
}

void Menu::cancelTracking(std::function<void()> ended) {
  [implementation_->menu cancelTracking];
  if (ended) {
    whenNoMenuIsTracked(std::move(ended));
  }
}

}  // namespace orvane::appkit
