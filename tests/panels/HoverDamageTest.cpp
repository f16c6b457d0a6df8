// The pointer over a control repaints that control, and no other part of the main panel.
#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/panels/PanelFixture.hpp"

namespace orvane {
namespace {

class HoverDamageTest : public PanelFixture {
 protected:
  HoverDamageTest() {
    openMain();
    hover("Settings");
    machine.advance(10);
    host().takeDirtyRects();
  }

  ui::ViewHost& host() { return window(mainPanel)->content->host(); }

  struct Damage {
    ui::Rect area;
    /// Of one frame.
    std::size_t maximumRectCount = 0;
  };
  /// What a movement to this point repaints until all animations end.
  Damage damageOfMovingTo(ui::Point point) {
    const CGPoint corner = server().topLeftOf(*window(mainPanel));
    moveTo({corner.x + point.x, corner.y + point.y});
    Damage damage;
    for (int frame = 0; frame <= 30; ++frame) {
      machine.advance(1.0 / 60);
      const std::vector<ui::Rect> rects = host().takeDirtyRects();
      damage.maximumRectCount = std::max(damage.maximumRectCount, rects.size());
      for (const ui::Rect& rect : rects) {
        damage.area = damage.area.united(rect);
      }
    }
    return damage;
  }

  static bool contains(const ui::Rect& outer, const ui::Rect& inner) {
    return outer.united(inner) == outer;
  }
};

/// Of a card scaled by 1.012, with its border and a point for antialiasing.
constexpr double cardMargin = 4;

TEST_F(HoverDamageTest, OfAPlaceWithoutAControlIsEmpty) {
  damageOfMovingTo({350, 100});
  EXPECT_TRUE(damageOfMovingTo({360, 100}).area.isEmpty());
}

TEST_F(HoverDamageTest, OfACardIsTheCard) {
  damageOfMovingTo({350, 100});
  const ui::Rect card = frameOf("LG");
  const Damage damage = damageOfMovingTo(card.center());
  EXPECT_FALSE(damage.area.isEmpty());
  EXPECT_EQ(damage.maximumRectCount, 1U);
  EXPECT_TRUE(contains(card.inset(-cardMargin), damage.area));
}

TEST_F(HoverDamageTest, OfAMovementBetweenCardsIsTheTwo) {
  const ui::Rect first = frameOf("DELL");
  const ui::Rect second = frameOf("LG");
  damageOfMovingTo(first.center());
  const Damage damage = damageOfMovingTo(second.center());
  EXPECT_TRUE(contains(first.united(second).inset(-cardMargin), damage.area));
}

TEST_F(HoverDamageTest, OfATrafficLightIsThePair) {
  damageOfMovingTo({350, 100});
  const ui::Rect close = frameOf("Close");
  const Damage damage = damageOfMovingTo(close.center());
  EXPECT_FALSE(damage.area.isEmpty());
  // The margin is for the shadow of the hovered one.
  EXPECT_TRUE(contains(close.united(frameOf("Minimise")).inset(-12), damage.area));
}

}  // namespace
}  // namespace orvane
