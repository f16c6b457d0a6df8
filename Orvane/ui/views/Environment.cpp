// The ways from a view back to its host, each of which does nothing once the host is gone.
#include "Orvane/ui/views/Environment.hpp"

namespace orvane::ui {

void Environment::animate(const Curve& curve, const std::function<void()>& change) const {
  // The change may destroy the view that holds this environment.
  const std::weak_ptr<HostLink> keptLink = link;
  const Curve keptCurve = curve;
  if (change) {
    const std::function<void()> keptChange = change;
    keptChange();
  }
  if (const auto target = keptLink.lock()) {
    target->invalidate(keptCurve);
  }
}

void Environment::dismiss() const {
  if (const auto target = link.lock()) {
    target->dismiss();
  }
}

}  // namespace orvane::ui
