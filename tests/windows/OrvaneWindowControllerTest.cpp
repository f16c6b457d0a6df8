// The two panels: attributes, positions, opening and closing.
#include <functional>
#include <memory>
#include <string>

#include "Orvane/platform/appkit/Screen.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "tests/windows/WindowFixture.hpp"

namespace orvane {
namespace {

class OrvaneWindowControllerTest : public desk::WindowFixture {
 protected:
  OrvaneWindowControllerTest() {
    controller().setContents({
        [this](OrvaneModel&) {
          ++mainContents;
          return content();
        },
        [this](OrvaneModel&, std::function<void()> onClose) {
          closeSettings = std::move(onClose);
          return content();
        },
    });
  }

  static OrvaneWindowController& controller() { return OrvaneWindowController::shared(); }
  /// A strip at the very top.
  static appkit::HostingView::RootBuilder content() {
    return [](const ui::Environment&) -> ui::View {
      return ui::VStack(0, {ui::Rectangle().height(20).accessibilityLabel("Top"), ui::Spacer()});
    };
  }
  void show() {
    controller().show(model);
    machine.runDue();
  }
  void showSettings() {
    controller().showSettings(model);
    machine.runDue();
  }
  [[nodiscard]] static CGPoint originOf(const appkit::Window& window) {
    return window.frame().origin;
  }
  void expectOrigin(const appkit::Window& window, double x, double y) {
    EXPECT_EQ(originOf(window).x, x);
    EXPECT_EQ(originOf(window).y, y);
  }
  static void expectSize(CGSize size, CGSize expected) {
    EXPECT_EQ(size.width, expected.width);
    EXPECT_EQ(size.height, expected.height);
  }
  static void expectPanelAttributes(const desk::DeskWindow& window, CGSize size) {
    EXPECT_FALSE(window.isPanel());
    expectSize(window.frame.size, size);
    expectSize(window.minSize, size);
    expectSize(window.maxSize, size);
    EXPECT_EQ(window.collectionBehavior, 6U);
    EXPECT_EQ(window.level, 0);
    EXPECT_TRUE(window.isMovableByBackground);
    EXPECT_FALSE(window.isReleasedWhenClosed);
    EXPECT_FALSE(window.isOpaque);
    EXPECT_TRUE(window.hasClearBackground);
    EXPECT_TRUE(window.canBecomeKey());
    EXPECT_TRUE(window.canBecomeMain());
    ASSERT_NE(window.content, nullptr);
    expectSize(window.content->frame().size, size);
    EXPECT_EQ(window.content->cornerStyle, ui::CornerStyle::continuous);
    EXPECT_TRUE(window.content->masksToBounds);
    EXPECT_FALSE(window.content->respectsSafeArea);
    EXPECT_TRUE(window.content->hasBackdrop);
  }

  OrvaneModel model;
  int mainContents = 0;
  std::function<void()> closeSettings;
};

TEST_F(OrvaneWindowControllerTest, TheMainPanelHasItsAttributes) {
  show();
  const auto panel = window("main");
  ASSERT_NE(panel, nullptr);
  expectPanelAttributes(*panel, {700, 516});
  EXPECT_EQ(panel->styleMask, 4U);
  EXPECT_EQ(panel->title, "Orvane");
  EXPECT_EQ(panel->content->cornerRadius, 24);
  EXPECT_EQ(machine.application.activationPolicy, appkit::ActivationPolicy::accessory);
}

TEST_F(OrvaneWindowControllerTest, TheSettingsPanelHasItsAttributes) {
  showSettings();
  const auto panel = window("settings");
  ASSERT_NE(panel, nullptr);
  expectPanelAttributes(*panel, {420, 476});
  EXPECT_EQ(panel->styleMask, 0U);
  EXPECT_EQ(panel->title, "Orvane Settings");
  EXPECT_EQ(panel->content->cornerRadius, 28);
}

TEST_F(OrvaneWindowControllerTest, TheMainPanelIsCentredOnTheMainScreenKeyAndActive) {
  show();
  const CGRect area = appkit::Screen::mainScreen()->visibleFrame();
  expectOrigin(*controller().window(), CGRectGetMidX(area) - 350, CGRectGetMidY(area) - 258);
  EXPECT_TRUE(controller().window()->isKeyWindow());
  EXPECT_TRUE(server().focus.isActive());
}

TEST_F(OrvaneWindowControllerTest, AVisibleMainPanelStaysInPlace) {
  show();
  appkit::Window(*controller().window()).setFrameOrigin({11, 12});
  show();
  expectOrigin(*controller().window(), 11, 12);
  EXPECT_EQ(mainContents, 1);
}

TEST_F(OrvaneWindowControllerTest, AClosedMainPanelIsCreatedAgainAndCentred) {
  show();
  const CGPoint centred = originOf(*controller().window());
  const appkit::Window first = *controller().window();
  appkit::Window(first).setFrameOrigin({11, 12});
  controller().closeWindow();
  EXPECT_FALSE(controller().window());
  EXPECT_FALSE(first.isVisible());
  show();
  EXPECT_EQ(mainContents, 2);
  EXPECT_FALSE(*controller().window() == first);
  expectOrigin(*controller().window(), centred.x, centred.y);
}

TEST_F(OrvaneWindowControllerTest, ItComesToTheFrontEvenOfAnInactiveApplication) {
  show();
  desk::SystemSettings::installOn(server()).open();
  ASSERT_EQ(order(), "OrvaneWindow SystemSettings");
  ASSERT_FALSE(server().focus.isActive());
  show();
  EXPECT_EQ(order(), "SystemSettings OrvaneWindow");
  EXPECT_TRUE(server().focus.isActive());
}

TEST_F(OrvaneWindowControllerTest, TheSettingsAreAChildCentredOnTheMainPanel) {
  showSettings();
  const CGPoint main = originOf(*controller().window());
  expectOrigin(*controller().settingsWindow(), main.x + 350 - 210, main.y + 258 - 238);
  EXPECT_EQ(window("settings")->parent.lock(), window("main"));
  EXPECT_TRUE(controller().settingsWindow()->isKeyWindow());
  EXPECT_EQ(order(), "OrvaneWindow OrvaneSettingsWindow");
}

TEST_F(OrvaneWindowControllerTest, ShownAgainTheSettingsAreCentredAndStillOneChild) {
  showSettings();
  appkit::Window(*controller().window()).setFrameOrigin({40, 50});
  appkit::Window(*controller().settingsWindow()).setFrameOrigin({0, 0});
  showSettings();
  expectOrigin(*controller().settingsWindow(), 40 + 140, 50 + 20);
  EXPECT_EQ(controller().window()->childWindows().size(), 1U);
}

TEST_F(OrvaneWindowControllerTest, ContentCanDismissItsWindow) {
  std::function<void()> dismiss;
  controller().setContents({
      [](OrvaneModel&) { return content(); },
      [&dismiss](OrvaneModel&, const std::function<void()>& /*onClose*/) {
        return [&dismiss](const ui::Environment& environment) -> ui::View {
          dismiss = [environment] { environment.dismiss(); };
          return ui::Rectangle();
        };
      },
  });
  showSettings();
  ASSERT_TRUE(dismiss);
  dismiss();
  machine.runDue();
  EXPECT_FALSE(controller().settingsWindow());
  EXPECT_TRUE(controller().window());
}

TEST_F(OrvaneWindowControllerTest, ClosingTheMainPanelClosesBoth) {
  showSettings();
  controller().closeWindow();
  EXPECT_FALSE(controller().window());
  EXPECT_FALSE(controller().settingsWindow());
  EXPECT_TRUE(server().windows().empty());
  EXPECT_EQ(machine.application.activationPolicy, appkit::ActivationPolicy::accessory);
}

TEST_F(OrvaneWindowControllerTest, TheLastPanelToCloseRestoresTheActivationPolicy) {
  using appkit::ActivationPolicy;
  showSettings();
  machine.application.activationPolicy = ActivationPolicy::regular;
  controller().closeSettingsWindow();
  EXPECT_EQ(machine.application.activationPolicy, ActivationPolicy::regular);
  controller().closeWindow();
  EXPECT_EQ(machine.application.activationPolicy, ActivationPolicy::accessory);
}

TEST_F(OrvaneWindowControllerTest, ClosingTheSettingsLeavesTheMainPanel) {
  showSettings();
  ASSERT_TRUE(closeSettings);
  closeSettings();
  EXPECT_FALSE(controller().settingsWindow());
  ASSERT_TRUE(controller().window());
  EXPECT_TRUE(controller().window()->isVisible());
  EXPECT_TRUE(controller().window()->childWindows().empty());
  showSettings();
  EXPECT_EQ(controller().window()->childWindows().size(), 1U);
}

TEST_F(OrvaneWindowControllerTest, WithoutAPanelNothingIsClosedOrMinimised) {
  controller().miniaturizeWindow();
  controller().closeWindow();
  showSettings();
  controller().closeWindow();
  controller().closeWindow();
  closeSettings();
  EXPECT_TRUE(server().windows().empty());
}

TEST_F(OrvaneWindowControllerTest, AMinimisedMainPanelIsRestoredInTheCentre) {
  show();
  const CGPoint centred = originOf(*controller().window());
  for (const bool isForSettings : {false, true}) {
    appkit::Window(*controller().window()).setFrameOrigin({11, 12});
    controller().miniaturizeWindow();
    EXPECT_FALSE(controller().window()->isVisible());
    isForSettings ? showSettings() : show();
    EXPECT_EQ(controller().settingsWindow().has_value(), isForSettings);
    EXPECT_FALSE(controller().window()->isMiniaturized());
    EXPECT_TRUE(controller().window()->isVisible());
    expectOrigin(*controller().window(), centred.x, centred.y);
  }
}

TEST_F(OrvaneWindowControllerTest, ContentAtTheTopTouchesTheTopEdge) {
  showSettings();
  for (const char* const surface : {"main", "settings"}) {
    const auto tree = desk::Surfaces(server()).tree(surface);
    ASSERT_TRUE(tree);
    ASSERT_FALSE(tree->children.empty());
    EXPECT_EQ(tree->children.front().frame.y, 0);
    EXPECT_EQ(window(surface)->contentFrame().size.height, window(surface)->frame.size.height);
  }
}

TEST_F(OrvaneWindowControllerTest, WithoutAScreenTheMainPanelKeepsItsOrigin) {
  EXPECT_FALSE(machine.displays.detach(1));
  EXPECT_FALSE(machine.displays.detach(2));
  show();
  ASSERT_TRUE(controller().window());
  expectOrigin(*controller().window(), 0, 0);
}

TEST_F(OrvaneWindowControllerTest, AChangeOfTheModelRebuildsTheContentWhileThePanelExists) {
  int builds = 0;
  controller().setContents({[&](OrvaneModel&) -> appkit::HostingView::RootBuilder {
                              return [&](const ui::Environment&) -> ui::View {
                                ++builds;
                                return ui::Text("content");
                              };
                            },
                            nullptr});
  show();
  const int before = builds;
  model.refreshDisplays();
  machine.runDue();
  EXPECT_GT(builds, before);
  controller().closeWindow();
  const int closed = builds;
  model.refreshDisplays();
  machine.runDue();
  EXPECT_EQ(builds, closed);
}

}  // namespace
}  // namespace orvane
