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

/// `window` is the intersection of the ancestor scroll areas.
void collect(const ui::SemanticsNode& node, const SurfacePart& part, const ui::Rect& window,
             std::vector<SurfaceControl>& controls) {
  const auto global = [&](const ui::Rect& rect) {
    return CGRectMake(part.origin.x + rect.x, part.origin.y + rect.y, rect.width, rect.height);
  };
  if (node.isControl) {
    controls.push_back({node, global(node.frame), global(node.frame.intersection(window)),
                        [press = part.press, id = node.id] { return press(id); }});
  }
  const bool scrolls = node.role == ui::Role::scrollArea;
  for (const ui::SemanticsNode& child : node.children) {
    collect(child, part, scrolls ? window.intersection(node.frame) : window, controls);
  }
}

void move(ui::SemanticsNode& node, ui::Point distance) {
  node.frame = node.frame.movedBy(distance);
  for (ui::SemanticsNode& child : node.children) {
    move(child, distance);
  }
}

SurfacePart viewPart(const std::shared_ptr<HostedView>& view, CGPoint origin) {
  view->update();
  return {view->host().semantics(), origin, [view](std::uint64_t id) {
            view->update();
            return view->host().press(id);
          }};
}

/// An item without a view.
SurfacePart plainPart(const MenuRow& row, MenuTracker& menus) {
  const appkit::MenuItem& item = menus.menu()->items[row.itemIndex];
  ui::SemanticsNode node;
  node.role = ui::Role::button;
  node.label = item.title;
  node.isEnabled = item.isEnabled;
  node.frame = {0, 0, row.frame.size.width, row.frame.size.height};
  node.isControl = true;
  return {node, row.frame.origin,
          [&menus, index = row.itemIndex](std::uint64_t) { return menus.choose(index); }};
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

std::optional<CGRect> Surfaces::frame(const std::string& name) const {
  if (!isOpen(name)) {
    return std::nullopt;
  }
  server_.menus.layOut();
  return name == menu ? server_.menus.frame()
                      : server_.machine().displays.flipped(window(name)->frame);
}

std::vector<SurfacePart> Surfaces::parts(const std::string& name) const {
  std::vector<SurfacePart> all;
  if (name == menu) {
    server_.menus.layOut();
    for (const MenuRow& row : server_.menus.rows()) {
      if (row.view != nullptr) {
        all.push_back(viewPart(row.view, row.frame.origin));
      } else if (!server_.menus.menu()->items[row.itemIndex].isSeparator) {
        all.push_back(plainPart(row, server_.menus));
      }
    }
    return all;
  }
  const auto shown = window(name);
  if (const auto view = shown != nullptr ? shown->content : nullptr) {
    all.push_back(viewPart(view, server_.originOf(*view).value_or(CGPoint{})));
  }
  return all;
}

std::optional<ui::SemanticsNode> Surfaces::tree(const std::string& name) const {
  if (!isOpen(name)) {
    return std::nullopt;
  }
  std::vector<SurfacePart> all = parts(name);
  if (name != menu) {
    return all.empty() ? ui::SemanticsNode{} : std::move(all.front().tree);
  }
  const CGRect& frame = server_.menus.frame();
  ui::SemanticsNode root;
  root.frame = {0, 0, frame.size.width, frame.size.height};
  for (SurfacePart& part : all) {
    move(part.tree, {part.origin.x - frame.origin.x, part.origin.y - frame.origin.y});
    root.children.push_back(std::move(part.tree));
  }
  return root;
}

std::vector<SurfaceControl> Surfaces::controls(const std::string& name) const {
  std::vector<SurfaceControl> all;
  for (const SurfacePart& part : parts(name)) {
    collect(part.tree, part, part.tree.frame, all);
  }
  return all;
}

}  // namespace orvane::desk
