// Titles and states come from the semantics trees of the rows' views, symbols from their drawing.
#include <string>

#include <nlohmann/json.hpp>

#include "Orvane/ui/draw/InkProbe.hpp"
#include "desk/hand/FindControl.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

/// Records the first symbol that is drawn.
class SymbolProbe : public ui::InkProbe {
 public:
  SymbolProbe() : InkProbe({}) {}

  void symbol(const std::string& name, const ui::Font&, const ui::Rgba&, const ui::Rect&) override {
    if (first.empty()) {
      first = name;
    }
  }

  std::string first;
};

Json rowSnapshot(const appkit::MenuItem& item) {
  Json shown;
  if (item.isSeparator) {
    shown["kind"] = "separator";
    return shown;
  }
  const auto view = viewOf(item);
  ui::SemanticsNode tree;
  SymbolProbe probe;
  if (view != nullptr) {
    view->update();
    tree = view->host().semantics();
    view->host().paint(probe, {0, 0, view->frame().size.width, view->frame().size.height});
  }
  const auto heading = findElement(
      tree, [](const ui::SemanticsNode& node) { return node.role == ui::Role::heading; });
  if (heading) {
    shown["kind"] = "header";
    shown["title"] = heading->label;
    return shown;
  }
  const auto control =
      findElement(tree, [](const ui::SemanticsNode& node) { return node.isControl; });
  shown["kind"] = "row";
  shown["title"] = control ? control->label : item.title;
  shown["symbol"] = probe.first.empty() ? Json(nullptr) : Json(probe.first);
  shown["isSelected"] = control && control->isSelected;
  shown["isEnabled"] = control ? control->isEnabled : item.isEnabled;
  shown["isOn"] =
      control && control->role == ui::Role::toggle ? Json(control->value == "1") : Json(nullptr);
  shown["itemEnabled"] = item.isEnabled;
  return shown;
}

}  // namespace

Json statusMenuSnapshot() {
  const WindowServer& server = WindowServer::current();
  Json shown;
  shown["open"] = server.menus.isStatusMenuOpen();
  shown["rows"] = Json::array();
  const StatusBarItem* const item = server.statusBar.item();
  if (item != nullptr && item->menu != nullptr) {
    const auto menu = item->menu;
    for (const appkit::MenuItem& row : menu->items) {
      shown["rows"].push_back(rowSnapshot(row));
    }
  }
  return shown;
}

}  // namespace orvane::desk::script
