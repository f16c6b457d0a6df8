// Contract tests for menus, status items and images.
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

TEST_F(MenuContract, AClosedMenuCanBeChangedAndCancelled) {
  appkit::Menu menu;
  menu.onWillOpen([] { FAIL() << "the menu was not opened"; });
  menu.insertItem(0, itemWith([] {}));
  menu.insertItem(0, appkit::MenuItem::separator());
  menu.insertItem(2, itemWith([] {}));
  menu.changeItem(1, itemWith([] {}));
  menu.cancelTracking();
  menu.removeItem(2);
  menu.removeItem(0);
  menu.changeItem(0, itemWith([] {}));
  menu.removeItem(0);
  letTimePass(0);
}

TEST_F(MenuContract, TheCallbackOfCancellingComesAfterTheCall) {
  appkit::Menu menu;
  int endings = 0;
  menu.cancelTracking([&] { ++endings; });
  EXPECT_EQ(endings, 0);
  letTimePass(0.05);
  EXPECT_EQ(endings, 1);
}

TEST_F(MenuContract, AChangedOrRemovedItemReleasesItsAction) {
  appkit::Menu menu;
  auto first = std::make_shared<int>(1);
  auto second = std::make_shared<int>(2);
  const std::weak_ptr<int> watchFirst = first;
  const std::weak_ptr<int> watchSecond = second;
  menu.insertItem(0, itemWith([held = std::move(first)] {}));
  menu.changeItem(0, itemWith([held = std::move(second)] {}));
  letTimePass(0);
  EXPECT_TRUE(watchFirst.expired());
  EXPECT_FALSE(watchSecond.expired());
  menu.removeItem(0);
  letTimePass(0);
  EXPECT_TRUE(watchSecond.expired());
}

TEST_F(MenuContract, AStatusItemTakesAMenuAndAnOptionalImage) {
  appkit::StatusItem item;
  item.setAutosaveName("OrvaneContract");
  item.setSquareLength();
  item.setImagePosition(appkit::ImagePosition::imageOnly);
  item.setImageScaling(appkit::ImageScaling::proportionallyDown);
  item.setAccessibilityValue("Unlocked");
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

TEST_F(MenuContract, AnUnknownSymbolHasNoImage) {
  EXPECT_FALSE(
      appkit::Image::systemSymbol("no.such.symbol.at.all", "", 16, appkit::SymbolWeight::regular)
          .has_value());
}

}  // namespace
}  // namespace orvane
