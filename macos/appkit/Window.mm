// Windows and panels with NSWindow and NSPanel.
#include "Orvane/platform/appkit/Window.hpp"

#include <utility>

#include "macos/appkit/NativeView.hpp"
#include "macos/appkit/NativeWindow.hpp"
#include "macos/appkit/ScreenConversion.hpp"
#include "macos/appkit/Strings.hpp"

namespace orvane::appkit {
namespace {

Class classFor(WindowKind kind) {
  return kind == WindowKind::panel ? OrvaneNativePanel.class : OrvaneNativeWindow.class;
}

NativeWindowState& stateOf(const Window& window) {
  NSWindow* const native = window.implementation()->window;
  return static_cast<NSWindow<OrvaneNativeWindow>*>(native).state;
}

/// Nil for a window that is not a panel.
NSPanel* panelOf(const Window& window) {
  NSWindow* const native = window.implementation()->window;
  return [native isKindOfClass:NSPanel.class] ? static_cast<NSPanel*>(native) : nil;
}

NSString* titleFrom(std::string_view title) {
  NSString* const text = foundationString(title);
  return text == nil ? @"" : text;
}

}  // namespace

Window::Window(WindowKind kind, CGRect contentRect, std::uint64_t styleMask)
    : implementation_(std::make_shared<Implementation>([[classFor(kind) alloc]
          initWithContentRect:contentRect
                    styleMask:static_cast<NSWindowStyleMask>(styleMask)
                      backing:NSBackingStoreBuffered
                        defer:NO])) {
  // A handle owns its window; closing must not release it as well.
  implementation_->window.releasedWhenClosed = NO;
  stateOf(*this).implementation = implementation_;
}

Window::Window(std::shared_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

WindowKind Window::kind() const {
  return panelOf(*this) == nil ? WindowKind::window : WindowKind::panel;
}

std::uint64_t Window::styleMask() const {
  return implementation_->window.styleMask;
}

void Window::setClassName(std::string_view name) {
  implementation_->window.identifier = foundationString(name);
}

void Window::setCanBecomeKeyWindow(bool can) {
  stateOf(*this).canBecomeKeyWindow = can;
}

void Window::setCanBecomeMainWindow(bool can) {
  stateOf(*this).canBecomeMainWindow = can;
}

void Window::setTitle(std::string_view title) {
  implementation_->window.title = titleFrom(title);
}

void Window::setTitleHidden(bool isHidden) {
  implementation_->window.titleVisibility = isHidden ? NSWindowTitleHidden : NSWindowTitleVisible;
}

void Window::setTitlebarAppearsTransparent(bool isTransparent) {
  implementation_->window.titlebarAppearsTransparent = isTransparent;
}

void Window::setMovableByWindowBackground(bool isMovable) {
  implementation_->window.movableByWindowBackground = isMovable;
}

void Window::setReleasedWhenClosed(bool /*isReleased*/) {
  // Handles own the window on this platform, whatever the argument.
}

void Window::setOpaque(bool isOpaque) {
  implementation_->window.opaque = isOpaque;
}

void Window::setHasShadow(bool hasShadow) {
  implementation_->window.hasShadow = hasShadow;
}

void Window::setClearBackground() {
  implementation_->window.backgroundColor = NSColor.clearColor;
}

void Window::setMinSize(CGSize size) {
  implementation_->window.minSize = size;
}

void Window::setMaxSize(CGSize size) {
  implementation_->window.maxSize = size;
}

void Window::setCollectionBehavior(std::uint64_t behavior) {
  implementation_->window.collectionBehavior = static_cast<NSWindowCollectionBehavior>(behavior);
}

void Window::setLevel(std::int64_t level) {
  implementation_->window.level = static_cast<NSWindowLevel>(level);
}

void Window::setFloatingPanel(bool isFloating) {
  panelOf(*this).floatingPanel = isFloating;
}

void Window::setHidesOnDeactivate(bool hides) {
  implementation_->window.hidesOnDeactivate = hides;
}

void Window::setBecomesKeyOnlyIfNeeded(bool onlyIfNeeded) {
  panelOf(*this).becomesKeyOnlyIfNeeded = onlyIfNeeded;
}

void Window::setContentView(const HostingView& view) {
  stateOf(*this).content = view;
  NSWindow* const native = implementation_->window;
  native.contentView = nativeView(view);
  // The content receives keys from the start.
  native.initialFirstResponder = keyView(view);
  [native makeFirstResponder:keyView(view)];
}

void Window::clearContentView() {
  implementation_->window.contentView = nil;
  stateOf(*this).content.reset();
}

std::optional<HostingView> Window::contentView() const {
  return stateOf(*this).content;
}

void Window::onWillClose(std::function<void()> willClose) {
  stateOf(*this).willClose = std::move(willClose);
}

void Window::clearDelegate() {
  stateOf(*this).willClose = nullptr;
}

CGRect Window::frame() const {
  return implementation_->window.frame;
}

void Window::setFrameOrigin(CGPoint origin) {
  [implementation_->window setFrameOrigin:origin];
}

void Window::center() {
  [implementation_->window center];
}

std::optional<Screen> Window::screen() const {
  return screenFrom(implementation_->window.screen);
}

bool Window::isVisible() const {
  return implementation_->window.visible;
}

bool Window::isKeyWindow() const {
  return implementation_->window.keyWindow;
}

bool Window::isMiniaturized() const {
  return implementation_->window.miniaturized;
}

void Window::miniaturize() {
  [implementation_->window miniaturize:nil];
}

void Window::deminiaturize() {
  [implementation_->window deminiaturize:nil];
}

void Window::makeKeyAndOrderFront() {
  keepWhileShown(implementation_->window);
  [implementation_->window makeKeyAndOrderFront:nil];
}

void Window::makeKeyWindow() {
  [implementation_->window makeKeyWindow];
}

void Window::orderFrontRegardless() {
  keepWhileShown(implementation_->window);
  [implementation_->window orderFrontRegardless];
}

void Window::close() {
  [implementation_->window close];
}

void Window::addChildWindowAbove(const Window& child) {
  [implementation_->window addChildWindow:child.implementation()->window ordered:NSWindowAbove];
}

void Window::removeChildWindow(const Window& child) {
  [implementation_->window removeChildWindow:child.implementation()->window];
}

std::vector<Window> Window::childWindows() const {
  std::vector<Window> children;
  for (NSWindow* child in implementation_->window.childWindows) {
    if (auto handle = windowFrom(child)) {
      children.push_back(*std::move(handle));
    }
  }
  return children;
}

}  // namespace orvane::appkit
