// The screens' frames in a picture, and the Dock's geometry at every edge and stage.
#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DockShelf.hpp"

namespace orvane::showroom {
namespace {

const std::vector<CGRect> sideBySide{CGRectMake(0, 0, 1024, 640), CGRectMake(1024, -60, 1120, 700)};

ui::Rect toRect(const cairo_rectangle_int_t& pixels) {
  return {static_cast<double>(pixels.x), static_cast<double>(pixels.y),
          static_cast<double>(pixels.width), static_cast<double>(pixels.height)};
}

TEST(DesktopLayoutTest, PlacesScreensExactlyFromTheTopLeftOfAllDisplays) {
  const DesktopLayout layout(sideBySide, DesktopStyle::exact, 0.5);
  EXPECT_EQ(layout.pixels().width, 1072);
  EXPECT_EQ(layout.pixels().height, 350);
  EXPECT_EQ(toRect(layout.screens()[0].pixels), (ui::Rect{0, 30, 512, 320}));
  EXPECT_EQ(toRect(layout.screens()[1].pixels), (ui::Rect{512, 0, 560, 350}));
}

TEST(DesktopLayoutTest, LeavesNoSeamBetweenNeighboursAtAnyScale) {
  for (const double scale : {0.31, 0.333, 0.5, 0.77, 1.0, 1.5}) {
    const DesktopLayout layout(sideBySide, DesktopStyle::exact, scale);
    const cairo_rectangle_int_t& first = layout.screens()[0].pixels;
    EXPECT_EQ(first.x + first.width, layout.screens()[1].pixels.x) << scale;
  }
}

TEST(DesktopLayoutTest, SeparatesMonitorsByTheirBordersAndTheGap) {
  const DesktopLayout layout(sideBySide, DesktopStyle::monitors, 1);
  const cairo_rectangle_int_t& first = layout.screens()[0].pixels;
  EXPECT_EQ(layout.screens()[1].pixels.x - (first.x + first.width),
            static_cast<int>(2 * DesktopLayout::border + DesktopLayout::gap));
  EXPECT_EQ(layout.screens()[1].pixels.y + 60, first.y);
}

TEST(DesktopLayoutTest, FitsIntoAnArea) {
  const cairo_rectangle_int_t area{10, 20, 1000, 700};
  const DesktopLayout layout = DesktopLayout::fitted(sideBySide, DesktopStyle::monitors, area, 2);
  EXPECT_EQ(toRect(layout.pixels()), toRect(area));
  const ui::Size size = DesktopLayout::sizeInPoints(sideBySide, DesktopStyle::monitors);
  EXPECT_NEAR(size.width * layout.scale(), 1000, 1);
  const DesktopLayout small =
      DesktopLayout::fitted(sideBySide, DesktopStyle::monitors, {0, 0, 9000, 9000}, 2);
  EXPECT_DOUBLE_EQ(small.scale(), 2);
}

TEST(DesktopLayoutTest, IsEmptyWithoutDisplays) {
  const DesktopLayout layout({}, DesktopStyle::monitors, 1);
  EXPECT_TRUE(layout.screens().empty());
  EXPECT_EQ(layout.pixels().width, 0);
  EXPECT_FALSE(layout.globalPoint(5, 5));
}

TEST(DesktopLayoutTest, HasNoPointBetweenTheScreens) {
  const DesktopLayout layout(sideBySide, DesktopStyle::monitors, 1);
  const cairo_rectangle_int_t& first = layout.screens()[0].pixels;
  EXPECT_TRUE(layout.globalPoint(first.x + first.width - 1, first.y));
  EXPECT_FALSE(layout.globalPoint(first.x + first.width, first.y));
}

/// Rows of displays, adjacent or not, at fractional coordinates.
std::vector<CGRect> arrangement() {
  std::vector<CGRect> frames;
  double y = *rc::gen::inRange(-2000, 2000) / 4.0;
  const int rows = *rc::gen::inRange(1, 4);
  for (int row = 0; row < rows; ++row) {
    double x = *rc::gen::inRange(-8000, 8000) / 4.0;
    double tallest = 0;
    const int columns = *rc::gen::inRange(1, 4);
    for (int column = 0; column < columns; ++column) {
      const double width = *rc::gen::inRange(300, 2000);
      const double height = *rc::gen::inRange(300, 2000);
      frames.push_back(CGRectMake(x, y, width, height));
      x += width + *rc::gen::inRange(0, 3) * 10;
      tallest = std::max(tallest, height);
    }
    y += tallest + *rc::gen::inRange(0, 3) * 10;
  }
  return frames;
}

RC_GTEST_PROP(DesktopLayoutTest, SeparatesMonitorsOfDisplaysThatDoNotOverlap, ()) {
  const std::vector<CGRect> frames = arrangement();
  const double scale = *rc::gen::inRange(20, 200) / 100.0;
  const DesktopLayout layout(frames, DesktopStyle::monitors, scale);
  for (std::size_t index = 0; index < frames.size(); ++index) {
    const ui::Rect own = toRect(layout.screens()[index].pixels);
    RC_ASSERT(own.x >= 0 && own.y >= 0);
    RC_ASSERT(own.right() <= layout.pixels().width && own.bottom() <= layout.pixels().height);
    for (std::size_t other = 0; other < index; ++other) {
      RC_ASSERT(!own.intersects(toRect(layout.screens()[other].pixels)));
    }
  }
}

RC_GTEST_PROP(DesktopLayoutTest, ConvertsPixelsToPointsAndBack, ()) {
  const std::vector<CGRect> frames = arrangement();
  const DesktopLayout layout(frames, DesktopStyle::monitors, 0.7, {30, 40, 0, 0});
  const auto index =
      static_cast<std::size_t>(*rc::gen::inRange(0, static_cast<int>(frames.size())));
  const CGRect& frame = frames[index];
  const CGPoint place{frame.origin.x + frame.size.width * 0.3,
                      frame.origin.y + frame.size.height * 0.8};
  const ui::Point pixel = layout.pixel(index, place);
  const auto back = layout.globalPoint(pixel.x, pixel.y);
  RC_ASSERT(back.has_value());
  RC_ASSERT(std::abs(back->x - place.x) < 1e-6 && std::abs(back->y - place.y) < 1e-6);
}

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
