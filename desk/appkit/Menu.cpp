// Menus on the desk are lists of items that its window server shows.
#include "Orvane/platform/appkit/Menu.hpp"

#include <utility>
#include <vector>

#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

Menu::Menu() : implementation_(std::make_shared<Implementation>()) {}

void Menu::removeAllItems() {
  // What the items hold may ask for the menu again while it is destroyed.
  const std::vector<MenuItem> gone = std::exchange(implementation_->items, {});
  desk::WindowServer::current().menus.itemsChanged(*implementation_);
}

void Menu::addItem(MenuItem item) {
  implementation_->items.push_back(std::move(item));
  desk::WindowServer::current().menus.itemsChanged(*implementation_);
}

void Menu::onWillOpen(std::function<void()> willOpen) {
  implementation_->willOpen = std::move(willOpen);
}

void Menu::cancelTracking() {
  desk::WindowServer& server = desk::WindowServer::current();
  if (server.menus.isTracking(*implementation_)) {
    server.menus.close();
  }
}

}  // namespace orvane::appkit
