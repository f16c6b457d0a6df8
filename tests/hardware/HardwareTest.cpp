// The language lists; the panel's tests cover the other changes.
#include "desk/windows/WindowServer.hpp"
#include "tests/hardware/HardwareFixture.hpp"

namespace orvane::showroom {
namespace {

using HardwareTest = HardwareFixture;

TEST_F(HardwareTest, ALanguageListDeterminesTheApplicationsLanguage) {
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

}  // namespace
}  // namespace orvane::showroom
