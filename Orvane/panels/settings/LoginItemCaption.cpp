// The caption's message, and the button that opens the Login Items page.
#include "Orvane/panels/settings/LoginItemCaption.hpp"

#include <memory>
#include <string>

#include "Orvane/panels/settings/SettingsPalette.hpp"
#include "Orvane/panels/settings/SettingsSecondaryButtonStyle.hpp"
#include "Orvane/platform/appkit/Timer.hpp"
#include "Orvane/ui/views/Button.hpp"
#include "Orvane/ui/views/Image.hpp"
#include "Orvane/ui/views/ShapeView.hpp"
#include "Orvane/ui/views/Stack.hpp"
#include "Orvane/ui/views/Text.hpp"

namespace orvane {

using namespace ui;

namespace {

constexpr double spacing = 6;
/// The user may approve or remove the item in System Settings while the caption is shown.
constexpr double refreshSeconds = 1.0;

}  // namespace

bool LoginItemCaption::isNeeded() const {
  return model->launchAtLoginRequiresApproval().value() || model->isLaunchAtLoginBlocked() ||
         model->isLaunchAtLoginFailing();
}

std::string LoginItemCaption::message() const {
  // Approval comes first: it is the only problem that the user can solve on the spot.
  if (model->launchAtLoginRequiresApproval().value()) {
    return model->localized("Approve Orvane in Login Items", "请在“登录项”中允许 Orvane");
  }
  if (model->isLaunchAtLoginBlocked()) {
    return model->localized("To open at login, move Orvane to Applications",
                            "要开机自动运行，请先将 Orvane 移到“应用程序”文件夹");
  }
  return model->launchAtLoginErrorMessage().value().value_or("");
}

View LoginItemCaption::body(const Environment& environment) const {
  // As state of the view it ends with the view.
  const State<std::shared_ptr<appkit::Timer>> refreshTimer =
      environment.state("refreshTimer", std::shared_ptr<appkit::Timer>());
  const View text = Text(message())
                        .font(Font::caption())
                        .foreground(SettingsPalette::statementText())
                        .lineLimit(2);
  const auto button = [&] {
    return Button([model = model] { model->openLoginItemsSettings(); },
                  Text(model->localized("Login Items…", "登录项…")).fixedSize())
        .style(SettingsSecondaryButtonStyle{})
        .focusRing(Shape::rounded(SettingsSecondaryButtonStyle::cornerRadius));
  };
  const View warning = Symbol("exclamationmark.triangle.fill")
                           .font(Font::system(12, Weight::semibold))
                           .foreground(Color::orange());
  // The Login Items page does not help when the application has to be moved.
  const bool pageHelps =
      model->launchAtLoginRequiresApproval().value() || !model->isLaunchAtLoginBlocked();
  return HStack(spacing, {warning, text, when(pageHelps, button)})
      .onAppear([model = model, refreshTimer] {
        refreshTimer.set(std::make_shared<appkit::Timer>(
            appkit::Timer::repeating(refreshSeconds, appkit::RunLoopMode::common,
                                     [model] { model->refreshLaunchAtLoginStatus(); })));
      });
}

}  // namespace orvane
