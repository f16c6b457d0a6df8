// The notifications of a Published value.
#include <string>

#include <gtest/gtest.h>

#include "Orvane/base/Published.hpp"

namespace orvane {
namespace {

TEST(PublishedTest, ObserversReadTheNewValue) {
  Published<int> value(1);
  int seen = 0;
  const Subscription subscription = value.observe([&] { seen = value.value(); });
  EXPECT_EQ(seen, 0) << "the current value is not announced";
  value.set(2);
  EXPECT_EQ(seen, 2);
}

TEST(PublishedTest, AnEqualValueIsNotAChange) {
  Signal anyChange;
  Published<std::string> value("a", &anyChange);
  int count = 0;
  const Subscription own = value.observe([&] { ++count; });
  const Subscription any = anyChange.observe([&] { ++count; });
  value.set("a");
  EXPECT_EQ(count, 0);
  value.set("b");
  EXPECT_EQ(count, 2);
}

TEST(PublishedTest, TheSignalOfAnyChangeComesAfterTheOwnObservers) {
  Signal anyChange;
  Published<int> first(0, &anyChange);
  Published<int> second(0, &anyChange);
  std::string log;
  const Subscription any = anyChange.observe([&] { log += "*"; });
  const Subscription own = first.observe([&] { log += "a"; });
  first.set(1);
  second.set(1);
  EXPECT_EQ(log, "a**");
}

TEST(PublishedTest, AnObserverMaySetTheValueAgain) {
  Published<int> value(0);
  std::string log;
  const Subscription subscription = value.observe([&] {
    log += std::to_string(value.value());
    if (value.value() < 3) {
      value.set(value.value() + 1);
    }
  });
  value.set(1);
  EXPECT_EQ(log, "123");
  EXPECT_EQ(value.value(), 3);
}

}  // namespace
}  // namespace orvane
