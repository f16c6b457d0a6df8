// The application's bundle on the desk, where the simulated Mac has it installed.
#include "Orvane/platform/appkit/Bundle.hpp"

#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

std::optional<std::string> Bundle::url() {
  return "file:///Applications/Orvane.app/";
}

bool Bundle::hasImage(std::string_view name) {
  return desk::WindowServer::current().resources().images.size(std::string(name)).has_value();
}

}  // namespace orvane::appkit
