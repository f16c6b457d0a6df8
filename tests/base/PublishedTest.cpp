// What a Published value tells, when, and in which order.
#include <string>

#include <gtest/gtest.h>

#include "Orvane/base/Published.hpp"

namespace orvane {
namespace {

TEST(PublishedTest, ObserversReadTheNewValue) {
  Published<int> value(1);
  int seen = 0;
  const Subscription subscription = value.observe([&] { seen = value.value(); });
  value.set(2);
  EXPECT_EQ(seen, 2);
}

TEST(PublishedTest, ThePresentValueIsNotAnnounced) {
  const Published<int> value(1);
  int count = 0;
  const Subscription subscription = value.observe([&] { ++count; });
  EXPECT_EQ(count, 0);
}

TEST(PublishedTest, AnEqualValueIsNoChange) {
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
  std::string told;
  const Subscription any = anyChange.observe([&] { told += "*"; });
  const Subscription own = first.observe([&] { told += "a"; });
  first.set(1);
  second.set(1);
  EXPECT_EQ(told, "a**");
}

TEST(PublishedTest, AnObserverMaySetTheValueAgain) {
  Published<int> value(0);
  std::string told;
  const Subscription subscription = value.observe([&] {
    told += std::to_string(value.value());
    if (value.value() < 3) {
      value.set(value.value() + 1);
    }
  });
  value.set(1);
  EXPECT_EQ(told, "123");
  EXPECT_EQ(value.value(), 3);
}

}  // namespace
}  // namespace orvane
