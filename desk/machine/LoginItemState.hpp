// The application's registration as a login item.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Orvane/platform/appkit/LoginItem.hpp"

namespace orvane::desk {

struct LoginItemState {
  appkit::LoginItem::Status status = appkit::LoginItem::Status::notRegistered;
  /// While set, registering and unregistering fail with this text.
  std::optional<std::string> error;
  /// How often the application tried, with or without success.
  std::int64_t registrationCount = 0;
  std::int64_t unregistrationCount = 0;

  /// Returns the error text, or none on success. The status then is `enabled`, even if it was
  /// `notFound`, but `requiresApproval` is kept.
  std::optional<std::string> registerApplication() {
    ++registrationCount;
    if (!error && status != appkit::LoginItem::Status::requiresApproval) {
      status = appkit::LoginItem::Status::enabled;
    }
    return error;
  }
  /// Returns the error text, or none on success. The status then is `notRegistered`.
  std::optional<std::string> unregisterApplication() {
    ++unregistrationCount;
    if (!error) {
      status = appkit::LoginItem::Status::notRegistered;
    }
    return error;
  }
};

}  // namespace orvane::desk
