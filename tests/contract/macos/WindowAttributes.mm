// The attributes of a window as AppKit reports them.
#include "macos/appkit/NativeWindow.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {

ContractFixture::WindowAttributes ContractFixture::attributesOf(const appkit::Window& window) {
  NSWindow* const native = window.implementation()->window;
  NSPanel* const panel = [native isKindOfClass:NSPanel.class] ? static_cast<NSPanel*>(native) : nil;
  return {.level = native.level,
          .collectionBehavior = native.collectionBehavior,
          .isFloatingPanel = panel != nil && panel.floatingPanel,
          .hidesOnDeactivate = static_cast<bool>(native.hidesOnDeactivate),
          .becomesKeyOnlyIfNeeded = panel != nil && panel.becomesKeyOnlyIfNeeded,
          .canBecomeKey = static_cast<bool>(native.canBecomeKeyWindow),
          .canBecomeMain = static_cast<bool>(native.canBecomeMainWindow),
          .isOpaque = static_cast<bool>(native.opaque),
          .hasShadow = static_cast<bool>(native.hasShadow),
          .isMovableByBackground = static_cast<bool>(native.movableByWindowBackground),
          .hasTransparentTitlebar = static_cast<bool>(native.titlebarAppearsTransparent),
          .isTitleHidden = native.titleVisibility == NSWindowTitleHidden,
          .minSize = native.minSize,
          .maxSize = native.maxSize,
          .title = native.title.UTF8String};
}

}  // namespace orvane
