// Notification and registration of observers, and the notifications of a Published value.
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "Orvane/base/Published.hpp"
#include "Orvane/base/Signal.hpp"

namespace orvane {
namespace {

// A copy would stay subscribed after the original was cancelled.
static_assert(!std::is_copy_constructible_v<Subscription>);
static_assert(std::is_nothrow_move_constructible_v<Subscription>);

TEST(SignalTest, ObserversAreNotifiedInOrder) {
  Signal signal;
  std::string log;
  const Subscription first = signal.observe([&] { log += "a"; });
  const Subscription second = signal.observe([&] { log += "b"; });
  const Subscription third = signal.observe([&] { log += "c"; });
  signal.notify();
  EXPECT_EQ(log, "abc");
}

TEST(SignalTest, ACancelledSubscriptionIsInactiveAndReceivesNothing) {
  Signal signal;
  int count = 0;
  Subscription subscription = signal.observe([&] { ++count; });
  EXPECT_TRUE(subscription.isActive());
  subscription.cancel();
  EXPECT_FALSE(subscription.isActive());
  subscription.cancel();
  signal.notify();
  EXPECT_EQ(count, 0);
}

TEST(SignalTest, ARegistrationBelongsToTheSubscriptionItWasMovedTo) {
  Signal signal;
  std::string log;
  {
    Subscription kept;
    EXPECT_FALSE(kept.isActive());
    {
      Subscription made = signal.observe([&] { log += "a"; });
      kept = std::move(made);
    }
    signal.notify();
    EXPECT_EQ(log, "a");
    kept = signal.observe([&] { log += "b"; });
    signal.notify();
    EXPECT_EQ(log, "ab");
  }
  signal.notify();
  EXPECT_EQ(log, "ab");
}

TEST(SignalTest, ASubscriptionMayOutliveTheSignal) {
  std::optional<Signal> signal;
  signal.emplace();
  Subscription subscription = signal->observe([] {});
  signal.reset();
  EXPECT_TRUE(subscription.isActive());
  subscription.cancel();
}

TEST(SignalTest, AnObserverCancelledDuringANotificationIsSkipped) {
  Signal signal;
  int count = 0;
  Subscription later;
  const Subscription earlier = signal.observe([&] { later.cancel(); });
  later = signal.observe([&] { ++count; });
  signal.notify();
  EXPECT_EQ(count, 0);
}

TEST(SignalTest, AnObserverAddedDuringANotificationIsNotifiedFromTheNextOn) {
  Signal signal;
  int count = 0;
  Subscription late;
  const Subscription early = signal.observe([&] {
    if (!late.isActive()) {
      late = signal.observe([&] { ++count; });
    }
  });
  signal.notify();
  EXPECT_EQ(count, 0);
  signal.notify();
  EXPECT_EQ(count, 1);
}

TEST(SignalTest, AnObserverMayCancelItselfAndGoOn) {
  Signal signal;
  int count = 0;
  Subscription own;
  own = signal.observe([&own, &count, witness = std::make_shared<int>(7)] {
    own.cancel();
    // The observer itself must still exist.
    count += *witness;
  });
  signal.notify();
  signal.notify();
  EXPECT_EQ(count, 7);
}

TEST(SignalTest, AnObserverMayDestroyTheSignal) {
  auto signal = std::make_unique<Signal>();
  int count = 0;
  const Subscription first = signal->observe([&] { signal.reset(); });
  const Subscription second = signal->observe([&] { ++count; });
  signal->notify();
  EXPECT_EQ(signal, nullptr);
  EXPECT_EQ(count, 1);
}

TEST(SignalTest, ANotificationWithinANotificationReachesAllObservers) {
  Signal signal;
  std::string log;
  bool again = true;
  const Subscription first = signal.observe([&] {
    log += "a";
    if (std::exchange(again, false)) {
      signal.notify();
    }
  });
  const Subscription second = signal.observe([&] { log += "b"; });
  signal.notify();
  EXPECT_EQ(log, "aabb");
}

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
