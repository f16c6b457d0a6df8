// Every change of the hardware, by what it does to the machine and to the application.
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"
#include "tests/hardware/HardwareFixture.hpp"

namespace orvane::showroom {
namespace {

using HardwareTest = HardwareFixture;

TEST_F(HardwareTest, DisplaysComeUntilAllAreThere) {
  EXPECT_TRUE(hardware.canAttachDisplay());
  hardware.attachDisplay();
  EXPECT_EQ(machine.displays.count(), 3U);
  for (int time = 0; time < 4; ++time) {
    hardware.attachDisplay();
  }
  EXPECT_EQ(machine.displays.count(), standardDisplayCount);
  EXPECT_FALSE(hardware.canAttachDisplay());
}

TEST_F(HardwareTest, DisplaysGoTheLastOneToo) {
  hardware.detachDisplay(2);
  EXPECT_EQ(machine.displays.find(2), nullptr);
  hardware.detachDisplay(2);
  hardware.detachDisplay(1);
  EXPECT_TRUE(machine.displays.isEmpty());
  hardware.attachDisplay();
  EXPECT_EQ(machine.displays.count(), 1U);
}

TEST_F(HardwareTest, AnotherDisplayBecomesTheMainOne) {
  hardware.makeMain(2);
  EXPECT_EQ(machine.displays.main()->number, 2U);
  hardware.makeMain(9);
  EXPECT_EQ(machine.displays.main()->number, 2U);
}

TEST_F(HardwareTest, TheApplicationHearsOfADisplayThatGoes) {
  session.application().model().refreshDisplays();
  hardware.detachDisplay(2);
  EXPECT_EQ(session.application().model().displays().value().size(), 1U);
}

TEST_F(HardwareTest, TheDockGoesToAnEdgeAndHidesItself) {
  for (const desk::DockEdge edge :
       {desk::DockEdge::left, desk::DockEdge::right, desk::DockEdge::bottom}) {
    hardware.setEdge(edge);
    EXPECT_EQ(machine.dock.edge(), edge);
  }
  hardware.setAutoHides(true);
  EXPECT_TRUE(machine.dock.autoHides());
  hardware.setAutoHides(false);
  EXPECT_FALSE(machine.dock.autoHides());
}

TEST_F(HardwareTest, ThePermissionComesAndGoesWithTheTap) {
  session.application().model().refreshDisplays();
  session.application().model().toggleSelectedDisplayLock();
  ASSERT_TRUE(session.application().model().isGuardRunning());
  hardware.setTrusted(false);
  EXPECT_FALSE(machine.permission.isTrusted());
  hardware.setTrusted(true);
  EXPECT_TRUE(machine.permission.isTrusted());
}

TEST_F(HardwareTest, AppearanceAndWallpaperAreTheMachines) {
  hardware.setDark(true);
  EXPECT_TRUE(machine.appearance.isDark);
  hardware.setWallpaper(desk::Appearance::Wallpaper::busy);
  EXPECT_EQ(machine.appearance.wallpaper, desk::Appearance::Wallpaper::busy);
}

TEST_F(HardwareTest, EveryLanguageListIsFoundAgainAndDecidesTheApplicationsLanguage) {
  const std::vector<std::string> expected{"Quit", "退出", "退出", "Quit"};
  ASSERT_EQ(Hardware::languageLists().size(), expected.size());
  for (std::size_t index = 0; index < expected.size(); ++index) {
    hardware.setLanguageList(index);
    EXPECT_EQ(hardware.languageList(), index);
    desk::WindowServer& server = desk::WindowServer::current();
    ASSERT_TRUE(server.menus.openStatusMenu(0));
    EXPECT_EQ(server.menus.menu()->items.back().title, expected[index]);
    server.menus.close();
  }
  hardware.setLanguageList(99);
  EXPECT_EQ(hardware.languageList(), expected.size() - 1);
  machine.locale.preferredLanguages = {"it-IT"};
  EXPECT_EQ(hardware.languageList(), std::nullopt);
}

TEST_F(HardwareTest, TheApplicationIsStartedAndEndedInEveryWay) {
  hardware.terminate();
  EXPECT_FALSE(hardware.isRunning());
  hardware.launch();
  EXPECT_TRUE(hardware.isRunning());
  hardware.reopen();
  EXPECT_EQ(desk::WindowServer::current().windows().size(), 1U);
  hardware.crash();
  EXPECT_FALSE(hardware.isRunning());
  EXPECT_TRUE(desk::WindowServer::current().windows().empty());
  hardware.crash();
  hardware.terminate();
  hardware.reopen();
  EXPECT_FALSE(hardware.isRunning());
}

}  // namespace
}  // namespace orvane::showroom
