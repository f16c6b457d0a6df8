// Contract tests for the notification of changed displays.
#include <optional>
#include <string>

#include "Orvane/platform/appkit/NotificationCenter.hpp"
#include "tests/contract/Arrange.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::NotificationCenter;
using appkit::ObserverToken;

class NotificationCenterContract : public ContractFixture {
 protected:
  static ObserverToken observe(std::function<void()> block) {
    return NotificationCenter::addObserver(
        appkit::NotificationName::applicationDidChangeScreenParameters, std::move(block));
  }

  std::string log;
};

TEST_F(NotificationCenterContract, ObserversAreNotifiedInOrderOfRegistration) {
  const ObserverToken first = observe([this] { log += "a"; });
  const ObserverToken second = observe([this] { log += "b"; });
  ORVANE_ARRANGE(changeDisplays());
  letTimePass(0.05);
  EXPECT_EQ(log, "ab");
  NotificationCenter::removeObserver(first);
  NotificationCenter::removeObserver(second);
}

TEST_F(NotificationCenterContract, ARemovedObserverIsNotNotifiedAndMayBeRemovedTwice) {
  const ObserverToken token = observe([this] { log += "a"; });
  NotificationCenter::removeObserver(token);
  NotificationCenter::removeObserver(token);
  ORVANE_ARRANGE(changeDisplays());
  letTimePass(0.05);
  EXPECT_EQ(log, "");
}

TEST_F(NotificationCenterContract, AnObserverMayReplaceItself) {
  std::optional<ObserverToken> token;
  token = observe([this, &token] {
    log += "old ";
    const ObserverToken old = *token;
    token = observe([this] { log += "new "; });
    NotificationCenter::removeObserver(old);
  });
  ORVANE_ARRANGE(changeDisplays());
  letTimePass(0.05);
  ORVANE_ARRANGE(changeDisplays());
  letTimePass(0.05);
  EXPECT_EQ(log, "old new ");
  NotificationCenter::removeObserver(*token);
}

}  // namespace
}  // namespace orvane
