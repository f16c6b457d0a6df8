// Lookup and eviction.
#include <gtest/gtest.h>

#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/Mask.hpp"

namespace orvane::desk {
namespace {

Mask square(int side) {
  return {imageSurface(side, side, CAIRO_FORMAT_A8), side, 0};
}

TEST(CacheTest, AValueIsMadeOnce) {
  Cache<Mask> cache(1000);
  int made = 0;
  const auto make = [&] {
    ++made;
    return square(8);
  };
  const std::string key = cacheKey("lock", 13.0);
  EXPECT_EQ(cache.get(key, make).x, 8);
  EXPECT_EQ(cache.get(key, make).x, 8);
  EXPECT_EQ(made, 1);
}

TEST(CacheTest, KeysDifferInEveryPart) {
  EXPECT_NE(cacheKey("a", 1.0, 2), cacheKey("b", 1.0, 2));
  EXPECT_NE(cacheKey("a", 1.0, 2), cacheKey("a", 1.5, 2));
  EXPECT_NE(cacheKey("a", 1.0, 2), cacheKey("a", 1.0, 3));
  EXPECT_EQ(cacheKey("a", 1.0, 2), cacheKey("a", 1.0, 2));
  EXPECT_NE(cacheKey("ab", "c"), cacheKey("a", "bc"));
}

TEST(CacheTest, AValueBeyondTheLimitEvictsTheOthers) {
  Cache<Mask> masks(200);
  Cache<int> numbers(3);
  for (int index = 0; index < 3; ++index) {
    masks.get(cacheKey(index), [] { return square(8); });
    numbers.get(cacheKey(index), [] { return 1000; });
  }
  EXPECT_EQ(masks.count(), 3U);
  EXPECT_EQ(numbers.count(), 3U);
  masks.get(cacheKey(3), [] { return square(8); });
  numbers.get(cacheKey(3), [] { return 1; });
  EXPECT_EQ(masks.count(), 1U);
  EXPECT_EQ(numbers.count(), 1U);
  EXPECT_EQ(masks.get(cacheKey(4), [] { return Mask{}; }).surface, nullptr);
  EXPECT_EQ(masks.count(), 2U);
}

}  // namespace
}  // namespace orvane::desk
