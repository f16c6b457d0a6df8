// The application object on the desk: the machine remembers what it was told.
#include "Orvane/platform/appkit/Application.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

void Application::setActivationPolicy(ActivationPolicy policy) {
  desk::Machine::current().application.activationPolicy = policy;
}

}  // namespace orvane::appkit
