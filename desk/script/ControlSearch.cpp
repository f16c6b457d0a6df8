// A control that is there but disabled, or kept back by a modal window, is told apart from one that
// is not there.
#include "desk/script/ControlSearch.hpp"

#include <utility>
#include <vector>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

namespace {

struct Matches {
  std::vector<SurfaceControl> enabled;
  bool hasDisabled = false;
};

Matches matchesIn(const Surfaces& surfaces, const std::string& surface,
                  const ControlSearch& search) {
  Matches matches;
  for (SurfaceControl& control : surfaces.controls(surface)) {
    if (control.node.label != search.label || (search.role && control.node.role != *search.role)) {
      continue;
    }
    if (control.node.isEnabled) {
      matches.enabled.push_back(std::move(control));
    } else {
      matches.hasDisabled = true;
    }
  }
  return matches;
}

}  // namespace

void readSurface(ScriptContext& /*context*/, Arguments& arguments, ControlSearch& search) {
  if (arguments.keyword("in")) {
    search.surface = arguments.text("SURFACE");
  }
}

ControlSearch readControlSearch(ScriptContext& context, Arguments& arguments) {
  constexpr std::int64_t greatestCount = 1000;
  ControlSearch search;
  search.label = arguments.text("\"LABEL\"");
  readSurface(context, arguments, search);
  if (arguments.keyword("nth")) {
    search.nth = arguments.integer("N", 1, greatestCount);
  }
  return search;
}

FoundWindow findWindow(const std::string& surface) {
  WindowServer& server = WindowServer::current();
  std::shared_ptr<DeskWindow> window = Surfaces(server).window(surface);
  if (window == nullptr) {
    return {nullptr, "there is no surface \"" + surface + "\""};
  }
  if (server.modal.blocks(*window)) {
    return {nullptr, "\"" + surface + "\" is kept back by a modal window"};
  }
  return {std::move(window), std::nullopt};
}

FoundControl findControl(const ControlSearch& search) {
  const Surfaces surfaces(WindowServer::current());
  std::vector<std::string> places = surfaces.names();
  if (search.surface) {
    const bool isOpenMenu = *search.surface == Surfaces::menu && surfaces.isThere(*search.surface);
    if (!isOpenMenu) {
      if (FoundWindow found = findWindow(*search.surface); found.complaint) {
        return {std::nullopt, std::move(found.complaint)};
      }
    }
    places = {*search.surface};
  }
  bool hasDisabled = false;
  for (const std::string& place : places) {
    Matches matches = matchesIn(surfaces, place, search);
    const auto index = static_cast<std::size_t>(search.nth - 1);
    if (index < matches.enabled.size()) {
      return {std::move(matches.enabled[index]), std::nullopt};
    }
    hasDisabled = hasDisabled || matches.hasDisabled;
  }
  const std::string where = search.surface ? " in " + *search.surface : "";
  return {std::nullopt, hasDisabled ? "\"" + search.label + "\"" + where + " is disabled"
                                    : "there is no control \"" + search.label + "\"" + where};
}

}  // namespace orvane::desk::script
