// The pointer over a control repaints that control, and no other part of the main panel.
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

  /// That a movement to the point repaints part of the area until all animations end.
  void expectDamageWithin(const ui::Rect& area, ui::Point point) {
    const CGPoint corner = server().topLeftOf(*window(mainPanel));
    moveTo({corner.x + point.x, corner.y + point.y});
    ui::Rect damage;
    for (int frame = 0; frame <= 30; ++frame) {
      machine.advance(1.0 / 60);
      for (const ui::Rect& rect : host().takeDirtyRects()) {
        damage = damage.united(rect);
      }
    }
    EXPECT_EQ(damage.isEmpty(), area.isEmpty()) << point.x << " " << point.y;
    EXPECT_EQ(area.united(damage), area) << point.x << " " << point.y;
  }
};

TEST_F(HoverDamageTest, IsThatOfTheControlsThatThePointerEntersAndLeaves) {
  // Of a card scaled by 1.012, with its border and a point for antialiasing.
  constexpr double cardMargin = 4;
  // Of the shadow of a hovered light.
  constexpr double lightMargin = 12;
  const ui::Rect first = frameOf("DELL");
  const ui::Rect second = frameOf("LG");
  const ui::Rect lights = frameOf("Close").united(frameOf("Minimise")).inset(-lightMargin);
  expectDamageWithin({}, {350, 100});
  expectDamageWithin({}, {360, 100});
  expectDamageWithin(first.inset(-cardMargin), first.center());
  expectDamageWithin(first.united(second).inset(-cardMargin), second.center());
  expectDamageWithin(second.inset(-cardMargin), {360, 100});
  expectDamageWithin(lights, frameOf("Close").center());
}

}  // namespace
}  // namespace orvane
