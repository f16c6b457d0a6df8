// What views ask of the platform through their host.
#include "Orvane/ui/host/HostLink.hpp"

namespace orvane::ui {

// By value: the menu may end the view that asked, and with it the request that it handed in.
void HostLink::openMenu(MenuRequest request) const {  // NOLINT(performance-unnecessary-value-param)
  if (services != nullptr && services->openMenu) {
    // The menu may run until something is chosen, and what is chosen may end the host.
    const auto open = services->openMenu;
    open(request);
  }
}

void HostLink::dismiss() const {
  if (services != nullptr && services->dismiss) {
    const auto dismissHost = services->dismiss;
    dismissHost();
  }
}

}  // namespace orvane::ui
