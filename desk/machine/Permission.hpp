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

  /// The application has asked for the permission: the first time this brings it into the list. One
  /// that its user has taken out of the list does not come back by asking.
  void noteAsked() {
    isListed_ = isListed_ || !isKnown_;
    isKnown_ = true;
  }

  /// Takes the application out of the list, and the permission with it.
  void unlist() {
    isListed_ = false;
    isKnown_ = true;
    setTrusted(false);
  }

  /// Called after the permission was given or taken away.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  bool isTrusted_ = false;
  bool isListed_ = false;
  bool isKnown_ = false;
  std::function<void()> changed_;
};

}  // namespace orvane::desk
