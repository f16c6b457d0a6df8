// A pointer that comes over a control repaints that control and nothing else of the main panel.
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/panels/main/ContentView.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/windows/OrvaneWindow.hpp"
#include "desk/canvas/DrawingResources.hpp"
#include "desk/canvas/PangoTextMeasurer.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

class HoverDamageTest : public ModelFixture {
 protected:
  HoverDamageTest() {
    launch();
    host = std::make_unique<ui::ViewHost>(ui::HostPlatform{&text, resources.imageSource(), {}, {}});
    host->setSize({OrvaneWindow::contentSize.width, OrvaneWindow::contentSize.height});
    host->setRoot([this](const ui::Environment&) -> ui::View {
      return ContentView{model.get(), {[] {}, [] {}, [] {}}};
    });
    // The entrance of the panels, and rest.
    host->tick(0);
    host->tick(10);
    host->takeDirtyRects();
  }
  ~HoverDamageTest() override {
    host.reset();
    quit();
  }

  [[nodiscard]] ui::Rect frameOf(const std::string& label) const {
    return find(host->semantics(), label);
  }

  /// What is repainted from now to the end of the motion, frame by frame; in how many areas at the
  /// most in one frame.
  struct Damage {
    ui::Rect area;
    std::size_t mostRects = 0;
  };
  Damage moveTo(ui::Point point, double start) {
    host->tick(start);
    host->pointerMoved(point);
    Damage damage;
    for (int frame = 0; frame <= 30; ++frame) {
      host->tick(start + frame / 60.0);
      const std::vector<ui::Rect> rects = host->takeDirtyRects();
      damage.mostRects = std::max(damage.mostRects, rects.size());
      for (const ui::Rect& rect : rects) {
        damage.area = damage.area.united(rect);
      }
    }
    return damage;
  }

  static bool holds(const ui::Rect& outer, const ui::Rect& inner) {
    return outer.united(inner) == outer;
  }

  desk::PangoTextMeasurer text;
  desk::DrawingResources resources;
  std::unique_ptr<ui::ViewHost> host;

 private:
  static ui::Rect find(const ui::SemanticsNode& node, const std::string& label) {
    if (node.label == label) {
      return node.frame;
    }
    for (const ui::SemanticsNode& child : node.children) {
      const ui::Rect frame = find(child, label);
      if (!frame.isEmpty()) {
        return frame;
      }
    }
    return {};
  }
};

/// Of a card that grows by 1.012, with its border and a point for edges between pixels.
constexpr double cardReach = 4;

TEST_F(HoverDamageTest, NothingIsRepaintedAtRest) {
  EXPECT_TRUE(moveTo({350, 100}, 20).area.isEmpty());
}

TEST_F(HoverDamageTest, AHoveredCardIsRepaintedAlone) {
  const ui::Rect card = frameOf(model->displays().value().back().name);
  ASSERT_FALSE(card.isEmpty());
  const Damage damage = moveTo(card.center(), 20);
  EXPECT_FALSE(damage.area.isEmpty());
  EXPECT_EQ(damage.mostRects, 1U);
  EXPECT_TRUE(holds(card.inset(-cardReach), damage.area));
}

TEST_F(HoverDamageTest, GoingFromOneCardToTheNextRepaintsTheTwo) {
  const ui::Rect first = frameOf(model->displays().value().front().name);
  const ui::Rect second = frameOf(model->displays().value().back().name);
  moveTo(first.center(), 20);
  const Damage damage = moveTo(second.center(), 40);
  EXPECT_TRUE(holds(first.united(second).inset(-cardReach), damage.area));
}

TEST_F(HoverDamageTest, TheLightsAreRepaintedTogetherAndAlone) {
  const ui::Rect close = frameOf("Close");
  const ui::Rect minimise = frameOf("Minimise");
  ASSERT_FALSE(close.isEmpty() || minimise.isEmpty());
  const Damage damage = moveTo(close.center(), 20);
  EXPECT_FALSE(damage.area.isEmpty());
  // The shadow of the hovered one reaches further.
  EXPECT_TRUE(holds(close.united(minimise).inset(-12), damage.area));
}

}  // namespace
}  // namespace orvane
