// The observers of notifications, told in the order in which they registered.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "Orvane/platform/appkit/NotificationCenter.hpp"

namespace orvane::desk {

/// Observers may come and go while they are being told: one that was removed before its turn is not
/// told, one that came meanwhile hears of the next notification.
class Observers {
 public:
  struct Observer {
    appkit::NotificationName name;
    std::function<void()> block;
    bool isRegistered = true;
  };

  std::shared_ptr<Observer> add(appkit::NotificationName name, std::function<void()> block);
  /// Removing twice does nothing.
  void remove(const std::shared_ptr<Observer>& observer);
  void post(appkit::NotificationName name);
  /// The process has ended.
  void removeAll();

  [[nodiscard]] std::size_t count() const { return observers_.size(); }

 private:
  std::vector<std::shared_ptr<Observer>> observers_;
};

}  // namespace orvane::desk
