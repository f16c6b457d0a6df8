// The parts of the window server that a script can inspect.
#include <string>

#include <nlohmann/json.hpp>

#include "desk/hand/InQuotes.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/script/JsonText.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

/// A greater width or height means unlimited.
constexpr double unlimited = 1e9;

Json sizeOf(CGSize size) {
  if (size.width > unlimited || size.height > unlimited) {
    return nullptr;
  }
  return {size.width, size.height};
}

Json windowSnapshot(const WindowServer& server, const DeskWindow& window) {
  const auto parent = window.parent.lock();
  return {{"surface", Surfaces::nameOf(window)},
          {"class", window.className},
          {"title", window.title},
          {"frame", jsonRectangle(window.frame)},
          {"styleMask", window.styleMask},
          {"level", window.level},
          {"collectionBehavior", window.collectionBehavior},
          {"visible", server.isVisible(window)},
          {"key", server.focus.keyReceiver().get() == &window},
          {"miniaturised", window.isMiniaturized},
          {"parent", parent != nullptr ? Json(Surfaces::nameOf(*parent)) : Json(nullptr)},
          {"opaque", window.isOpaque},
          {"hasShadow", window.hasShadow},
          {"movableByBackground", window.isMovableByBackground},
          {"minSize", sizeOf(window.minSize)},
          {"maxSize", sizeOf(window.maxSize)},
          {"cornerRadius", window.content != nullptr ? window.content->cornerRadius : 0},
          {"main", server.focus.mainWindow().get() == &window},
          {"modal", server.modal.isModal(window)},
          {"panel", window.isPanel()}};
}

Json windowsSnapshot() {
  Json shown = Json::array();
  const WindowServer& server = WindowServer::current();
  for (const auto& window : server.windows()) {
    shown.push_back(windowSnapshot(server, *window));
  }
  return shown;
}

Json treeSnapshot(const ui::SemanticsNode& node) {
  const ui::Rect& frame = node.frame;
  Json shown;
  shown["role"] = ui::roleName(node.role);
  shown["label"] = node.label;
  shown["value"] = node.value;
  shown["enabled"] = node.isEnabled;
  shown["selected"] = node.isSelected;
  shown["frame"] = {frame.x, frame.y, frame.width, frame.height};
  shown["focused"] = node.isFocused;
  shown["children"] = Json::array();
  for (const ui::SemanticsNode& child : node.children) {
    shown["children"].push_back(treeSnapshot(child));
  }
  return shown;
}

Problem lookAtTree(ScriptContext&, const std::string& surface, Json& shown) {
  const auto tree = Surfaces(WindowServer::current()).tree(surface);
  if (!tree) {
    return "there is no surface " + inQuotes(surface);
  }
  shown = treeSnapshot(*tree);
  return std::nullopt;
}

Json iconSnapshot() {
  const StatusBarItem* const item = WindowServer::current().statusBar.item();
  const SymbolImage* const image = item != nullptr ? item->image.get() : nullptr;
  if (image == nullptr) {
    return {{"symbol", nullptr},
            {"accessibilityDescription", nullptr},
            {"template", nullptr},
            {"size", nullptr},
            {"pointSize", nullptr}};
  }
  return {{"symbol", image->name},
          {"accessibilityDescription", image->accessibilityDescription},
          {"template", image->isTemplate},
          {"size", {image->size.width, image->size.height}},
          {"pointSize", image->pointSize}};
}

Json tooltipSnapshot() {
  const auto& tooltip = WindowServer::current().tooltips.shown();
  return {{"text", tooltip ? Json(tooltip->text) : Json(nullptr)}};
}

Json announcementsSnapshot() {
  return WindowServer::current().announcements;
}

}  // namespace

void addWindowInspectables(InspectableTable& table) {
  table.add("windows", windowsSnapshot);
  table.add("tree", Inspectable{.parameter = "SURFACE", .look = lookAtTree});
  table.add("menu", statusMenuSnapshot);
  table.add("icon", iconSnapshot);
  table.add("announcements", announcementsSnapshot);
  table.add("tooltip", tooltipSnapshot);
}

}  // namespace orvane::desk::script
