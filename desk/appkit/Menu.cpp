// Menus on the desk: lists of items that the window server shows.
#include "Orvane/platform/appkit/Menu.hpp"

#include <cstddef>
#include <utility>
#include <vector>

#include "Orvane/base/Require.hpp"
#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

Menu::Menu() : implementation_(std::make_shared<Implementation>()) {}

namespace {

auto placeOf(std::vector<MenuItem>& items, std::size_t index) {
  require(index <= items.size(), "the menu has no such item");
  return items.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

void Menu::insertItem(std::size_t index, MenuItem item) {
  desk::recordCall("Menu.insertItem", {static_cast<std::int64_t>(index), item.title});
  auto& items = implementation_->items;
  items.insert(placeOf(items, index), std::move(item));
  desk::WindowServer::current().menus.itemsChanged(*implementation_);
}

void Menu::changeItem(std::size_t index, MenuItem item) {
  desk::recordCall("Menu.changeItem", {static_cast<std::int64_t>(index), item.title});
  // Destroying what the old item holds may access the menu again.
  std::swap(*placeOf(implementation_->items, index), item);
  desk::WindowServer::current().menus.itemsChanged(*implementation_);
}

void Menu::removeItem(std::size_t index) {
  desk::recordCall("Menu.removeItem", {static_cast<std::int64_t>(index)});
  auto& items = implementation_->items;
  const auto place = placeOf(items, index);
  const MenuItem gone = std::move(*place);
  items.erase(place);
  desk::WindowServer::current().menus.itemsChanged(*implementation_);
}

bool Menu::isOpen() const {
  return desk::WindowServer::current().menus.isTracking(*implementation_);
}

void Menu::onWillOpen(std::function<void()> willOpen) {
  desk::recordCall("Menu.onWillOpen");
  implementation_->willOpen = std::move(willOpen);
}

void Menu::cancelTracking(std::function<void()> ended) {
  desk::recordCall("Menu.cancelTracking");
  desk::WindowServer& server = desk::WindowServer::current();
  if (server.menus.isTracking(*implementation_)) {
    server.menus.close();
  }
  server.machine().runLoop.afterCurrent(std::move(ended));
}

}  // namespace orvane::appkit
