// The Dock's geometry at every edge and stage.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "showroom/desktop/DockShelf.hpp"

namespace orvane::showroom {
namespace {

constexpr std::size_t tileCount = 10;
constexpr ui::Rect wide{200, 570, 600, 70};
constexpr ui::Rect tall{0, 100, 70, 380};

bool contains(const ui::Rect& outer, const ui::Rect& inner) {
  constexpr double tolerance = 1e-9;
  return inner.x >= outer.x - tolerance && inner.y >= outer.y - tolerance &&
         inner.right() <= outer.right() + tolerance && inner.bottom() <= outer.bottom() + tolerance;
}

TEST(DockShelfTest, IsCentredAtItsEdgeWithAGap) {
  const DockShelf dock = DockShelf::make(wide, desk::DockEdge::bottom, 1, tileCount);
  EXPECT_DOUBLE_EQ(dock.shelf.center().x, wide.center().x);
  EXPECT_DOUBLE_EQ(dock.shelf.bottom(), wide.bottom() - 5);
  EXPECT_DOUBLE_EQ(dock.factor, 1);
  EXPECT_DOUBLE_EQ(dock.tiles.front().width, 46);
}

TEST(DockShelfTest, IsRotatedToTheSides) {
  const DockShelf left = DockShelf::make(tall, desk::DockEdge::left, 1, tileCount);
  EXPECT_DOUBLE_EQ(left.shelf.x, tall.x + 5);
  EXPECT_DOUBLE_EQ(left.shelf.center().y, tall.center().y);
  EXPECT_LT(left.tiles[0].y, left.tiles[1].y);
  EXPECT_DOUBLE_EQ(left.tiles[0].x, left.tiles[1].x);
  const DockShelf right = DockShelf::make(tall, desk::DockEdge::right, 1, tileCount);
  EXPECT_DOUBLE_EQ(right.shelf.right(), tall.right() - 5);
}

TEST(DockShelfTest, SlidesBehindItsEdge) {
  const DockShelf hidden = DockShelf::make(wide, desk::DockEdge::bottom, 0, tileCount);
  EXPECT_GE(hidden.shelf.y, wide.bottom() + 5);
  const DockShelf shown = DockShelf::make(wide, desk::DockEdge::bottom, 1, tileCount);
  const DockShelf half = DockShelf::make(wide, desk::DockEdge::bottom, 0.5, tileCount);
  EXPECT_DOUBLE_EQ(half.shelf.y, (hidden.shelf.y + shown.shelf.y) / 2);
  const DockShelf hiddenAtTheLeft = DockShelf::make(tall, desk::DockEdge::left, 0, tileCount);
  EXPECT_LE(hiddenAtTheLeft.shelf.right(), tall.x);
  const DockShelf hiddenAtTheRight = DockShelf::make(tall, desk::DockEdge::right, 0, tileCount);
  EXPECT_GE(hiddenAtTheRight.shelf.x, tall.right());
}

TEST(DockShelfTest, IsEmptyWithoutRoomOrTiles) {
  EXPECT_TRUE(DockShelf::make({}, desk::DockEdge::bottom, 1, tileCount).tiles.empty());
  EXPECT_TRUE(DockShelf::make(wide, desk::DockEdge::bottom, 1, 0).tiles.empty());
}

TEST(DockShelfTest, KeepsTheSeparatorOffTheTilesOnAShortEdge) {
  const DockShelf dock = DockShelf::make({0, 0, 40, 70}, desk::DockEdge::bottom, 1, 13);
  for (const ui::Rect& tile : dock.tiles) {
    EXPECT_FALSE(dock.separator.intersects(tile));
  }
}

RC_GTEST_PROP(DockShelfTest, KeepsItsTilesApartAndOnTheShelfAtEveryEdge, ()) {
  const auto edge =
      *rc::gen::element(desk::DockEdge::bottom, desk::DockEdge::left, desk::DockEdge::right);
  const double room = *rc::gen::inRange(40, 3000);
  const auto count = static_cast<std::size_t>(*rc::gen::inRange(1, 30));
  const double shown = *rc::gen::inRange(0, 101) / 100.0;
  const ui::Rect area =
      edge == desk::DockEdge::bottom ? ui::Rect{-50, 7, room, 70} : ui::Rect{-50, 7, 70, room};
  const DockShelf dock = DockShelf::make(area, edge, shown, count);
  RC_ASSERT(dock.tiles.size() == count);
  RC_ASSERT(dock.factor > 0 && dock.factor <= 1);
  const bool isLevel = edge == desk::DockEdge::bottom;
  RC_ASSERT((isLevel ? dock.shelf.width : dock.shelf.height) <= room + 1e-9);
  RC_ASSERT(contains(dock.shelf, dock.separator));
  for (std::size_t index = 0; index < count; ++index) {
    RC_ASSERT(contains(dock.shelf, dock.tiles[index]));
    RC_ASSERT(!dock.separator.intersects(dock.tiles[index]));
    for (std::size_t other = 0; other < index; ++other) {
      RC_ASSERT(!dock.tiles[index].intersects(dock.tiles[other]));
    }
  }
}

}  // namespace
}  // namespace orvane::showroom
