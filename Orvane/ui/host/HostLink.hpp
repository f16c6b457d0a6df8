// The thread by which values and handlers reach their host without keeping it alive.
#pragma once

#include <functional>
#include <optional>

#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

class ViewHost;

// Owned by the host and held weakly by all others, so that it ends with the host.
struct HostLink {
  ViewHost* host = nullptr;
  const HostServices* services = nullptr;

  void invalidate(const std::optional<Curve>& curve) const;
  void openMenu(MenuRequest request) const;
  void dismiss() const;
};

}  // namespace orvane::ui
