// Lookup and eviction.
#include <gtest/gtest.h>

#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/MaskCache.hpp"

namespace orvane::desk {
namespace {

Mask square(int side) {
  return {imageSurface(side, side, CAIRO_FORMAT_A8), side, 0};
}

TEST(MaskCacheTest, AMaskIsMadeOnce) {
  MaskCache cache(1000);
  int made = 0;
  const auto make = [&] {
    ++made;
    return square(8);
  };
  const MaskKey key = MaskKey().add(std::string("lock")).add(13.0);
  EXPECT_EQ(cache.get(key, make).x, 8);
  EXPECT_EQ(cache.get(key, make).x, 8);
  EXPECT_EQ(made, 1);
}

TEST(MaskCacheTest, KeysDifferInEveryPart) {
  const auto key = [](const std::string& name, double size, int phase) {
    return MaskKey().add(name).add(size).add(phase).bytes();
  };
  EXPECT_NE(key("a", 1, 2), key("b", 1, 2));
  EXPECT_NE(key("a", 1, 2), key("a", 1.5, 2));
  EXPECT_NE(key("a", 1, 2), key("a", 1, 3));
  EXPECT_EQ(key("a", 1, 2), key("a", 1, 2));
  EXPECT_NE(MaskKey().add(std::string("ab")).add(std::string("c")).bytes(),
            MaskKey().add(std::string("a")).add(std::string("bc")).bytes());
}

TEST(MaskCacheTest, AMaskBeyondTheLimitEvictsTheOthers) {
  MaskCache cache(200);
  for (int index = 0; index < 3; ++index) {
    cache.get(MaskKey().add(index), [] { return square(8); });
  }
  EXPECT_EQ(cache.count(), 3U);
  cache.get(MaskKey().add(3), [] { return square(8); });
  EXPECT_EQ(cache.count(), 1U);
  EXPECT_EQ(cache.get(MaskKey().add(4), [] { return Mask{}; }).surface, nullptr);
  EXPECT_EQ(cache.count(), 2U);
}

}  // namespace
}  // namespace orvane::desk
