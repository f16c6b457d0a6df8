// Published is a value that notifies its observers of each change; they then read the new value.
#pragma once

#include <functional>
#include <utility>

#include "Orvane/base/Signal.hpp"

namespace orvane {

/// Main thread only. Assigning an equal value sends no notification.
template <typename T>
class Published {
 public:
  /// `anyChange`, when given, is notified after this value's own observers; it must outlive this.
  explicit Published(T initial, Signal* anyChange = nullptr)
      : value_(std::move(initial)), anyChange_(anyChange) {}
  Published(const Published&) = delete;
  Published& operator=(const Published&) = delete;

  [[nodiscard]] const T& value() const { return value_; }

  void set(T value) {
    if (value == value_) {
      return;
    }
    value_ = std::move(value);
    changed_.notify();
    if (anyChange_ != nullptr) {
      anyChange_->notify();
    }
  }

  /// Calls `observer` after each later change, but not for the current value.
  [[nodiscard]] Subscription observe(std::function<void()> observer) const {
    return changed_.observe(std::move(observer));
  }

 private:
  T value_;
  Signal changed_;
  Signal* anyChange_;
};

}  // namespace orvane
