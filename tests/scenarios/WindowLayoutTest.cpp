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
#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "tests/support/BytesOf.hpp"
#include "tests/support/TestDisplays.hpp"
#include "tests/support/TextBoxes.hpp"

namespace orvane::desk {
namespace {

class WindowLayoutTest : public testing::Test {
 protected:
  /// The screen of the Mac half's test.
  WindowLayoutTest() {
    attach(scope_.machine(), displayOf(1, "X screen", {{0, 0}, {1440, 900}}));
    application.launch();
  }
  ~WindowLayoutTest() override { application.crash(); }

  [[nodiscard]] std::string textsOf(const std::string& surface, const std::string& language) {
    scope_.machine().advance(2);
    WindowServer& server = WindowServer::current();
    const auto window = Surfaces(server).window(surface);
    if (window == nullptr) {
      ADD_FAILURE() << surface << " is not open";
      return "";
    }
    window->content->update();
    const CGPoint place = window->content->frame().origin;
    return textBoxes(language + "-" + surface, window->content->host(), {place.x, place.y},
                     server.resources().shaper);
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

 private:
  MachineScope scope_;

 protected:
  ApplicationHost application{scope_.machine()};
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
