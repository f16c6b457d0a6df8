// The connection of views, their values and their handlers to the host that shows them.
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

class ViewHost;

/// Its host owns it, all others hold it weakly. Once the host is destroyed, its functions do
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
