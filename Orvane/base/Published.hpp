// Published is a value whose changes are announced: observers are told of a change and read the
// new value.
#pragma once

#include <functional>
#include <utility>

#include "Orvane/base/Signal.hpp"

namespace orvane {

/// Main thread only. Assigning an equal value is no change and tells nobody.
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

  /// Calls `observer` after each later change; the present value is not announced.
  [[nodiscard]] Subscription observe(std::function<void()> observer) const {
    return changed_.observe(std::move(observer));
  }

 private:
  T value_;
  Signal changed_;
  Signal* anyChange_;
};

}  // namespace orvane
