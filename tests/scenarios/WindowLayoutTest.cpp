// The positions of all texts in every window, in both languages, against a kept list, with which
// the Mac half is compared, too. ORVANE_RENEW_PICTURES=1 renews it; review the changes.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "Orvane/permission/OrvanePermissionAlert.hpp"
#include "Orvane/permission/OrvanePermissionGuideWindowController.hpp"
#include "Orvane/platform/appkit/Application.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"
#include "tests/panels/TextRun.hpp"
#include "tests/support/ApplicationFixture.hpp"
#include "tests/support/BytesOf.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane::desk {
namespace {

class WindowLayoutTest : public ApplicationFixture {
 protected:
  /// The screen of the Mac half's test.
  WindowLayoutTest() {
    attach(machine, displayOf(1, "X screen", {{0, 0}, {1440, 900}}));
    application.launch();
  }

  [[nodiscard]] std::string textsOf(const std::string& surface, const std::string& language) {
    machine.advance(2);
    const auto shown = window(surface);
    if (shown == nullptr) {
      ADD_FAILURE() << surface << " is not open";
      return "";
    }
    shown->content->update();
    const CGPoint place = shown->content->frame().origin;
    return textBoxes(language + "-" + surface, shown->content->host(), {place.x, place.y},
                     server().resources().shaper);
  }

  [[nodiscard]] std::string textsOfWindows(OrvaneLanguage spoken, const std::string& language) {
    OrvaneWindowController& windows = OrvaneWindowController::shared();
    application.model().setAppLanguage(spoken);
    windows.show(application.model());
    std::string texts = textsOf("main", language);
    windows.showSettings(application.model());
    texts += textsOf("settings", language);
    windows.closeSettingsWindow();
    windows.closeWindow();
    OrvanePermissionAlert::show([] {});
    texts += textsOf("alert", language);
    appkit::Application::stopModal(appkit::ModalResponse::alertSecondButton);
    OrvanePermissionGuideWindowController::shared().show([] {});
    texts += textsOf("guide", language);
    OrvanePermissionGuideWindowController::shared().close();
    return texts;
  }
};

TEST_F(WindowLayoutTest, TextsKeepTheirPositions) {
  const std::string texts =
      textsOfWindows(OrvaneLanguage::english, "en") + textsOfWindows(OrvaneLanguage::chinese, "zh");
  const std::filesystem::path file(ORVANE_KEPT_LAYOUT);
  if (std::getenv("ORVANE_RENEW_PICTURES") != nullptr) {
    std::ofstream(file) << texts;
  }
  EXPECT_EQ(texts, bytesOf(file));
}

}  // namespace
}  // namespace orvane::desk
