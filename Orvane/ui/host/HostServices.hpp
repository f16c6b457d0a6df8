// What connects a host with the platform, the application and the views that it shows.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"
#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

class View;
class ViewHost;
struct Environment;

/// Makes a host's root view.
using RootBuilder = std::function<View(const Environment&)>;

/// A native pop-up menu with a check mark at the selected item.
struct MenuRequest {
  std::vector<std::string> items;
  /// From 0; -1 when no item is selected.
  int selectedIndex = -1;
  /// The control that opens it, in the host's coordinates.
  Rect anchor;
  /// Called with the index of the chosen item, at once or later; not called without a choice.
  std::function<void(int)> onChoose;
};

/// A drag of one file, which offers only to copy it.
struct DragRequest {
  std::string fileUrl;
  /// The name of the image that follows the pointer, and its first frame in host coordinates.
  std::string imageName;
  Rect frame = {};
};

/// Each function may be unset; its effect is then left out.
struct HostServices {
  /// Views or pixels are out of date: call tick() soon and repaint takeDirtyRects().
  std::function<void()> requestRedraw;
  /// An animation has begun: call tick() for every frame while nextFrameWanted() is true.
  std::function<void()> requestFrames;
  std::function<void(const MenuRequest&)> openMenu;
  std::function<void(const DragRequest&)> beginDrag;
  /// Closes the window or panel that shows the host.
  std::function<void()> dismiss;
  /// The semantics tree may have changed.
  std::function<void()> semanticsChanged;
};

/// The connection of views, their values and their handlers to the host that shows them. The host
/// owns it, all others hold it weakly. Once the host is destroyed, its functions do
/// nothing.
class HostLink {
 public:
  HostLink(ViewHost& host, HostServices services) : host_(&host), services_(std::move(services)) {}

  [[nodiscard]] bool isConnected() const { return host_ != nullptr; }
  void disconnect() { host_ = nullptr; }

  /// As ViewHost::invalidate.
  void invalidate(const std::optional<Curve>& curve = std::nullopt) const;

  /// Calls a service of the platform, if it is set. The call may destroy the host.
  template <typename... Parameters, typename... Arguments>
  void call(std::function<void(Parameters...)> HostServices::*service,
            const Arguments&... arguments) const {
    if (isConnected() && services_.*service) {
      const std::function<void(Parameters...)> kept = services_.*service;
      kept(arguments...);
    }
  }

 private:
  ViewHost* host_;
  HostServices services_;
};

}  // namespace orvane::ui
