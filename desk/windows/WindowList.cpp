// The stored order is that of bringing to the front; `backToFront` sorts it by level and inserts
// children.
#include "desk/windows/WindowList.hpp"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace orvane::desk {

namespace {

using Window = WindowList::Window;
using Windows = WindowList::Windows;

struct Layer {
  std::int64_t level;
  Window window;
};

Window rootOf(Window window) {
  while (const Window parent = window->parent.lock()) {
    window = parent;
  }
  return window;
}

bool isWithin(const DeskWindow& window, const DeskWindow& root) {
  if (&window == &root) {
    return true;
  }
  const Window parent = window.parent.lock();
  return parent != nullptr && isWithin(*parent, root);
}

void appendGroup(const Windows& order, const Window& window, std::int64_t lowestLevel,
                 std::vector<Layer>& layers) {
  const std::int64_t level = std::max(lowestLevel, window->level);
  layers.push_back({level, window});
  for (const Window& other : order) {
    if (other->parent.lock() == window) {
      appendGroup(order, other, level, layers);
    }
  }
}

}  // namespace

Windows WindowList::takeGroup(const DeskWindow& root) {
  Windows group;
  std::erase_if(order_, [&](const Window& window) {
    const bool isTaken = isWithin(*window, root);
    if (isTaken) {
      group.push_back(window);
    }
    return isTaken;
  });
  return group;
}

void WindowList::bringToFront(const Window& window) {
  Windows group = takeGroup(*rootOf(window));
  std::erase(group, window);
  order_.insert(order_.end(), group.begin(), group.end());
  order_.push_back(window);
}

void WindowList::bringToFrontOfItsOwner(const Window& window) {
  Windows group = takeGroup(*rootOf(window));
  std::erase(group, window);
  group.push_back(window);
  const auto isOwn = [&](const Window& other) { return other->owner == window->owner; };
  const auto last = std::find_if(order_.rbegin(), order_.rend(), isOwn);
  order_.insert(last.base(), group.begin(), group.end());
}

void WindowList::remove(const Window& window) {
  std::erase(order_, window);
}

bool WindowList::contains(const DeskWindow& window) const {
  return std::any_of(order_.begin(), order_.end(),
                     [&](const Window& other) { return other.get() == &window; });
}

Windows WindowList::backToFront() const {
  std::vector<Layer> layers;
  for (const Window& window : order_) {
    const Window parent = window->parent.lock();
    if (parent == nullptr || !contains(*parent)) {
      appendGroup(order_, window, window->level, layers);
    }
  }
  std::stable_sort(layers.begin(), layers.end(), [](const Layer& first, const Layer& second) {
    return first.level < second.level;
  });
  Windows all;
  for (Layer& layer : layers) {
    all.push_back(std::move(layer.window));
  }
  return all;
}

}  // namespace orvane::desk
