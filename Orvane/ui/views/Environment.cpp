// Calls of the host, without effect once it is destroyed.
#include "Orvane/ui/views/Environment.hpp"

namespace orvane::ui {

void Environment::animate(const Curve& curve, const std::function<void()>& change) const {
  // The change may destroy the view that holds this environment.
  const std::weak_ptr<HostLink> keptLink = link;
  const Curve keptCurve = curve;
  if (const std::function<void()> keptChange = change) {
    keptChange();
  }
  if (const auto host = keptLink.lock()) {
    host->invalidate(keptCurve);
  }
}

void Environment::dismiss() const {
  if (const auto host = link.lock()) {
    host->call(&HostServices::dismiss);
  }
}

}  // namespace orvane::ui
