// OrvaneModel's state: creation, displays and target, setters, links, destruction.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/model/OrvaneProduct.hpp"
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
  [[nodiscard]] std::vector<std::string> openedLinks() const {
    std::vector<std::string> urls;
    for (const desk::Links::Opened& opened : machine.links.opened()) {
      urls.push_back(opened.url);
    }
    return urls;
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

TEST_F(OrvaneModelTest, AtTheFirstLaunchNothingIsChosen) {
  machine.permission.setTrusted(false);
  EXPECT_EQ(writesOf([&] { launch(); }), Writes{}) << "creation writes nothing";
  EXPECT_TRUE(model->displays().value().empty()) << "nor does it list displays";
  EXPECT_EQ(selected(), std::nullopt);
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  EXPECT_FALSE(model->isTemporarilyUnlocked().value());
  EXPECT_EQ(model->lastRestoreSucceeded().value(), std::nullopt);
  EXPECT_EQ(model->lastCheckedAt().value(), now());
  EXPECT_EQ(model->appLanguage().value(), OrvaneLanguage::system);
  EXPECT_EQ(model->temporaryUnlockModifier().value(), OrvaneModifier::option);
  EXPECT_FALSE(model->hidesDockOnAllDisplays().value());
  EXPECT_FALSE(model->launchAtLoginEnabled().value());
  EXPECT_FALSE(model->launchAtLoginRequiresApproval().value());
  EXPECT_EQ(model->launchAtLoginErrorMessage().value(), std::nullopt);
  EXPECT_FALSE(model->isGuardRunning());
  EXPECT_EQ(model->selectedDisplay(), std::nullopt);
  EXPECT_EQ(machine.observers.count(), 1U) << "the model observes the screens";
}

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

TEST_F(OrvaneModelTest, WithoutDisplaysNothingIsSelectedAndTheKeyRemoved) {
  desk::detach(machine, 1);
  desk::detach(machine, 2);
  launch();
  EXPECT_EQ(writesOf([&] { model->refreshDisplays(); }), (Writes{{"selectedDisplayID", 1}}));
  EXPECT_EQ(selected(), std::nullopt);
  EXPECT_EQ(stored("selectedDisplayID"), std::nullopt);
}

TEST_F(OrvaneModelTest, AnAliasIsRewrittenToTheDisplaysID) {
  for (const std::string& alias :
       {std::string("2"),
        std::string(
            "Optional(2)-1920.0-1080.0-Optional(8)-Optional(\"NSCalibratedRGBColorSpace\")")}) {
    store("selectedDisplayID", alias);
    launch();
    EXPECT_EQ(writesOf([&] { model->refreshDisplays(); }), (Writes{{"selectedDisplayID", 1}}));
    EXPECT_EQ(selected(), desk::uuidNamed('B'));
    EXPECT_EQ(stored("selectedDisplayID"), Value(desk::uuidNamed('B')));
  }
}

TEST_F(OrvaneModelTest, ATargetThatIsNotAttachedIsKept) {
  store("selectedDisplayID", "unplugged");
  launch();
  EXPECT_EQ(writesOf([&] { model->refreshDisplays(); }), Writes{});
  EXPECT_EQ(selected(), "unplugged");
  EXPECT_EQ(model->selectedDisplay(), std::nullopt);
}

TEST_F(OrvaneModelTest, ACanonicalTargetIsNotWrittenAgain) {
  launch().refreshDisplays();
  EXPECT_EQ(writesOf([&] { model->refreshDisplays(); }), Writes{});
}

TEST_F(OrvaneModelTest, ARefreshReadsPermissionAndTime) {
  launch();
  machine.permission.setTrusted(false);
  machine.advance(5);
  EXPECT_NE(model->lastCheckedAt().value(), now());
  model->refreshDisplays();
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  EXPECT_EQ(model->lastCheckedAt().value(), now());
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

TEST_F(OrvaneModelTest, SelectingAnotherDisplayStoresItAndRestartsPinning) {
  launchPinned();
  EXPECT_EQ(writesOf([&] { model->selectDisplay(desk::uuidNamed('B')); }),
            (Writes{{"selectedDisplayID", 1}}));
  EXPECT_EQ(stored("selectedDisplayID"), Value(desk::uuidNamed('B')));
  EXPECT_EQ(model->guardService().snapshot().lockedDisplayIdentifier, desk::uuidNamed('B'));
  EXPECT_TRUE(model->isGuardRunning());
  EXPECT_FALSE(hasTap(1));
}

TEST_F(OrvaneModelTest, SelectingWhileTheGuardIsOffStartsNothing) {
  launch().selectDisplay("2");
  EXPECT_EQ(selected(), "2") << "an alias stays until the next refresh";
  EXPECT_FALSE(model->isGuardRunning());
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
  model->setHidesDockOnAllDisplays(false);
  EXPECT_TRUE(model->guardService().snapshot().blocksAllDisplays)
      << "not restarted without permission";
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
}

TEST_F(OrvaneModelTest, ALanguageIsAnnouncedWithTheNamesOfTheDisplays) {
  launch();
  model->refreshDisplays();
  EXPECT_EQ(announcementsOf([&] { model->setAppLanguage(OrvaneLanguage::chinese); }), 2);
}

TEST_F(OrvaneModelTest, AnUnlockIsAnnounced) {
  launchPinned();
  EXPECT_EQ(announcementsOf([&] { moveHolding(kCGEventFlagMaskAlternate); }), 1);
  EXPECT_EQ(announcementsOf([&] { moveHolding(0); }), 1);
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

TEST_F(OrvaneModelTest, AGuardThatPausesForItsTargetIsAnnouncedWithTheDisplays) {
  launchPinned();
  bool sawItPaused = false;
  const Subscription subscription =
      model->changes().observe([&] { sawItPaused = !model->isGuardRunning(); });
  desk::detach(machine, 1);
  machine.runDue();
  EXPECT_TRUE(sawItPaused);
}

TEST_F(OrvaneModelTest, TheGuardsMessagesUpdateTheTimeOfTheLastCheck) {
  launchPinned();
  machine.advance(5);
  machine.mouse.post({2500, 1075}, 0);
  EXPECT_NE(model->lastCheckedAt().value(), now());
  machine.runDue();
  EXPECT_EQ(model->lastCheckedAt().value(), now());
}

TEST_F(OrvaneModelTest, OpeningTheAccessibilitySettingsChecksAgainAfterASecond) {
  machine.permission.setTrusted(false);
  launch().openAccessibilitySettings();
  EXPECT_EQ(openedLinks(),
            std::vector<std::string>{"x-apple.systempreferences:com.apple.settings.PrivacySecurity"
                                     ".extension?Privacy_Accessibility"});
  machine.permission.setTrusted(true);
  machine.advance(0.999);
  EXPECT_FALSE(model->hasAccessibilityPermission().value());
  machine.advance(0.001);
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
  machine.permission.setTrusted(false);
  machine.advance(60);
  EXPECT_TRUE(model->hasAccessibilityPermission().value()) << "once only";
}

TEST_F(OrvaneModelTest, OpeningTheAccessibilitySettingsChecksAtOnce) {
  machine.permission.setTrusted(false);
  launch();
  machine.permission.setTrusted(true);
  model->openAccessibilitySettings();
  EXPECT_TRUE(model->hasAccessibilityPermission().value());
}

TEST_F(OrvaneModelTest, TheSupportMailHasASubjectAndThePrivacyPolicyIsAWebPage) {
  launch().openSupportEmail();
  model->openPrivacyPolicy();
  EXPECT_EQ(openedLinks(),
            (std::vector<std::string>{"mailto:" + std::string(OrvaneProduct::supportAddress) +
                                          "?subject=Orvane%20Support",
                                      std::string(OrvaneProduct::privacyPolicyURL)}));
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

}  // namespace
}  // namespace orvane
