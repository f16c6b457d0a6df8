// Launch at login: asks the system for no more than a change of what already holds.
#include "Orvane/model/OrvaneLoginItem.hpp"

#include "Orvane/platform/appkit/LoginItem.hpp"

namespace orvane::OrvaneLoginItem {

std::optional<std::string> setEnabled(bool enabled) {
  using appkit::LoginItem;
  const LoginItem::Status status = LoginItem::status();
  if (enabled && status != LoginItem::Status::enabled) {
    return LoginItem::registerApplication();
  }
  if (!enabled && status != LoginItem::Status::notRegistered) {
    return LoginItem::unregisterApplication();
  }
  return std::nullopt;
}

}  // namespace orvane::OrvaneLoginItem
