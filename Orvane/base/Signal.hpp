// Signal notifies its observers, in the order of their subscription.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orvane {

/// A registration with a Signal; it ends when the Subscription is cancelled or destroyed. It may
/// outlive the Signal.
class Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::shared_ptr<std::function<void()>> observer)
      : observer_(std::move(observer)) {}
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;
  Subscription(Subscription&&) = default;
  Subscription& operator=(Subscription&&) = default;
  ~Subscription() = default;

  /// The observer is not called again, not even by a notification in progress.
  void cancel() { observer_.reset(); }
  [[nodiscard]] bool isActive() const { return observer_ != nullptr; }

 private:
  std::shared_ptr<std::function<void()>> observer_;
};

/// Main thread only. During a notification, observers may subscribe, cancel and even destroy the
/// Signal; a new observer is first called by the next notification.
class Signal {
 public:
  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  [[nodiscard]] Subscription observe(std::function<void()> observer) const {
    auto owned = std::make_shared<std::function<void()>>(std::move(observer));
    std::erase_if(observers_, [](const auto& weak) { return weak.expired(); });
    observers_.push_back(owned);
    return Subscription(std::move(owned));
  }

  void notify() const {
    const Observers notified = observers_;
    for (const auto& weak : notified) {
      if (const auto observer = weak.lock()) {
        (*observer)();
      }
    }
  }

 private:
  using Observers = std::vector<std::weak_ptr<std::function<void()>>>;
  mutable Observers observers_;
};

}  // namespace orvane
