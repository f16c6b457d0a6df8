// The Accessibility permission of the application.
#pragma once

#include <functional>
#include <utility>

namespace orvane::desk {

class Permission {
 public:
  [[nodiscard]] bool isTrusted() const { return isTrusted_; }

  void setTrusted(bool trusted) {
    const bool lost = isTrusted_ && !trusted;
    isTrusted_ = trusted;
    if (lost && lost_) {
      lost_();
    }
  }

  /// Called when a permission that was there is taken away.
  void onLost(std::function<void()> lost) { lost_ = std::move(lost); }

 private:
  bool isTrusted_ = false;
  std::function<void()> lost_;
};

}  // namespace orvane::desk
