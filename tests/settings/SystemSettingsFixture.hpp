// SystemSettingsFixture gives each test System Settings on two displays, and operates its window.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Orvane/platform/appkit/Workspace.hpp"
#include "desk/settings/SystemSettings.hpp"
#include "tests/windows/WindowFixture.hpp"

namespace orvane::desk {

class SystemSettingsFixture : public WindowFixture {
 protected:
  static constexpr const char* accessibilityLink =
      "x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension"
      "?Privacy_Accessibility";

  SystemSettingsFixture() { moveTo({500, 400}); }

  static std::shared_ptr<DeskWindow> window() { return HandFixture::window("system"); }
  void open(const char* link = accessibilityLink) {
    appkit::Workspace::openURL(link);
    machine.runDue();
  }
  std::optional<SurfaceControl> control(const std::string& label) {
    return hand.control(label, "system");
  }
  void clickOn(const std::string& label) {
    const auto found = control(label);
    ASSERT_TRUE(found) << label;
    click({CGRectGetMidX(found->frame), CGRectGetMidY(found->frame)});
  }
  std::string valueOf(const std::string& label) {
    const auto found = control(label);
    return found ? found->node.value : "not there";
  }

  SystemSettings& settings = SystemSettings::installOn(server());
};

}  // namespace orvane::desk
