// The announcements of the guard's state to screen readers.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/model/GuardAnnouncer.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

using Announcements = std::vector<std::string>;

const char* const permissionIsMissing =
    "The Accessibility permission is missing; the Dock is not guarded";

class GuardAnnouncerTest : public ModelFixture {
 protected:
  GuardAnnouncerTest() { store("appLanguage", "english"); }

  /// The announcements of two updates; the second must add nothing.
  std::vector<std::string> announced() {
    std::vector<std::string>& all = desk::WindowServer::current().announcements;
    all.clear();
    announcer.update(*model);
    announcer.update(*model);
    return all;
  }

  GuardAnnouncer announcer;
};

TEST_F(GuardAnnouncerTest, AnOrdinaryLaunchIsNotAnnounced) {
  launch();
  EXPECT_EQ(announced(), Announcements());
}

TEST_F(GuardAnnouncerTest, StartingStoppingAndChangesOfTargetAndModeAreAnnouncedOnce) {
  launchPinned();
  EXPECT_EQ(announced(), Announcements{"The Dock is pinned to " + model->selectedDisplay()->name});
  model->selectDisplay(model->displays().value().at(1).id);
  EXPECT_EQ(announced(),
            Announcements{"The Dock is pinned to " + model->displays().value().at(1).name});
  model->selectDisplay("2");
  EXPECT_EQ(announced(), Announcements()) << "an alias of the same display";
  model->toggleHideDockOnAllDisplays();
  EXPECT_EQ(announced(), Announcements{"The Dock is kept from popping up"});
  model->toggleHideDockOnAllDisplays();
  EXPECT_EQ(announced(), Announcements{"The Dock is no longer guarded"});
}

TEST_F(GuardAnnouncerTest, AMissingPermissionIsAnnouncedWhenTheGuardIsRequested) {
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(announced(), Announcements()) << "nothing was requested";
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(announced(), Announcements{permissionIsMissing});
  // The request expires; nothing has stopped.
  machine.advance(2);
  EXPECT_EQ(announced(), Announcements());
}

TEST_F(GuardAnnouncerTest, AMissingPermissionIsAnnouncedWhenTheLastLockCannotBeRestored) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(announced(), Announcements{permissionIsMissing});
}

TEST_F(GuardAnnouncerTest, ARevokedPermissionAndItsReturnAreAnnounced) {
  launchPinned();
  announced();
  machine.permission.setTrusted(false);
  model->refreshPermission();
  EXPECT_EQ(announced(), Announcements{permissionIsMissing});
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(announced(), Announcements{"The Dock is pinned to " + model->selectedDisplay()->name});
}

TEST_F(GuardAnnouncerTest, AGuardThatStopsWithoutThePermissionIsAnnouncedOnce) {
  launchPinned();
  announced();
  machine.permission.setTrusted(false);
  model->guardService().stop();
  model->refreshPermission();
  EXPECT_EQ(announced(), Announcements{permissionIsMissing});
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(announced(), Announcements());
}

TEST_F(GuardAnnouncerTest, ALockThatHasRunSinceTheLaunchNoLongerCountsAsBlocked) {
  store("isOrvaneEnabled", true);
  machine.permission.setTrusted(false);
  launch();
  announced();
  machine.permission.setTrusted(true);
  model->refreshPermission();
  model->toggleSelectedDisplayLock();
  announced();
  model->toggleSelectedDisplayLock();
  EXPECT_EQ(announced(), Announcements{"The Dock is no longer guarded"});
  machine.permission.setTrusted(false);
  model->refreshPermission();
  EXPECT_EQ(announced(), Announcements());
}

TEST_F(GuardAnnouncerTest, ItSpeaksTheLanguageOfTheInterface) {
  store("appLanguage", "chinese");
  launchPreventing();
  EXPECT_EQ(announced(), Announcements{"已防止 Dock 弹出"});
  model->toggleHideDockOnAllDisplays();
  EXPECT_EQ(announced(), Announcements{"Dock 守卫已关闭"});
  model->toggleLock();
  EXPECT_EQ(announced(), Announcements{"Dock 已固定到" + model->selectedDisplay()->name});
  machine.permission.setTrusted(false);
  model->refreshDisplays();
  EXPECT_EQ(announced(), Announcements{"缺少辅助功能权限，Dock 未受守卫"});
}

TEST_F(GuardAnnouncerTest, AChangeOfLanguageAloneIsNotAnnounced) {
  launchPinned();
  announced();
  model->setAppLanguage(OrvaneLanguage::chinese);
  EXPECT_EQ(announced(), Announcements());
}

}  // namespace
}  // namespace orvane
