// The notification center on the desk: the machine keeps the observers and posts to them.
#include "Orvane/platform/appkit/NotificationCenter.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

/// The machine keeps the observer; a token that outlives it refers to nothing.
struct ObserverToken::Implementation {
  std::weak_ptr<desk::Observers::Observer> observer;
};

ObserverToken NotificationCenter::addObserver(NotificationName name, std::function<void()> block) {
  desk::recordCall("NotificationCenter.addObserver");
  return ObserverToken(
      std::make_shared<ObserverToken::Implementation>(ObserverToken::Implementation{
          desk::Machine::current().observers.add(name, std::move(block))}));
}

void NotificationCenter::removeObserver(const ObserverToken& token) {
  if (const auto observer = token.implementation().observer.lock()) {
    desk::Machine::current().observers.remove(observer);
  }
}

}  // namespace orvane::appkit
