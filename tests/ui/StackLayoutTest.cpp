// The division of a length among items.
#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Orvane/ui/layout/StackLayout.hpp"

namespace orvane::ui {
namespace {

// Of items that choose what they are offered, within their bounds.
std::vector<double> divided(std::optional<double> available, double spacing,
                            const std::vector<StackItem>& items) {
  std::vector<double> lengths;
  const auto choose = [&](std::size_t index, std::optional<double> offer) {
    return std::clamp(offer.value_or(items[index].minimum), items[index].minimum,
                      items[index].maximum);
  };
  for (const StackSegment& segment : divideStack(available, spacing, items, choose)) {
    lengths.push_back(segment.length);
  }
  return lengths;
}

constexpr double unlimited = std::numeric_limits<double>::infinity();

TEST(StackLayoutTest, FlexibleItemsShareEquallyWhatRigidOnesLeave) {
  EXPECT_EQ(divided(100, 10, {{20, 20, 0}, {0, unlimited, 0}, {0, unlimited, 0}}),
            (std::vector<double>{20, 30, 30}));
}

TEST(StackLayoutTest, TheRestOfALimitedItemGoesToTheOthers) {
  EXPECT_EQ(divided(90, 0, {{0, unlimited, 0}, {0, 10, 0}, {0, unlimited, 0}}),
            (std::vector<double>{40, 10, 40}));
}

TEST(StackLayoutTest, HigherPrioritiesAreServedFirstAndLowerOnesKeepTheirMinimum) {
  EXPECT_EQ(divided(100, 0, {{5, unlimited, 0}, {0, unlimited, 1}}), (std::vector<double>{5, 95}));
}

TEST(StackLayoutTest, EqualItemsAreServedInTheirOrder) {
  std::vector<std::size_t> order;
  (void)divideStack(30.0, 0, {{0, 10, 0}, {0, 10, 0}, {0, 10, 0}},
                    [&](std::size_t index, std::optional<double>) {
                      order.push_back(index);
                      return 10.0;
                    });
  EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2}));
}

TEST(StackLayoutTest, AnIndefiniteLengthIsPassedOnAsItIs) {
  const std::vector<StackItem> items{{3, unlimited, 0}, {4, 8, 0}};
  EXPECT_EQ(divided(std::nullopt, 5, items), (std::vector<double>{3, 4}));
  EXPECT_EQ(divided(unlimited, 5, items), (std::vector<double>{unlimited, 8}));
}

RC_GTEST_PROP(StackLayoutTest, LengthsAreFiniteAndFillTheStackExactlyWhenAnItemIsFlexible, ()) {
  const auto count = static_cast<std::size_t>(*rc::gen::inRange(1, 7));
  std::vector<StackItem> items;
  double minimum = 0;
  bool isFlexible = false;
  for (std::size_t index = 0; index < count; ++index) {
    const double low = *rc::gen::inRange(0, 40);
    const bool grows = *rc::gen::arbitrary<bool>();
    items.push_back(
        {low, grows ? unlimited : low + *rc::gen::inRange(0, 30), double(*rc::gen::inRange(0, 3))});
    minimum += low;
    isFlexible = isFlexible || grows;
  }
  const double spacing = *rc::gen::inRange(0, 12);
  const double available = *rc::gen::inRange(0, 600);
  const std::vector<double> lengths = divided(available, spacing, items);
  double sum = spacing * static_cast<double>(count - 1);
  for (std::size_t index = 0; index < count; ++index) {
    RC_ASSERT(std::isfinite(lengths[index]));
    RC_ASSERT(lengths[index] >= items[index].minimum && lengths[index] <= items[index].maximum);
    sum += lengths[index];
  }
  if (available >= minimum + spacing * static_cast<double>(count - 1)) {
    RC_ASSERT(sum <= available + 1e-6);
    RC_ASSERT(!isFlexible || std::abs(sum - available) < 1e-6);
  }
}

}  // namespace
}  // namespace orvane::ui
