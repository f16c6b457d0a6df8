// Contract tests for hosting views.
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using appkit::HostingView;
using HostingViewContract = ContractFixture;

TEST_F(HostingViewContract, ItsFittingSizeIsThatOfItsContent) {
  const HostingView view([](const ui::Environment&) { return ui::Rectangle().frame(30, 20); });
  EXPECT_EQ(view.fittingSize().width, 30);
  EXPECT_EQ(view.fittingSize().height, 20);
}

TEST_F(HostingViewContract, ItsContentIsRebuiltOnlyWhenItNeedsAnUpdate) {
  double width = 30;
  HostingView view([&](const ui::Environment&) { return ui::Rectangle().frame(width, 20); });
  EXPECT_EQ(view.fittingSize().width, 30);
  width = 50;
  EXPECT_EQ(view.fittingSize().width, 30);
  view.setNeedsUpdate();
  EXPECT_EQ(view.fittingSize().width, 50);
}

TEST_F(HostingViewContract, ItAvoidsATitleBarUnlessConfiguredAndKeepsItsFrame) {
  HostingView view([](const ui::Environment&) { return ui::View(); });
  EXPECT_TRUE(view.respectsSafeArea());
  view.setRespectsSafeArea(false);
  EXPECT_FALSE(view.respectsSafeArea());
  view.setFrame(CGRectMake(1, 2, 30, 40));
  EXPECT_TRUE(CGRectEqualToRect(view.frame(), CGRectMake(1, 2, 30, 40)));
}

}  // namespace
}  // namespace orvane
