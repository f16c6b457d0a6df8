// The application's bundle on the desk, where the simulated Mac has it installed.
#include "Orvane/platform/appkit/Bundle.hpp"

namespace orvane::appkit {

std::optional<std::string> Bundle::url() {
  return "file:///Applications/Orvane.app/";
}

}  // namespace orvane::appkit
