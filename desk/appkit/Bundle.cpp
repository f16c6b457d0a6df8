// The application's bundle on the desk.
#include "Orvane/platform/appkit/Bundle.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

std::optional<std::string> Bundle::url() {
  return desk::Machine::current().bundle.url;
}

bool Bundle::isOnReadOnlyVolume() {
  return desk::Machine::current().bundle.isOnReadOnlyVolume;
}

}  // namespace orvane::appkit
