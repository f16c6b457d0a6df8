// The implementations behind the platform interface's AppKit handles: objects of the window server.
#pragma once

#include <memory>
#include <utility>

#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Image.hpp"
#include "Orvane/platform/appkit/Menu.hpp"
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "desk/windows/DeskMenu.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "desk/windows/HostedView.hpp"
#include "desk/windows/StatusBar.hpp"
#include "desk/windows/SymbolImage.hpp"

namespace orvane::appkit {

struct HostingView::Implementation : desk::HostedView {
  using desk::HostedView::HostedView;
};

struct Window::Implementation : desk::DeskWindow {
  Implementation(WindowKind windowKind, CGRect contentRect, std::uint64_t mask)
      : desk::DeskWindow(windowKind, contentRect, mask) {}
  /// The handle of the current content.
  std::optional<HostingView> contentHandle;
};

struct Menu::Implementation : desk::DeskMenu {};

struct StatusItem::Implementation : desk::StatusBarItem {};

struct Image::Implementation : desk::SymbolImage {
  explicit Implementation(desk::SymbolImage image) : desk::SymbolImage(std::move(image)) {}
};

}  // namespace orvane::appkit

namespace orvane::desk {

/// The handle of a window of the window server.
[[nodiscard]] inline appkit::Window handleOf(const std::shared_ptr<DeskWindow>& window) {
  return appkit::Window(std::static_pointer_cast<appkit::Window::Implementation>(window));
}

/// The view of a menu item; null without one.
[[nodiscard]] inline std::shared_ptr<HostedView> viewOf(const appkit::MenuItem& item) {
  return item.view ? item.view->implementation() : nullptr;
}

}  // namespace orvane::desk
