// The status item's menu and the pop-up menus of pickers.
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/ui/views/Picker.hpp"
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {
namespace {

using appkit::Menu;
using appkit::MenuItem;

class MenuTrackerTest : public WindowFixture {
 protected:
  MenuTrackerTest() { item.setMenu(menu); }

  static MenuItem plain(const std::string& title, std::function<void()> action) {
    MenuItem made;
    made.title = title;
    made.action = std::move(action);
    return made;
  }
  MenuItem row(const std::string& title, const std::function<void()>& action) {
    MenuItem made = plain(title, action);
    appkit::HostingView view = hosting(wideButton(title, action));
    view.setFrame(CGRectMake(0, 0, 200, 30));
    made.view = view;
    return made;
  }
  /// Appends an item.
  void add(MenuItem made) { menu.insertItem(count++, std::move(made)); }
  void clear() {
    while (count > 0) {
      menu.removeItem(--count);
    }
  }
  /// A click on the status item of the first display.
  void clickItem() { click({1000 - 14 - 112 - 32 * 3 + 16, 12}); }
  [[nodiscard]] bool isOpen() { return server().menus.isOpen(); }
  [[nodiscard]] CGPoint middleOfRow(std::size_t index) {
    const CGRect& frame = server().menus.rows().at(index).frame;
    return {CGRectGetMidX(frame), CGRectGetMidY(frame)};
  }

  Menu menu;
  std::size_t count = 0;
  appkit::StatusItem item;
};

TEST_F(MenuTrackerTest, AClickOnTheItemOpensTheMenuUnderItAndAnotherClosesIt) {
  add(row("Row", [] {}));
  clickItem();
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(server().menus.frame().origin.y, 24);
  EXPECT_EQ(machine.runLoop.mode(), RunLoop::Mode::eventTracking);
  clickItem();
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(machine.runLoop.mode(), RunLoop::Mode::standard);
}

TEST_F(MenuTrackerTest, ItOpensOnTheDisplayThatWasClicked) {
  add(row("Row", [] {}));
  click({2000 - 14 - 112 - 32 * 3 + 16, 12});
  ASSERT_TRUE(isOpen());
  EXPECT_EQ(server().menus.displayIndex(), 1U);
  EXPECT_GT(server().menus.frame().origin.x, 1000);
  EXPECT_LE(CGRectGetMaxX(server().menus.frame()), 2000);
}

TEST_F(MenuTrackerTest, ItemsMayBeReplacedByTheActionOfOneOfThem) {
  int runs = 0;
  std::function<void()> action = [&] {
    ++runs;
    clear();
    add(row("Second", action));
    add(row("Third", action));
  };
  add(row("First", action));
  clickItem();
  click(middleOfRow(0));
  EXPECT_EQ(server().menus.rows().size(), 2U);
  click(middleOfRow(1));
  EXPECT_EQ(runs, 2);
  EXPECT_TRUE(isOpen());
}

TEST_F(MenuTrackerTest, AClickOutsideClosesTheMenuAndIsConsumed) {
  int clicks = 0;
  appkit::Window window = makeWindow({0, 0});
  window.setContentView(hosting(wideButton("Button", [&] { ++clicks; })));
  window.orderFrontRegardless();
  add(row("Row", [] {}));
  clickItem();
  click({100, 750});
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(clicks, 0);
}

TEST_F(MenuTrackerTest, TheKeyboardGoesOverEnabledItemsAndChooses) {
  std::string chosen;
  add(plain("First", [&] { chosen += "first "; }));
  add(MenuItem::separator());
  MenuItem disabled = plain("Off", [&] { chosen += "off "; });
  disabled.isEnabled = false;
  add(disabled);
  MenuItem keeps = plain("Keeps", [&] { chosen += "keeps "; });
  keeps.keepsMenuOpen = true;
  add(keeps);
  clickItem();
  EXPECT_TRUE(key(ui::Key::enter));
  EXPECT_EQ(chosen, "");
  key(ui::Key::down);
  key(ui::Key::down);
  EXPECT_EQ(server().menus.highlighted(), 3U);
  key(ui::Key::space);
  EXPECT_EQ(chosen, "keeps ");
  EXPECT_TRUE(isOpen());
  key(ui::Key::up);
  key(ui::Key::enter);
  EXPECT_EQ(chosen, "keeps first ");
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuTrackerTest, TheArrowKeysStartAtThePointer) {
  for (const char* const title : {"First", "Second", "Third"}) {
    add(row(title, [] {}));
  }
  clickItem();
  moveTo(middleOfRow(1));
  key(ui::Key::down);
  EXPECT_EQ(server().menus.highlighted(), 2U);
  key(ui::Key::down);
  EXPECT_EQ(server().menus.highlighted(), 2U) << "there is nothing below";
}

TEST_F(MenuTrackerTest, ReturnChoosesTheRowUnderThePointer) {
  std::string chosen;
  add(row("First", [&] { chosen = "first"; }));
  add(row("Second", [&] { chosen = "second"; }));
  clickItem();
  moveTo(middleOfRow(1));
  key(ui::Key::enter);
  EXPECT_EQ(chosen, "second");
}

TEST_F(MenuTrackerTest, TheKeyboardTakesTheHoverAwayUntilThePointerMovesAgain) {
  bool isHovered = false;
  MenuItem hovering = row("First", [] {});
  hovering.view =
      hosting(wideButton("First", [] {}).onHover([&](bool isInside) { isHovered = isInside; }));
  hovering.view->setFrame(CGRectMake(0, 0, 200, 30));
  add(hovering);
  add(row("Second", [] {}));
  clickItem();
  moveTo(middleOfRow(0));
  EXPECT_TRUE(isHovered);
  key(ui::Key::down);
  EXPECT_FALSE(isHovered);
  EXPECT_EQ(server().menus.highlighted(), 1U);
  moveTo({middleOfRow(0).x + 5, middleOfRow(0).y});
  EXPECT_TRUE(isHovered);
  EXPECT_EQ(server().menus.highlighted(), std::nullopt);
}

TEST_F(MenuTrackerTest, TypingHighlightsTheNextItemThatBeginsWithIt) {
  for (const char* const title : {"Pear", "Apple", "plum"}) {
    add(plain(title, [] {}));
  }
  MenuItem disabled = plain("Peach", [] {});
  disabled.isEnabled = false;
  add(disabled);
  clickItem();
  const auto type = [&](const std::string& characters) {
    hand.key({ui::Key::character, {}, characters});
  };
  type("p");
  EXPECT_EQ(server().menus.highlighted(), 0U);
  type("p");
  EXPECT_EQ(server().menus.highlighted(), 2U);
  type("p");
  EXPECT_EQ(server().menus.highlighted(), 0U);
  type("x");
  EXPECT_EQ(server().menus.highlighted(), 0U);
  command("a");
  EXPECT_EQ(server().menus.highlighted(), 0U) << "a shortcut is not typing";
}

TEST_F(MenuTrackerTest, AClickOnAPlainItemClosesAndThenRunsIt) {
  bool wasOpen = true;
  add(plain("Item", [&] { wasOpen = isOpen(); }));
  clickItem();
  click(middleOfRow(0));
  EXPECT_FALSE(wasOpen);
}

TEST_F(MenuTrackerTest, AModalSessionBlocksTheMenu) {
  add(row("Row", [] {}));
  appkit::Window panel = makeWindow({0, 0});
  appkit::Application::runModal(panel, [](int) {});
  clickItem();
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuTrackerTest, APickerOpensItsMenuOverItselfAndReportsTheChoice) {
  int chosen = -1;
  appkit::Window window = makeWindow({300, 300});
  window.setContentView(hosting(
      ui::Picker{"Fruit", {"Apple", "Pear", "Plum"}, 1, [&](int index) { chosen = index; }}));
  window.orderFrontRegardless();
  click({400, 450});
  ASSERT_TRUE(isOpen());
  EXPECT_FALSE(server().menus.isStatusMenuOpen());
  EXPECT_EQ(server().menus.menu()->checkedIndex, 1);
  EXPECT_NEAR(middleOfRow(1).y, 450, 1);
  click(middleOfRow(2));
  EXPECT_EQ(chosen, 2);
  EXPECT_FALSE(isOpen());
}

TEST_F(MenuTrackerTest, DestroyingTheItemClosesItsMenu) {
  {
    appkit::StatusItem moved = std::move(item);
    add(row("Row", [] {}));
    clickItem();
    EXPECT_TRUE(isOpen());
  }
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(server().statusBar.item(), nullptr);
}

}  // namespace
}  // namespace orvane::desk
