// The application's own registration as a login item; SMAppService.mainApp on a Mac.
#pragma once

#include <optional>
#include <string>

namespace orvane::appkit {

class LoginItem {
 public:
  LoginItem() = delete;

  /// The values of SMAppService.Status.
  enum class Status { notRegistered = 0, enabled = 1, requiresApproval = 2, notFound = 3 };

  static Status status();
  /// The platform's error text on failure; none on success.
  static std::optional<std::string> registerApplication();
  static std::optional<std::string> unregisterApplication();
};

}  // namespace orvane::appkit
