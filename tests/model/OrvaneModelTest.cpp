// OrvaneModel's state: creation, displays and target, setters, status, links, destruction.
#include <string>

#include <gtest/gtest.h>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/model/OrvaneStatus.hpp"
#include "tests/support/ModelFixture.hpp"

namespace orvane {
namespace {

using Status = appkit::LoginItem::Status;

class OrvaneModelTest : public ModelFixture {
 protected:
  [[nodiscard]] double now() const { return machine.clock.calendarTime(); }
  [[nodiscard]] const std::optional<std::string>& selected() const {
    return model->selectedDisplayID().value();
  }
  /// The number of change notifications during the action.
  template <typename Action>
  int announcementsOf(Action action) {
    int count = 0;
    const Subscription subscription = model->changes().observe([&] { ++count; });
    action();
    return count;
  }
};

TEST_F(OrvaneModelTest, StoredChoicesAreReadAtCreation) {
  store("selectedDisplayID", "an id");
  store("hidesDockOnAllDisplays", true);
  store("temporaryUnlockModifier", "shift");
  store("appLanguage", "chinese");
  machine.loginItem.status = Status::requiresApproval;
  launch();
  EXPECT_EQ(selected(), "an id");
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  EXPECT_TRUE(model->hidesDockOnAllDisplays().value());
  EXPECT_EQ(model->temporaryUnlockModifier().value(), OrvaneModifier::shift);
  EXPECT_EQ(model->appLanguage().value(), OrvaneLanguage::chinese);
  EXPECT_FALSE(model->launchAtLoginEnabled().value());
  EXPECT_TRUE(model->launchAtLoginRequiresApproval().value());
}

TEST_F(OrvaneModelTest, TheFirstRefreshSelectsTheMainDisplayAndStoresIt) {
  ASSERT_EQ(machine.displays.setMain(2), std::nullopt);
  launch();
  EXPECT_EQ(writesOf([&] { model->refreshDisplays(); }), (Writes{{"selectedDisplayID", 1}}));
  EXPECT_EQ(model->displays().value(), DisplaySnapshot::ofAllScreens());
  EXPECT_EQ(selected(), desk::uuidNamed('B'));
  EXPECT_EQ(stored("selectedDisplayID"), Value(desk::uuidNamed('B')));
  EXPECT_EQ(model->selectedDisplay(), model->displays().value()[1]);
}

TEST_F(OrvaneModelTest, WithoutAMainDisplayTheFirstIsSelected) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  desk::Display first = desk::monitorAbove();
  first.hasNumberInDescription = false;
  desk::attach(machine, first);
  launch().refreshDisplays();
  ASSERT_FALSE(model->displays().value().at(0).isMain);
  EXPECT_EQ(selected(), model->displays().value().at(0).id);
}

TEST_F(OrvaneModelTest, ACanonicalTargetIsNotWrittenAgain) {
  launch().refreshDisplays();
  EXPECT_EQ(writesOf([&] { model->refreshDisplays(); }), Writes{});
}

TEST_F(OrvaneModelTest, SelectingTheCurrentDisplayDoesNothing) {
  launchPinned();
  ASSERT_TRUE(hasTap(1));
  machine.advance(5);
  EXPECT_EQ(announcementsOf([&] {
              EXPECT_EQ(writesOf([&] { model->selectDisplay(desk::uuidNamed('A')); }), Writes{});
            }),
            0);
  EXPECT_TRUE(hasTap(1)) << "nothing restarts";
}

TEST_F(OrvaneModelTest, InPreventModeASelectionDoesNotTouchTheGuard) {
  launchPreventing();
  model->selectDisplay(desk::uuidNamed('B'));
  EXPECT_TRUE(hasTap(1));
  EXPECT_EQ(model->guardService().snapshot().lockedDisplayIdentifier, desk::uuidNamed('A'));
}

TEST_F(OrvaneModelTest, SelectingADetachedDisplayStopsPinningButKeepsTheChoice) {
  launchPinned();
  moveHolding(kCGEventFlagMaskAlternate);
  const double checked = model->lastCheckedAt().value();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { model->selectDisplay("unplugged"); }),
            (Writes{{"selectedDisplayID", 1}}));
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_FALSE(model->guardService().snapshot().isObservingScreens);
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
  EXPECT_EQ(model->lastCheckedAt().value(), checked);
  EXPECT_EQ(stored("isOrvaneEnabled"), Value(true));
}

TEST_F(OrvaneModelTest, SettingTheModifierStoresItAndRestartsTheGuard) {
  launchPinned();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { model->setTemporaryUnlockModifier(OrvaneModifier::shift); }),
            (Writes{{"temporaryUnlockModifier", 1}}));
  EXPECT_EQ(stored("temporaryUnlockModifier"), Value("shift"));
  EXPECT_EQ(model->guardService().snapshot().overrideModifier, OrvaneModifier::shift);
  EXPECT_FALSE(hasTap(1));
  EXPECT_EQ(model->lastCheckedAt().value(), now());
}

TEST_F(OrvaneModelTest, EveryAssignmentOfASettingIsWritten) {
  launch();
  EXPECT_EQ(writesOf([&] {
              model->setTemporaryUnlockModifier(OrvaneModifier::option);
              model->setHidesDockOnAllDisplays(false);
              model->setAppLanguage(OrvaneLanguage::system);
            }),
            (Writes{{"temporaryUnlockModifier", 1},
                    {"hidesDockOnAllDisplays", 1},
                    {"appLanguage", 1},
                    {"selectedDisplayID", 1}}))
      << "the language refreshes the displays, which selects one";
}

TEST_F(OrvaneModelTest, SettingPreventModeRestartsARunningGuardWhenThePermissionIsKnown) {
  launchPinned();
  model->setHidesDockOnAllDisplays(true);
  EXPECT_TRUE(model->guardService().snapshot().blocksAllDisplays);
  EXPECT_EQ(stored("hidesDockOnAllDisplays"), Value(true));
  machine.permission.setTrusted(false);
  model->refreshPermission();
  const double checked = model->lastCheckedAt().value();
  machine.advance(5);
  model->setHidesDockOnAllDisplays(false);
  EXPECT_TRUE(model->guardService().snapshot().blocksAllDisplays)
      << "not restarted without permission";
  EXPECT_EQ(model->lastCheckedAt().value(), checked);
  EXPECT_EQ(stored("hidesDockOnAllDisplays"), Value(false));
}

TEST_F(OrvaneModelTest, SettingTheLanguageStoresItAndReadsTheNamesAgain) {
  launch().refreshDisplays();
  machine.advance(5);
  EXPECT_EQ(writesOf([&] { model->setAppLanguage(OrvaneLanguage::chinese); }),
            (Writes{{"appLanguage", 1}}));
  EXPECT_EQ(stored("appLanguage"), Value("chinese"));
  EXPECT_EQ(model->displays().value().at(0).name, "内建显示器");
  EXPECT_EQ(model->lastCheckedAt().value(), now());
}

TEST_F(OrvaneModelTest, TheLanguageIsStoredBeforeItIsAnnounced) {
  launch();
  std::optional<Value> seen;
  const Subscription subscription =
      model->appLanguage().observe([&] { seen = stored("appLanguage"); });
  model->setAppLanguage(OrvaneLanguage::english);
  EXPECT_EQ(seen, Value("english"));
}

TEST_F(OrvaneModelTest, EachPublishedPropertyIsAnnounced) {
  launch();
  EXPECT_EQ(announcementsOf([&] { model->refreshDisplays(); }), 2) << "displays and target";
  machine.advance(1);
  EXPECT_EQ(announcementsOf([&] { model->refreshDisplays(); }), 0) << "no view shows the time";
  EXPECT_EQ(announcementsOf([&] { model->selectDisplay(desk::uuidNamed('B')); }), 1);
  machine.permission.setTrusted(false);
  EXPECT_EQ(announcementsOf([&] { model->refreshPermission(); }), 1);
  EXPECT_EQ(announcementsOf([&] { model->setHidesDockOnAllDisplays(true); }), 1);
  EXPECT_EQ(announcementsOf([&] { model->setTemporaryUnlockModifier(OrvaneModifier::shift); }), 1);
  machine.loginItem.status = Status::enabled;
  EXPECT_EQ(announcementsOf([&] { model->refreshLaunchAtLoginStatus(); }), 1);
  machine.loginItem.status = Status::requiresApproval;
  EXPECT_EQ(announcementsOf([&] { model->refreshLaunchAtLoginStatus(); }), 2) << "both properties";
  machine.loginItem.error = "no";
  EXPECT_EQ(announcementsOf([&] { model->setLaunchAtLoginEnabled(true); }), 2)
      << "the user's wish and the error";
  EXPECT_EQ(announcementsOf([&] { model->setAppLanguage(OrvaneLanguage::chinese); }), 2)
      << "the language and the names of the displays";
  machine.permission.setTrusted(true);
  model->refreshPermission();
  model->toggleLock();
  machine.runDue();
  EXPECT_EQ(announcementsOf([&] { moveHolding(kCGEventFlagMaskShift); }), 1) << "the unlock";
}

TEST_F(OrvaneModelTest, AShutOffOfTheGuardIsAnnounced) {
  launchPinned();
  int guardChanges = 0;
  const Subscription subscription = model->guardChanges().observe([&] { ++guardChanges; });
  EXPECT_EQ(announcementsOf([&] {
              for (int move = 0; move < 180; ++move) {
                machine.mouse.post({2500, 1079}, 0);
              }
              machine.runDue();
            }),
            1);
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(guardChanges, 1);
}

TEST_F(OrvaneModelTest, OpeningTheAccessibilitySettingsChecksAtOnceAndAgainAfterASecond) {
  machine.permission.setTrusted(false);
  launch();
  machine.permission.setTrusted(true);
  model->openAccessibilitySettings();
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  machine.permission.setTrusted(false);
  machine.advance(0.999);
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  machine.advance(0.001);
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  machine.permission.setTrusted(true);
  machine.advance(60);
  EXPECT_FALSE(model->hasAccessibilityPermission().value()) << "once only";
}

TEST_F(OrvaneModelTest, ADestroyedModelStopsObservingAndGuarding) {
  launchPinned();
  EXPECT_EQ(machine.observers.count(), 2U);
  EXPECT_EQ(writesOf([&] { model.reset(); }), Writes{});
  EXPECT_EQ(machine.observers.count(), 0U);
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
  EXPECT_EQ(machine.objects.liveCount(), 0U);
}

TEST_F(OrvaneModelTest, APendingTaskDoesNothingOnceTheModelIsGone) {
  launchPinned();
  // The model's screen task, the guard's reports and the delayed check of the permission.
  model->openAccessibilitySettings();
  desk::attach(machine, desk::monitorAbove());
  machine.mouse.post({2500, 1075}, kCGEventFlagMaskAlternate);
  machine.mouse.post({2500, 1075}, 0);
  EXPECT_GE(machine.runLoop.pendingTaskCount(), 4U);
  model.reset();
  EXPECT_EQ(writesOf([&] { machine.advance(10); }), Writes{});
}

TEST_F(OrvaneModelTest, AGrantDoesNothingOnceTheModelIsGone) {
  machine.permission.setTrusted(false);
  launch().toggleLock();
  machine.advance(1);
  model->toggleHideDockOnAllDisplays();
  machine.runDue();
  ASSERT_EQ(prompts.size(), 2U);
  model.reset();
  machine.permission.setTrusted(true);
  EXPECT_EQ(writesOf([&] {
              prompts[0]();
              prompts[1]();
            }),
            Writes{});
  EXPECT_EQ(machine.eventTaps.aliveCount(), 0U);
}

using OrvaneStatusTest = ModelFixture;

TEST_F(OrvaneStatusTest, IsTheFirstConditionThatHolds) {
  store("selectedDisplayID", "gone");
  desk::setDockOrientation(machine, "top");
  machine.permission.setTrusted(false);
  launch();
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
  machine.permission.setTrusted(true);
  model->refreshPermission();
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing);
  model->selectDisplay(desk::uuidNamed('A'));
  EXPECT_EQ(model->status(), OrvaneStatus::targetMissing) << "the displays are not listed yet";
  model->refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck);
  desk::setDockOrientation(machine, "bottom");
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
  model->toggleLock();
  EXPECT_EQ(model->status(), OrvaneStatus::locked);
  moveHolding(kCGEventFlagMaskAlternate);
  EXPECT_EQ(model->status(), OrvaneStatus::temporarilyUnlocked);
  desk::setDockOrientation(machine, "sideways");
  EXPECT_EQ(model->status(), OrvaneStatus::needsCheck) << "the edge is read at each call";
}

TEST_F(OrvaneStatusTest, InPreventModeAMissingTargetIsNotReported) {
  store("selectedDisplayID", "gone");
  store("hidesDockOnAllDisplays", true);
  launch().refreshDisplays();
  EXPECT_EQ(model->status(), OrvaneStatus::unlocked);
}

TEST_F(OrvaneStatusTest, ARunningGuardWithoutPermissionReportsThePermission) {
  launchPinned();
  machine.permission.setTrusted(false);
  EXPECT_EQ(model->status(), OrvaneStatus::locked) << "not known yet";
  model->refreshDisplays();
  EXPECT_TRUE(model->isGuardRunning());
  EXPECT_EQ(model->status(), OrvaneStatus::permissionRequired);
}

}  // namespace
}  // namespace orvane
