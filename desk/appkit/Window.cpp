// Windows on the desk: attributes are stored here, and what affects other windows goes to the
// window server.
#include "Orvane/platform/appkit/Window.hpp"

#include <utility>

#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

using desk::WindowServer;

namespace {

/// The values of NSNormalWindowLevel and NSFloatingWindowLevel.
constexpr std::int64_t normalLevel = 0;
constexpr std::int64_t floatingLevel = 3;

}  // namespace

Window::Window(WindowKind kind, CGRect contentRect, std::uint64_t styleMask)
    : implementation_(std::make_shared<Implementation>(kind, contentRect, styleMask)) {
  desk::recordCall("Window");
}

Window::Window(std::shared_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

WindowKind Window::kind() const {
  return implementation_->kind;
}

std::uint64_t Window::styleMask() const {
  return implementation_->styleMask;
}

void Window::setClassName(std::string_view name) {
  implementation_->className = name;
}

void Window::setCanBecomeKeyWindow(bool can) {
  implementation_->canBecomeKeyWindow = can;
}

void Window::setCanBecomeMainWindow(bool can) {
  implementation_->canBecomeMainWindow = can;
}

void Window::setTitle(std::string_view title) {
  implementation_->title = title;
}

void Window::setTitleHidden(bool isHidden) {
  implementation_->isTitleHidden = isHidden;
}

void Window::setTitlebarAppearsTransparent(bool isTransparent) {
  implementation_->hasTransparentTitlebar = isTransparent;
}

void Window::setMovableByWindowBackground(bool isMovable) {
  implementation_->isMovableByBackground = isMovable;
}

void Window::setReleasedWhenClosed(bool isReleased) {
  implementation_->isReleasedWhenClosed = isReleased;
}

void Window::setOpaque(bool isOpaque) {
  implementation_->isOpaque = isOpaque;
}

void Window::setHasShadow(bool hasShadow) {
  desk::recordCall("Window.setHasShadow", {implementation_->className, hasShadow});
  implementation_->hasShadow = hasShadow;
}

void Window::setClearBackground() {
  implementation_->hasClearBackground = true;
}

void Window::setMinSize(CGSize size) {
  implementation_->minSize = size;
}

void Window::setMaxSize(CGSize size) {
  implementation_->maxSize = size;
}

void Window::setCollectionBehavior(std::uint64_t behavior) {
  implementation_->collectionBehavior = behavior;
}

void Window::setLevel(std::int64_t level) {
  implementation_->level = level;
  WindowServer::current().updates.request();
}

void Window::setFloatingPanel(bool isFloating) {
  if (isFloating != implementation_->isFloatingPanel) {
    implementation_->isFloatingPanel = isFloating;
    // As in AppKit: a caller that wants another level sets it afterwards.
    setLevel(isFloating ? floatingLevel : normalLevel);
  }
}

void Window::setHidesOnDeactivate(bool hides) {
  implementation_->hidesOnDeactivate = hides;
}

void Window::setBecomesKeyOnlyIfNeeded(bool onlyIfNeeded) {
  implementation_->becomesKeyOnlyIfNeeded = onlyIfNeeded;
}

void Window::setContentView(const HostingView& view) {
  implementation_->contentHandle = view;
  WindowServer::current().setContent(implementation_, view.implementation());
}

void Window::clearContentView() {
  const std::optional<HostingView> gone = std::exchange(implementation_->contentHandle, {});
  WindowServer::current().setContent(implementation_, nullptr);
}

std::optional<HostingView> Window::contentView() const {
  return implementation_->contentHandle;
}

void Window::onWillClose(std::function<void()> willClose) {
  implementation_->willClose = std::move(willClose);
}

void Window::clearDelegate() {
  implementation_->willClose = nullptr;
}

CGRect Window::frame() const {
  return implementation_->frame;
}

void Window::setFrameOrigin(CGPoint origin) {
  WindowServer::current().setOrigin(*implementation_, origin);
}

void Window::center() {
  desk::recordCall("Window.center", {implementation_->className});
  WindowServer::current().center(*implementation_);
}

std::optional<Screen> Window::screen() const {
  const auto index = WindowServer::current().displayIndexOf(*implementation_);
  return index ? std::optional(Screen::screens()[*index]) : std::nullopt;
}

bool Window::isVisible() const {
  return WindowServer::current().isVisible(*implementation_);
}

bool Window::isKeyWindow() const {
  return WindowServer::current().focus.keyWindow() == implementation_;
}

bool Window::isMiniaturized() const {
  return implementation_->isMiniaturized;
}

void Window::miniaturize() {
  WindowServer::current().miniaturize(implementation_);
}

void Window::deminiaturize() {
  desk::recordCall("Window.deminiaturize", {implementation_->className});
  WindowServer::current().deminiaturize(implementation_);
}

void Window::makeKeyAndOrderFront() {
  desk::recordCall("Window.makeKeyAndOrderFront", {implementation_->className});
  const std::shared_ptr<Implementation> kept = implementation_;
  WindowServer& server = WindowServer::current();
  server.deminiaturize(kept);
  server.orderFront(kept, false);
  server.focus.makeKey(kept);
}

void Window::makeKeyWindow() {
  WindowServer::current().focus.makeKey(implementation_);
}

void Window::orderFrontRegardless() {
  desk::recordCall("Window.orderFrontRegardless", {implementation_->className});
  const std::shared_ptr<Implementation> kept = implementation_;
  WindowServer& server = WindowServer::current();
  server.deminiaturize(kept);
  server.orderFront(kept, true);
}

void Window::close() {
  desk::recordCall("Window.close", {implementation_->className});
  // The callback may drop every handle, this one too.
  const std::shared_ptr<Implementation> kept = implementation_;
  WindowServer::current().close(kept);
}

void Window::addChildWindowAbove(const Window& child) {
  desk::recordCall("Window.addChildWindowAbove",
                   {implementation_->className, child.implementation_->className});
  WindowServer::current().addChild(implementation_, child.implementation_);
}

void Window::removeChildWindow(const Window& child) {
  desk::recordCall("Window.removeChildWindow",
                   {implementation_->className, child.implementation_->className});
  WindowServer::current().removeChild(implementation_, child.implementation_);
}

std::vector<Window> Window::childWindows() const {
  std::vector<Window> children;
  for (const auto& child : implementation_->children) {
    children.push_back(desk::handleOf(child));
  }
  return children;
}

}  // namespace orvane::appkit
