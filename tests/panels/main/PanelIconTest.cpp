// The tile at the head of a panel.
#include "Orvane/panels/main/PanelIcon.hpp"
#include "tests/panels/ComponentFixture.hpp"

namespace orvane {
namespace {

using PanelIconTest = ComponentFixture;

TEST_F(PanelIconTest, IsATileOfItsTintWithAWhiteSymbol) {
  show(PanelIcon{"lock", ui::Color::rgb(0.2, 0.4, 0.6)}, {48, 48});
  EXPECT_TRUE(draws("rounded(0 0 48 48")) << drawing();
  EXPECT_TRUE(draws("rgba(0.2 0.4 0.6 0.98)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.2 0.4 0.6 0.78)")) << drawing();
  EXPECT_TRUE(draws("rgba(0.2 0.4 0.6 0.24)")) << drawing();
  EXPECT_TRUE(draws("symbol lock 24/700 rgba(1 1 1 1)")) << drawing();
}

}  // namespace
}  // namespace orvane
