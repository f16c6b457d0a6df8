// Posting to observers that may be added and removed meanwhile.
#include "desk/machine/Observers.hpp"

#include <utility>

namespace orvane::desk {

std::shared_ptr<Observers::Observer> Observers::add(appkit::NotificationName name,
                                                    std::function<void()> block) {
  auto observer = std::make_shared<Observer>(Observer{name, std::move(block)});
  observers_.push_back(observer);
  return observer;
}

void Observers::remove(const std::shared_ptr<Observer>& observer) {
  observer->isRegistered = false;
  std::erase(observers_, observer);
}

void Observers::post(appkit::NotificationName name) {
  const auto notified = observers_;
  for (const auto& observer : notified) {
    if (observer->isRegistered && observer->name == name && observer->block) {
      observer->block();
    }
  }
}

void Observers::removeAll() {
  // Destroying what the blocks hold may access the observers again.
  const auto removed = std::exchange(observers_, {});
  for (const auto& observer : removed) {
    observer->isRegistered = false;
  }
}

}  // namespace orvane::desk
