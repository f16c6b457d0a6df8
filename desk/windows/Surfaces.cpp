// The names of surfaces, and their controls.
#include "desk/windows/Surfaces.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 5> namesByClass{{
    {"OrvaneWindow", "main"},
    {"OrvaneSettingsWindow", "settings"},
    {"OrvaneAlertPanel", "alert"},
    {"OrvaneGuidePanel", "guide"},
    {"SystemSettings", "system"},
}};

ui::SemanticsNode currentTree(HostedView& view) {
  view.update();
  return view.host().semantics();
}

CGRect globalRect(const ui::Rect& rect, CGPoint origin) {
  return CGRectMake(origin.x + rect.x, origin.y + rect.y, rect.width, rect.height);
}

/// `window` is the intersection of the ancestor scroll areas.
void collect(const ui::SemanticsNode& node, const std::shared_ptr<HostedView>& view, CGPoint origin,
             const ui::Rect& window, std::vector<SurfaceControl>& controls) {
  if (node.isControl) {
    controls.push_back({node, globalRect(node.frame, origin),
                        globalRect(node.frame.intersection(window), origin), [view, id = node.id] {
                          view->update();
                          return view->host().press(id);
                        }});
  }
  const bool scrolls = node.role == ui::Role::scrollArea;
  for (const ui::SemanticsNode& child : node.children) {
    collect(child, view, origin, scrolls ? window.intersection(node.frame) : window, controls);
  }
}

void collectAll(const std::shared_ptr<HostedView>& view, CGPoint origin,
                std::vector<SurfaceControl>& controls) {
  const ui::SemanticsNode root = currentTree(*view);
  collect(root, view, origin, root.frame, controls);
}

void move(ui::SemanticsNode& node, ui::Point distance) {
  node.frame = node.frame.movedBy(distance);
  for (ui::SemanticsNode& child : node.children) {
    move(child, distance);
  }
}

/// The node of an item without a view.
ui::SemanticsNode plainNode(const MenuRow& row, const appkit::MenuItem& item) {
  ui::SemanticsNode node;
  node.role = ui::Role::button;
  node.label = item.title;
  node.isEnabled = item.isEnabled;
  node.frame = {row.frame.origin.x, row.frame.origin.y, row.frame.size.width,
                row.frame.size.height};
  node.isControl = true;
  return node;
}

}  // namespace

std::string Surfaces::nameOf(const DeskWindow& window) {
  for (const auto& [className, name] : namesByClass) {
    if (window.className == className) {
      return name;
    }
  }
  return window.className;
}

std::shared_ptr<DeskWindow> Surfaces::window(const std::string& name) const {
  const auto all = server_.windows();
  const auto found = std::find_if(all.rbegin(), all.rend(), [&](const auto& window) {
    return server_.isVisible(*window) && nameOf(*window) == name;
  });
  return found == all.rend() ? nullptr : *found;
}

std::vector<std::string> Surfaces::names() const {
  std::vector<std::string> all;
  if (server_.menus.isOpen()) {
    all.emplace_back(menu);
  }
  const auto windows = server_.windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (server_.isVisible(**window) && !server_.modal.blocks(**window)) {
      all.push_back(nameOf(**window));
    }
  }
  return all;
}

bool Surfaces::isOpen(const std::string& name) const {
  return name == menu ? server_.menus.isOpen() : window(name) != nullptr;
}

std::optional<ui::SemanticsNode> Surfaces::tree(const std::string& name) const {
  if (!isOpen(name)) {
    return std::nullopt;
  }
  if (name == menu) {
    return menuTree();
  }
  const auto view = window(name)->content;
  return view != nullptr ? currentTree(*view) : ui::SemanticsNode{};
}

ui::SemanticsNode Surfaces::menuTree() const {
  server_.menus.layOut();
  const CGRect& frame = server_.menus.frame();
  ui::SemanticsNode root;
  root.frame = {0, 0, frame.size.width, frame.size.height};
  for (const MenuRow& row : server_.menus.rows()) {
    const appkit::MenuItem& item = server_.menus.menu()->items[row.itemIndex];
    if (row.view != nullptr) {
      ui::SemanticsNode node = currentTree(*row.view);
      move(node, {row.frame.origin.x - frame.origin.x, row.frame.origin.y - frame.origin.y});
      root.children.push_back(std::move(node));
    } else if (!item.isSeparator) {
      root.children.push_back(plainNode(row, item));
      move(root.children.back(), {-frame.origin.x, -frame.origin.y});
    }
  }
  return root;
}

std::vector<SurfaceControl> Surfaces::menuControls() const {
  server_.menus.layOut();
  std::vector<SurfaceControl> all;
  for (const MenuRow& row : server_.menus.rows()) {
    const appkit::MenuItem& item = server_.menus.menu()->items[row.itemIndex];
    if (row.view != nullptr) {
      collectAll(row.view, row.frame.origin, all);
    } else if (!item.isSeparator) {
      all.push_back(
          {plainNode(row, item), row.frame, row.frame,
           [&server = server_, index = row.itemIndex] { return server.menus.choose(index); }});
    }
  }
  return all;
}

std::vector<SurfaceControl> Surfaces::controls(const std::string& name) const {
  std::vector<SurfaceControl> all;
  if (name == menu) {
    return server_.menus.isOpen() ? menuControls() : all;
  }
  const auto shown = window(name);
  if (shown != nullptr && shown->content != nullptr) {
    const auto view = shown->content;
    const auto origin = server_.originOf(*view);
    collectAll(view, origin.value_or(CGPoint{}), all);
  }
  return all;
}

}  // namespace orvane::desk
