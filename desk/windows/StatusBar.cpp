// Positions are counted from the right edge, so that the clock's width does not move the icons.
#include "desk/windows/StatusBar.hpp"

#include <algorithm>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

/// The margin of the menu bar, and the widths for the clock's longest text and for an icon.
constexpr double sideMargin = 14;
constexpr double clockWidth = 112;
constexpr double iconWidth = 32;
constexpr int applicationPosition = 2;

}  // namespace

StatusBarItem::StatusBarItem() {
  WindowServer::current().statusBar.add(*this);
}

StatusBarItem::~StatusBarItem() {
  if (Machine::currentOrNull() != nullptr) {
    if (WindowServer* const server = WindowServer::of(Machine::current())) {
      server->statusBar.remove(*this);
    }
  }
}

void StatusBar::add(StatusBarItem& item) {
  items_.push_back(&item);
  server_.updates.request();
}

void StatusBar::remove(StatusBarItem& item) {
  if (item.menu != nullptr && server_.menus.isTracking(*item.menu)) {
    server_.menus.close();
  }
  std::erase(items_, &item);
  server_.updates.request();
}

const StatusBarItem* StatusBar::item() const {
  return items_.empty() ? nullptr : items_.front();
}

CGRect StatusBar::place(const CGRect& displayFrame, int position) {
  const double right = displayFrame.origin.x + displayFrame.size.width;
  return CGRectMake(right - sideMargin - clockWidth - iconWidth * (position + 1),
                    displayFrame.origin.y, iconWidth, Displays::menuBarHeight);
}

CGRect StatusBar::itemFrame(const CGRect& displayFrame) {
  return place(displayFrame, applicationPosition);
}

std::optional<std::size_t> StatusBar::displayOfItemAt(CGPoint place) const {
  const Displays& displays = server_.machine().displays;
  const auto index = displays.indexContaining(place);
  const bool isOnItem = index && item() != nullptr &&
                        CGRectContainsPoint(itemFrame(displays.globalFrames()[*index]), place);
  return isOnItem ? index : std::nullopt;
}

bool StatusBar::isInMenuBar(CGPoint place) const {
  const Displays& displays = server_.machine().displays;
  const auto index = displays.indexContaining(place);
  return index && place.y < displays.globalFrames()[*index].origin.y + Displays::menuBarHeight;
}

}  // namespace orvane::desk
