// The user's languages on the desk.
#include "Orvane/platform/appkit/Locale.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

std::vector<std::string> Locale::preferredLanguages() {
  return desk::Machine::current().locale.preferredLanguages;
}

std::string Locale::currentIdentifier() {
  return desk::Machine::current().locale.currentIdentifier;
}

}  // namespace orvane::appkit
