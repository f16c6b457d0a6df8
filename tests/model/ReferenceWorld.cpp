// The world around the application.
#include "tests/model/ReferenceWorld.hpp"

#include <algorithm>
#include <utility>

namespace orvane::reference {

std::string Screen::id() const {
  return uuid;
}

bool Screen::isNamed(const std::string& identifier) const {
  const auto points = [](double length) { return std::to_string(static_cast<int>(length)) + ".0"; };
  const std::string decimal = std::to_string(number);
  return identifier == uuid || identifier == decimal ||
         identifier == "Optional(" + decimal + ")-" + points(frame.size.width) + "-" +
                           points(frame.size.height) +
                           "-Optional(8)-Optional(\"NSCalibratedRGBColorSpace\")";
}

void World::arrange() {
  for (Screen& screen : screens) {
    const CGRect& window = screen.windowFrame;
    const double top = screens.front().windowFrame.size.height;
    screen.frame = {{window.origin.x, top - window.origin.y - window.size.height}, window.size};
  }
}

DockPosition World::dockPosition() const {
  const auto* const text = orientation ? std::get_if<std::string>(&*orientation) : nullptr;
  if (text == nullptr || *text == "bottom") {
    return DockPosition::bottom;
  }
  if (*text == "left") {
    return DockPosition::left;
  }
  if (*text == "right") {
    return DockPosition::right;
  }
  return *text == "top" ? DockPosition::top : DockPosition::unknown;
}

DockPosition World::dockLiesAt() const {
  const DockPosition named = dockPosition();
  return named == DockPosition::left || named == DockPosition::right ? named : DockPosition::bottom;
}

const Screen* World::find(const std::string& identifier) const {
  const auto found = std::ranges::find_if(
      screens, [&](const Screen& screen) { return screen.isNamed(identifier); });
  return found == screens.end() ? nullptr : &*found;
}

void World::write(const std::string& key, Value value) {
  ++writes[key];
  disk[key] = std::move(value);
}

void World::remove(const std::string& key) {
  ++writes[key];
  disk.erase(key);
}

std::optional<std::string> World::readText(const std::string& key) const {
  const auto found = disk.find(key);
  const auto* const text = found == disk.end() ? nullptr : std::get_if<std::string>(&found->second);
  return text == nullptr ? std::nullopt : std::optional(*text);
}

bool World::readBoolean(const std::string& key) const {
  const auto found = disk.find(key);
  const auto* const flag = found == disk.end() ? nullptr : std::get_if<bool>(&found->second);
  return flag != nullptr && *flag;
}

}  // namespace orvane::reference
