// The surface of a panel.
#include "Orvane/panels/main/DockPanel.hpp"
#include "Orvane/ui/views/Text.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

using DockPanelTest = ComponentFixture;

TEST_F(DockPanelTest, PadsItsContentAndFillsTheWidth) {
  show(DockPanel{ui::Text("12345").fixedSize()}, {300, 101});
  const auto text = test.element("12345");
  ASSERT_TRUE(text);
  const double height = text->frame.height + 2 * 20;
  const ui::Rect surface{0, (101 - height) / 2, 300, height};
  EXPECT_TRUE(draws("rounded(" + numbers(surface) + " r12 continuous)")) << drawing();
}

TEST_F(DockPanelTest, IsGlassWithARimAndAShadow) {
  show(DockPanel{ui::Text("a")}, {300, 100});
  EXPECT_TRUE(draws("rgba(1 1 1 0.28)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.5) width 0.8\n")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.18)")) << drawing();
  appear(true);
  EXPECT_TRUE(draws("rgba(1 1 1 0.03)")) << drawing();
  EXPECT_TRUE(draws("rgba(1 1 1 0.22) width 0.8\n")) << drawing();
  EXPECT_TRUE(draws("rgba(0 0 0 0.396)")) << drawing();
}

}  // namespace
}  // namespace orvane
