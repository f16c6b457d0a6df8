// The Accessibility permission of the application.
#pragma once

#include <functional>
#include <utility>

namespace orvane::desk {

class Permission {
 public:
  [[nodiscard]] bool isTrusted() const { return isTrusted_; }
  /// Whether the system's list of applications shows the application, allowed or not.
  [[nodiscard]] bool isListed() const { return isListed_; }

  void setTrusted(bool trusted) {
    const bool isChange = isTrusted_ != trusted;
    isTrusted_ = trusted;
    if (trusted) {
      isListed_ = true;
      isKnown_ = true;
    }
    if (isChange && changed_) {
      changed_();
    }
  }

  /// Records that the application has asked for the permission. The first request adds it to the
  /// list; once the user has removed it, asking does not bring it back.
  void recordRequest() {
    isListed_ = isListed_ || !isKnown_;
    isKnown_ = true;
  }

  /// Removes the application from the list, and thus its permission.
  void unlist() {
    isListed_ = false;
    isKnown_ = true;
    setTrusted(false);
  }

  /// `changed` is called after the permission was granted or revoked.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  bool isTrusted_ = false;
  bool isListed_ = false;
  bool isKnown_ = false;
  std::function<void()> changed_;
};

}  // namespace orvane::desk
