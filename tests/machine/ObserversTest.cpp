// Removal of observers during a notification.
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "desk/machine/Observers.hpp"

namespace orvane::desk {
namespace {

constexpr auto screenParameters = appkit::NotificationName::applicationDidChangeScreenParameters;

class ObserversTest : public testing::Test {
 protected:
  std::shared_ptr<Observers::Observer> add(std::string name, std::function<void()> also = {}) {
    return observers.add(screenParameters, [this, name = std::move(name), also = std::move(also)] {
      log.push_back(name);
      if (also) {
        also();
      }
    });
  }

  Observers observers;
  std::vector<std::string> log;
  using Log = std::vector<std::string>;
};

TEST_F(ObserversTest, AnObserverRemovedBeforeItsTurnIsSkipped) {
  std::shared_ptr<Observers::Observer> second;
  add("first", [&] { observers.remove(second); });
  second = add("second");
  add("third");
  observers.post(screenParameters);
  EXPECT_EQ(log, (Log{"first", "third"}));
}

TEST_F(ObserversTest, RemoveAllRemovesEvenDuringAPost) {
  add("a", [&] { observers.removeAll(); });
  add("b");
  observers.post(screenParameters);
  observers.post(screenParameters);
  EXPECT_EQ(log, (Log{"a"}));
}

}  // namespace
}  // namespace orvane::desk
