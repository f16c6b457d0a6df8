// What the application relies on in menus, status items and images.
#include "Orvane/platform/appkit/Image.hpp"
#include "Orvane/platform/appkit/Menu.hpp"
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "tests/contract/ContractFixture.hpp"

namespace orvane {
namespace {

using MenuContract = ContractFixture;

appkit::MenuItem itemWith(std::function<void()> action) {
  appkit::MenuItem item;
  item.title = "Item";
  item.action = std::move(action);
  return item;
}

TEST_F(MenuContract, AMenuThatIsNotOpenCanBeFilledEmptiedAndCancelled) {
  appkit::Menu menu;
  menu.onWillOpen([] { FAIL() << "nobody opened it"; });
  menu.addItem(appkit::MenuItem::separator());
  menu.addItem(itemWith([] {}));
  menu.cancelTracking();
  menu.removeAllItems();
  menu.removeAllItems();
  letTimePass(0);
}

TEST_F(MenuContract, AnEmptiedMenuLetsGoOfItsActions) {
  appkit::Menu menu;
  auto held = std::make_shared<int>(1);
  const std::weak_ptr<int> watch = held;
  menu.addItem(itemWith([held = std::move(held)] {}));
  EXPECT_FALSE(watch.expired());
  menu.removeAllItems();
  letTimePass(0);
  EXPECT_TRUE(watch.expired());
}

TEST_F(MenuContract, AStatusItemTakesAnImageAndAMenuAndCanLoseTheImage) {
  appkit::StatusItem item;
  item.setAutosaveName("OrvaneContract");
  item.setSquareLength();
  item.setImagePosition(appkit::ImagePosition::imageOnly);
  item.setImageScaling(appkit::ImageScaling::proportionallyDown);
  item.setMenu(appkit::Menu());
  auto image =
      appkit::Image::systemSymbol("lock.open", "Orvane", 16, appkit::SymbolWeight::regular);
  ASSERT_TRUE(image.has_value());
  image->setTemplate(true);
  image->setSize(CGSizeMake(18, 18));
  item.setImage(image);
  item.setImage(std::nullopt);
  letTimePass(0);
}

TEST_F(MenuContract, ThereIsNoImageOfAnUnknownSymbol) {
  EXPECT_FALSE(
      appkit::Image::systemSymbol("no.such.symbol.at.all", "", 16, appkit::SymbolWeight::regular)
          .has_value());
}

}  // namespace
}  // namespace orvane
