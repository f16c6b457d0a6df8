// Launch at login: whether the application's location allows it, and the registration itself.
#include "Orvane/model/OrvaneLoginItem.hpp"

#include "Orvane/platform/appkit/Bundle.hpp"
#include "Orvane/platform/appkit/LoginItem.hpp"

namespace orvane::OrvaneLoginItem {

bool isInPermanentLocation() {
  // No public function identifies a translocated application, but its path does.
  const std::string url = appkit::Bundle::url().value_or("");
  return !appkit::Bundle::isOnReadOnlyVolume() &&
         url.find("/AppTranslocation/") == std::string::npos;
}

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
