// The login item on the desk.
#include "Orvane/platform/appkit/LoginItem.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

LoginItem::Status LoginItem::status() {
  desk::recordCall("LoginItem.status");
  return desk::Machine::current().loginItem.status;
}

std::optional<std::string> LoginItem::registerApplication() {
  return desk::Machine::current().loginItem.registerApplication();
}

std::optional<std::string> LoginItem::unregisterApplication() {
  return desk::Machine::current().loginItem.unregisterApplication();
}

}  // namespace orvane::appkit
