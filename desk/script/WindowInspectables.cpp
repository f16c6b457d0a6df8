// The parts of the window server that a script can inspect.
#include <string>

#include <nlohmann/json.hpp>

#include "desk/hand/InQuotes.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/script/JsonText.hpp"
#include "desk/script/MenuSnapshot.hpp"
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
  Json shown;
  shown["surface"] = Surfaces::nameOf(window);
  shown["class"] = window.className;
  shown["title"] = window.title;
  shown["frame"] = jsonRectangle(window.frame);
  shown["styleMask"] = window.styleMask;
  shown["level"] = window.level;
  shown["collectionBehavior"] = window.collectionBehavior;
  shown["visible"] = server.isVisible(window);
  shown["key"] = server.focus.keyReceiver().get() == &window;
  shown["miniaturised"] = window.isMiniaturized;
  shown["parent"] = parent != nullptr ? Json(Surfaces::nameOf(*parent)) : Json(nullptr);
  shown["opaque"] = window.isOpaque;
  shown["hasShadow"] = window.hasShadow;
  shown["movableByBackground"] = window.isMovableByBackground;
  shown["minSize"] = sizeOf(window.minSize);
  shown["maxSize"] = sizeOf(window.maxSize);
  shown["cornerRadius"] = window.content != nullptr ? window.content->cornerRadius : 0;
  shown["main"] = server.focus.mainWindow().get() == &window;
  shown["modal"] = server.modal.isModal(window);
  shown["panel"] = window.isPanel();
  return shown;
}

Problem lookAtWindows(ScriptContext&, const std::string&, Json& shown) {
  shown = Json::array();
  const WindowServer& server = WindowServer::current();
  for (const auto& window : server.windows()) {
    shown.push_back(windowSnapshot(server, *window));
  }
  return std::nullopt;
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

Problem lookAtMenu(ScriptContext&, const std::string&, Json& shown) {
  shown = statusMenuSnapshot(WindowServer::current());
  return std::nullopt;
}

Problem lookAtIcon(ScriptContext&, const std::string&, Json& shown) {
  const StatusBarItem* const item = WindowServer::current().statusBar.item();
  const SymbolImage* const image = item != nullptr ? item->image.get() : nullptr;
  for (const char* const key :
       {"symbol", "accessibilityDescription", "template", "size", "pointSize"}) {
    shown[key] = nullptr;
  }
  if (image != nullptr) {
    shown["symbol"] = image->name;
    shown["accessibilityDescription"] = image->accessibilityDescription;
    shown["template"] = image->isTemplate;
    shown["size"] = {image->size.width, image->size.height};
    shown["pointSize"] = image->pointSize;
  }
  return std::nullopt;
}

Problem lookAtTooltip(ScriptContext&, const std::string&, Json& shown) {
  const auto& tooltip = WindowServer::current().tooltips.shown();
  shown["text"] = tooltip ? Json(tooltip->text) : Json(nullptr);
  return std::nullopt;
}

Problem lookAtAnnouncements(ScriptContext&, const std::string&, Json& shown) {
  shown = WindowServer::current().announcements;
  return std::nullopt;
}

}  // namespace

void addWindowInspectables(InspectableTable& table) {
  table.add({.name = "windows", .look = lookAtWindows});
  table.add({.name = "tree", .parameter = "SURFACE", .look = lookAtTree});
  table.add({.name = "menu", .look = lookAtMenu});
  table.add({.name = "icon", .look = lookAtIcon});
  table.add({.name = "announcements", .look = lookAtAnnouncements});
  table.add({.name = "tooltip", .look = lookAtTooltip});
}

}  // namespace orvane::desk::script
