// The observers of notifications, called in the order of their registration.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "Orvane/platform/appkit/NotificationCenter.hpp"

namespace orvane::desk {

/// Observers may be added and removed during a notification: one that is removed before its turn is
/// not called, one that is added is first called by the next notification.
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
  /// To be called when the process has ended.
  void removeAll();

  [[nodiscard]] std::size_t count() const { return observers_.size(); }

 private:
  std::vector<std::shared_ptr<Observer>> observers_;
};

}  // namespace orvane::desk
