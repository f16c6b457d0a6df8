// What users of a screen reader are told of the guard, and when.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/model/GuardAnnouncer.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

using Announcements = std::vector<std::string>;

class GuardAnnouncerTest : public ModelFixture {
 protected:
  GuardAnnouncerTest() { store("appLanguage", "english"); }

  /// What is said at an update, as happens after each action and once a second.
  std::vector<std::string> said() {
    std::vector<std::string>& all = desk::WindowServer::current().announcements;
    all.clear();
    announcer.update(*model);
    announcer.update(*model);
    return all;
  }

  GuardAnnouncer announcer;
};

TEST_F(GuardAnnouncerTest, AnOrdinaryStartSaysNothing) {
  launch();
  EXPECT_EQ(said(), Announcements());
}

TEST_F(GuardAnnouncerTest, ALockThatIsRestoredIsTold) {
  store("isOrvaneEnabled", true);
  launch();
  EXPECT_EQ(said(), Announcements{"The Dock is pinned to " + model->selectedDisplay()->name});
}

TEST_F(GuardAnnouncerTest, StartingStoppingAndAChangeOfModeAreToldOnce) {
  launchPinned();
  EXPECT_EQ(said(), Announcements{"The Dock is pinned to " + model->selectedDisplay()->name});
  model->toggleHideDockOnAllDisplays();
  EXPECT_EQ(said(), Announcements{"The Dock is kept from popping up"});
  model->toggleHideDockOnAllDisplays();
  EXPECT_EQ(said(), Announcements{"The Dock is no longer guarded"});
}

TEST_F(GuardAnnouncerTest, AnotherTargetIsToldByItsName) {
  launchPinned();
  said();
  model->selectDisplay(model->displays().value().at(1).id);
  EXPECT_EQ(said(), Announcements{"The Dock is pinned to " + model->displays().value().at(1).name});
}

TEST_F(GuardAnnouncerTest, AMissingPermissionIsToldWhenTheGuardIsAskedFor) {
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(said(), Announcements()) << "nobody has asked for anything";
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(said(),
            Announcements{"The Accessibility permission is missing; the Dock is not guarded"});
  // The request lapses; nothing has stopped.
  machine.advance(2);
  EXPECT_EQ(said(), Announcements());
}

TEST_F(GuardAnnouncerTest, AMissingPermissionIsToldWhenTheLockOfTheLastRunCannotComeBack) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(said(),
            Announcements{"The Accessibility permission is missing; the Dock is not guarded"});
}

TEST_F(GuardAnnouncerTest, APermissionThatIsTakenAwayIsToldAndItsReturnToo) {
  launchPinned();
  said();
  machine.permission.setTrusted(false);
  model->refreshPermission();
  EXPECT_EQ(said(),
            Announcements{"The Accessibility permission is missing; the Dock is not guarded"});
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(said(), Announcements{"The Dock is pinned to " + model->selectedDisplay()->name});
}

TEST_F(GuardAnnouncerTest, AGuardThatGoesWithItsPermissionIsToldOnceAsBlocked) {
  launchPinned();
  said();
  machine.permission.setTrusted(false);
  model->guardService().stop();
  model->refreshPermission();
  EXPECT_EQ(said(),
            Announcements{"The Accessibility permission is missing; the Dock is not guarded"});
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(said(), Announcements());
}

TEST_F(GuardAnnouncerTest, ALockThatHasStartedAfterAllIsNoLongerBlockedWhenThePermissionGoes) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(false);
  launch();
  said();
  machine.permission.setTrusted(true);
  model->refreshPermission();
  model->toggleSelectedDisplayLock();
  said();
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(said(), Announcements{"The Dock is no longer guarded"});
  machine.permission.setTrusted(false);
  model->refreshPermission();
  EXPECT_EQ(said(), Announcements());
}

TEST_F(GuardAnnouncerTest, ItSpeaksTheLanguageOfTheInterface) {
  store("appLanguage", "chinese");
  launchPreventing();
  EXPECT_EQ(said(), Announcements{"已防止 Dock 弹出"});
  model->toggleHideDockOnAllDisplays();
  EXPECT_EQ(said(), Announcements{"Dock 守卫已关闭"});
  model->toggleLock();
  EXPECT_EQ(said(), Announcements{"Dock 已固定到" + model->selectedDisplay()->name});
  machine.permission.setTrusted(false);
  model->refreshDisplays();
  EXPECT_EQ(said(), Announcements{"缺少辅助功能权限，Dock 未受守卫"});
}

TEST_F(GuardAnnouncerTest, AChangeOfTheLanguageAloneIsNotToldAgain) {
  launchPinned();
  said();
  model->setAppLanguage(OrvaneLanguage::chinese);
  EXPECT_EQ(said(), Announcements());
}

}  // namespace
}  // namespace orvane
