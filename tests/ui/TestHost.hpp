// A host with the synthetic font and a platform that records its requests.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "desk/hand/FindControl.hpp"
#include "tests/support/RecordingCanvas.hpp"
#include "tests/support/SyntheticTextMeasurer.hpp"

namespace orvane::ui {

class TestHost {
 public:
  // Symbols, except "unknown", are squares of the font's size; there are the images "photo" and
  // "icon" of 40 by 20 points, the first one with a dark variant.
  explicit TestHost(Size size = {200, 100}) {
    HostPlatform platform;
    platform.text = &text_;
    platform.images.imageSize = [](const std::string& name) {
      const bool isThere = name == "photo" || name == "photo-dark" || name == "icon";
      return isThere ? std::optional<Size>({40, 20}) : std::nullopt;
    };
    platform.images.symbolSize = [](const std::string& name, const Font& font) {
      return name == "unknown" ? std::nullopt : std::optional<Size>({font.size, font.size});
    };
    platform.services.requestRedraw = [this] { ++redrawRequests; };
    platform.services.requestFrames = [this] { ++frameRequests; };
    platform.services.openMenu = [this](const MenuRequest& request) { menus.push_back(request); };
    platform.services.beginDrag = [this](const DragRequest& request) { drags.push_back(request); };
    platform.services.dismiss = [this] { ++dismissals; };
    platform.services.semanticsChanged = [this] { ++semanticsChanges; };
    host = std::make_unique<ViewHost>(std::move(platform));
    host->setSize(size);
  }

  void show(const View& view) {
    show([view](const Environment&) { return view; });
  }
  void show(RootBuilder builder) {
    host->setRoot(std::move(builder));
    host->layoutIfNeeded();
  }

  // Builds the views again.
  void update() {
    host->invalidate();
    host->layoutIfNeeded();
  }

  void appear(const Appearance& appearance) {
    host->setAppearance(appearance);
    host->layoutIfNeeded();
  }

  // Moves the time to the moment, in seconds.
  void at(double seconds) { host->tick(seconds); }

  void click(Point point) {
    host->pointerMoved(point);
    host->pointerDown(point);
    host->layoutIfNeeded();
    host->pointerUp(point);
    if (host) {
      host->layoutIfNeeded();
    }
  }
  bool press(Key key, bool shift = false) {
    KeyEvent event;
    event.key = key;
    event.modifiers.shift = shift;
    const bool isHandled = host->keyDown(event);
    if (host) {
      host->layoutIfNeeded();
    }
    return isHandled;
  }

  // Every text with its frame, in the order of the tree: "a(0 0 5 10) b(5 0 5 10)".
  std::string frames() const {
    std::string result;
    const auto isText = [](const SemanticsNode& node) { return node.role == Role::staticText; };
    for (const SemanticsNode& node : desk::findElements(host->semantics(), isText)) {
      result += (result.empty() ? "" : " ") + node.label + "(" + number(node.frame.x) + " " +
                number(node.frame.y) + " " + number(node.frame.width) + " " +
                number(node.frame.height) + ")";
    }
    return result;
  }
  std::string drawing() const {
    RecordingCanvas canvas;
    host->paint(canvas, {0, 0, host->size().width, host->size().height});
    return canvas.text();
  }
  bool draws(const std::string& part) const { return drawing().find(part) != std::string::npos; }
  // The element with the label, searched in the order of the tree.
  std::optional<SemanticsNode> element(const std::string& label) const {
    return desk::findElement(host->semantics(),
                             [&](const SemanticsNode& node) { return node.label == label; });
  }

  std::unique_ptr<ViewHost> host;
  int redrawRequests = 0;
  int frameRequests = 0;
  int dismissals = 0;
  int semanticsChanges = 0;
  std::vector<MenuRequest> menus;
  std::vector<DragRequest> drags;

 private:
  static std::string number(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%g", value);
    return buffer;
  }

  SyntheticTextMeasurer text_;
};

// A text of one line, 50 points wide, in a frame of this width.
inline View lineOfTenCharacters(double width) {
  return Text("abcdefghij").font(Font::system(10)).lineLimit(1).frame({.width = width});
}

}  // namespace orvane::ui
