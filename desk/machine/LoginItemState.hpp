// The application's registration as a login item.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Orvane/platform/appkit/LoginItem.hpp"

namespace orvane::desk {

struct LoginItemState {
  appkit::LoginItem::Status status = appkit::LoginItem::Status::notRegistered;
  /// While there is one, every registration and its undoing fail with this text.
  std::optional<std::string> error;
  /// How often the application asked, with or without success.
  std::int64_t registrationCount = 0;
  std::int64_t unregistrationCount = 0;

  /// The error's text, or none on success: the status is then `enabled`, also of a service that was
  /// not found before. One that its user has to approve stays so.
  std::optional<std::string> registerApplication() {
    ++registrationCount;
    if (!error && status != appkit::LoginItem::Status::requiresApproval) {
      status = appkit::LoginItem::Status::enabled;
    }
    return error;
  }
  /// The error's text, or none on success: the status is then `notRegistered`.
  std::optional<std::string> unregisterApplication() {
    ++unregistrationCount;
    if (!error) {
      status = appkit::LoginItem::Status::notRegistered;
    }
    return error;
  }
};

}  // namespace orvane::desk
