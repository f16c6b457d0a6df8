// The contract fixture on GNUstep, where the shim provides nearly every precondition.
#include "tests/contract/ContractFixture.hpp"
#include "tests/contract/macos/ApplicationRun.hpp"
#include "tests/gnustep/shim/World.hpp"

namespace orvane {

using gnustep::world;

struct ContractFixture::Platform {
  ApplicationRun run;
};

namespace {

NSPoint onScreen(CGPoint global) {
  return NSMakePoint(global.x, [NSScreen.screens.firstObject frame].size.height - global.y);
}

NSWindow* windowAt(CGPoint global) {
  for (NSWindow* window in NSApp.windows) {
    if (window.visible && NSPointInRect(onScreen(global), window.frame)) {
      return window;
    }
  }
  return nil;
}

void postMouse(NSEventType type, CGPoint global) {
  static __weak NSWindow* pressed = nil;
  // The events after a press belong to the window that was pressed.
  NSWindow* const window = type == NSLeftMouseDown ? windowAt(global) : pressed;
  pressed = window;
  if (window != nil) {
    [NSApp postEvent:[NSEvent mouseEventWithType:type
                                        location:[window convertScreenToBase:onScreen(global)]
                                   modifierFlags:0
                                       timestamp:0
                                    windowNumber:window.windowNumber
                                         context:nil
                                     eventNumber:0
                                      clickCount:1
                                        pressure:1]
             atStart:NO];
  }
}

}  // namespace

ContractFixture::ContractFixture() : platform_(std::make_unique<Platform>()) {
  world() = {};
  letTimePass(0);
}

ContractFixture::~ContractFixture() {
  letTimePass(0.01);
  EXPECT_EQ(world().liveTapObjects, 0);
  world() = {};
}

void ContractFixture::letTimePass(double seconds) {
  platform_->run.serve(seconds, NSDefaultRunLoopMode);
}

bool ContractFixture::letTimePassWithMenuOpen(double seconds) {
  platform_->run.serve(seconds, NSEventTrackingRunLoopMode);
  return true;
}

bool ContractFixture::arrangeTwoDisplays() {
  world().displays = {{1, leftUUID, "Left", CGRectMake(0, 0, 1000, 800), true},
                      {2, "", "Right", CGRectMake(1000, 0, 1000, 800), false}};
  return true;
}

bool ContractFixture::changeDisplays() {
  constexpr std::uint32_t added = 99;
  auto& displays = world().displays;
  if (!displays.empty() && displays.back().number == added) {
    displays.pop_back();
  } else {
    displays.push_back({added, "", "", CGRectMake(-500, 0, 500, 500), false});
  }
  gnustep::announceDisplays();
  return true;
}

bool ContractFixture::setTrusted(bool isTrusted) {
  world().isTrusted = isTrusted;
  return true;
}

bool ContractFixture::movePointer(CGPoint goal) {
  gnustep::movePointer(goal);
  return true;
}

bool ContractFixture::holdModifiers(std::uint64_t flags) {
  world().heldModifiers = flags;
  return true;
}

bool ContractFixture::disableTaps(CGEventType reason) {
  gnustep::disableTaps(reason);
  return true;
}

bool ContractFixture::storePreference(const std::string& application, const std::string& key,
                                      const std::string& text) {
  world().storedPreferences[application + "/" + key] = text;
  return true;
}

bool ContractFixture::storePreference(const std::string& application, const std::string& key,
                                      double number) {
  world().storedPreferences[application + "/" + key] = number;
  return true;
}

bool ContractFixture::setLocale(const std::vector<std::string>& preferred,
                                const std::string& current) {
  world().preferredLanguages = preferred;
  world().localeIdentifier = current;
  return true;
}

bool ContractFixture::failLoginItem(const std::string& text) {
  world().loginItemError = text;
  return true;
}

bool ContractFixture::canOpenLinks() const {
  return true;
}

bool ContractFixture::refuseLinks(const std::string& prefix) {
  world().refusedLinkPrefix = prefix;
  return true;
}

bool ContractFixture::storeNumberInUserDefaults(const std::string& key, double number) {
  [NSUserDefaults.standardUserDefaults setObject:@(number) forKey:@(key.c_str())];
  return true;
}

bool ContractFixture::makeVolumeReadOnly() {
  world().isBundleOnReadOnlyVolume = true;
  return true;
}

bool ContractFixture::canRegisterLoginItem() const {
  return true;
}

bool ContractFixture::dragPointer(CGPoint from, CGPoint to) {
  gnustep::movePointer(from);
  postMouse(NSLeftMouseDown, from);
  letTimePass(0.01);
  gnustep::movePointer(to);
  postMouse(NSLeftMouseDragged, to);
  letTimePass(0.01);
  return true;
}

void ContractFixture::releasePointer() {
  postMouse(NSLeftMouseUp, world().pointer);
  world().drag.reset();
  letTimePass(0.01);
}

std::optional<ContractFixture::DraggedFile> ContractFixture::draggedFile() const {
  const auto& drag = world().drag;
  return drag ? std::optional(DraggedFile{drag->url, drag->operations}) : std::nullopt;
}

}  // namespace orvane
