// The one call that goes to the host itself.
#include "Orvane/ui/host/HostLink.hpp"

#include "Orvane/ui/host/ViewHost.hpp"

namespace orvane::ui {

void HostLink::invalidate(const std::optional<Curve>& curve) const {
  if (isConnected()) {
    host_->invalidate(curve);
  }
}

}  // namespace orvane::ui
