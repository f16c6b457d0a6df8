// Steps that are impossible at the moment do nothing, so that every sequence of steps is valid.
#include "tests/permission/PermissionSwarm.hpp"

#include <algorithm>
#include <array>
#include <string>

#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "Orvane/windows/OrvaneWindowController.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

PermissionSwarm::PermissionSwarm()
    : server_(desk::WindowServer::current()), application_(machine_) {
  desk::attach(machine_, desk::laptop());
  desk::attach(machine_, desk::monitorAtTheRight());
  launch();
  machine_.advance(10);
  // Those of a launched application at rest.
  timersAtRest_ = machine_.runLoop.timerCount();  // NOLINT(*-prefer-member-initializer)
}

void PermissionSwarm::launch() {
  application_.launch();
}

std::size_t PermissionSwarm::visibleCount(const std::string& className) const {
  std::size_t count = 0;
  for (const auto& window : server_.windows()) {
    count += window->className == className && server_.isVisible(*window) ? 1U : 0U;
  }
  return count;
}

bool PermissionSwarm::press(const std::string& surface, const std::string& label) {
  return !hand_.press({label, surface});
}

void PermissionSwarm::check() {
  const std::size_t index = calls_.size();
  calls_.push_back(0);
  OrvaneAccessibilityPermission::check([this, index] { ++calls_[index]; });
}

void PermissionSwarm::answerAlert(unsigned how) {
  const auto alert = desk::Surfaces(server_).window("alert");
  if (alert == nullptr) {
    return;
  }
  switch (how % 6) {
    case 0:
      press("alert", "Not Now");
      break;
    case 1:
      server_.performClose(alert);
      break;
    case 2:
      server_.focus.clicked(alert);
      hand_.key({.key = ui::Key::escape});
      break;
    default:
      press("alert", "Open Privacy Settings");
      break;
  }
}

void PermissionSwarm::closeGuide(unsigned how) {
  press("guide", how % 2 == 0 ? "Close" : "Done");
}

void PermissionSwarm::wait(unsigned how) {
  constexpr std::array<double, 10> seconds{0.001, 0.3, 0.5, 0.999, 1, 1.5, 2, 5, 11, 3600};
  machine_.advance(seconds[how % seconds.size()]);
}

void PermissionSwarm::closeSettings() {
  if (const auto window = desk::Surfaces(server_).window("system")) {
    server_.close(window);
  }
}

void PermissionSwarm::quitAndLaunch(unsigned how) {
  if (how % 2 == 0) {
    application_.terminate();
  } else {
    application_.crash();
  }
  machine_.runDue();
  launch();
}

void PermissionSwarm::dropIcon() {
  const auto guide = desk::Surfaces(server_).window("guide");
  const auto settings = desk::Surfaces(server_).window("system");
  const auto list = application_.systemSettings().listFrame();
  if (guide == nullptr || settings == nullptr || !list) {
    return;
  }
  const CGPoint from = server_.topLeftOf(*guide);
  const CGPoint to = server_.topLeftOf(*settings);
  // The icon is in the middle, a little below.
  hand_.moveTo({from.x + 180, from.y + 300});
  hand_.pressButton();
  machine_.mouse.moveBy(8, 8);
  machine_.runDue();
  hand_.moveTo({to.x + list->x + 30, to.y + list->y + 10});
  hand_.releaseButton();
}

void PermissionSwarm::changeDisplays() {
  if (machine_.displays.count() == 2) {
    EXPECT_FALSE(machine_.displays.detach(2));
  } else {
    desk::attach(machine_, desk::monitorAtTheRight());
  }
}

void PermissionSwarm::take(const SwarmStep& step) {
  act(step);
  machine_.runDue();
  if (!application_.isRunning()) {
    // A click may have hit "Quit".
    launch();
  }
}

void PermissionSwarm::act(const SwarmStep& step) {
  OrvaneModel& model = application_.model();
  switch (step.action) {
    case SwarmAction::check:
      check();
      break;
    case SwarmAction::togglePin:
      model.toggleSelectedDisplayLock();
      break;
    case SwarmAction::togglePrevent:
      model.toggleHideDockOnAllDisplays();
      break;
    case SwarmAction::answerAlert:
      answerAlert(step.how);
      break;
    case SwarmAction::closeGuide:
      closeGuide(step.how);
      break;
    case SwarmAction::wait:
    case SwarmAction::count:
      wait(step.how);
      break;
    case SwarmAction::grant:
      machine_.permission.setTrusted(true);
      break;
    case SwarmAction::revoke:
      machine_.permission.setTrusted(false);
      break;
    case SwarmAction::switchInSettings:
      press("system", "Orvane");
      break;
    case SwarmAction::dropIcon:
      dropIcon();
      break;
    case SwarmAction::openMenu:
      server_.menus.openStatusMenu(0);
      break;
    case SwarmAction::closeMenu:
      server_.menus.close();
      break;
    case SwarmAction::openSettings:
      model.openAccessibilitySettings();
      break;
    case SwarmAction::closeSettings:
      closeSettings();
      break;
    case SwarmAction::click:
      hand_.click({(step.how * 37) % 1920 + 0.0, (step.how * 91) % 1080 + 0.0});
      break;
    case SwarmAction::changeDisplays:
      changeDisplays();
      break;
    case SwarmAction::showPanels:
      OrvaneWindowController::shared().showSettings(model);
      break;
    case SwarmAction::quitAndLaunch:
      quitAndLaunch(step.how);
      break;
  }
}

std::optional<std::string> PermissionSwarm::problem() const {
  const std::size_t alerts = visibleCount("OrvaneAlertPanel");
  if (alerts > 1) {
    return "there are two alerts";
  }
  if (visibleCount("OrvaneGuidePanel") > 1) {
    return "there are two guides";
  }
  const bool isModal = server_.modal.isRunning();
  if (isModal != (alerts == 1) || machine_.runLoop.isMainQueueHeld() != isModal) {
    return "the modal session and the alert do not go together";
  }
  const bool isStandard = machine_.runLoop.mode() == desk::RunLoop::Mode::standard;
  if (isStandard != (!isModal && !server_.menus.isOpen())) {
    return "the run loop is in a mode that nobody asked for";
  }
  for (std::size_t index = 0; index < calls_.size(); ++index) {
    if (calls_[index] > 1) {
      return "callback " + std::to_string(index) + " was called twice";
    }
  }
  const auto guide = application_.snapshot().guide;
  const bool isNeeded = guide.isVisible && guide.state != PermissionGuideState::success;
  if (guide.isPolling && !isNeeded) {
    return "the guide looks for the permission without need";
  }
  if (isNeeded && !guide.isPolling) {
    return "the guide is shown and does not look for the permission";
  }
  return std::nullopt;
}

std::optional<std::string> PermissionSwarm::problemAtTheEnd() {
  server_.menus.close();
  machine_.runDue();
  // Wait for everything that is pending, and decline it.
  for (int round = 0; round < 3; ++round) {
    answerAlert(0);
    machine_.runDue();
    machine_.advance(3);
    closeGuide(0);
    machine_.runDue();
  }
  OrvaneWindowController::shared().closeWindow();
  if (const auto settings = desk::Surfaces(server_).window("system")) {
    server_.close(settings);
  }
  machine_.mouse.moveTo({700, 500});
  machine_.runDue();
  machine_.advance(10);
  if (auto found = problem()) {
    return found;
  }
  if (server_.modal.isRunning() || !server_.windows().empty()) {
    return "something is still shown";
  }
  if (machine_.runLoop.timerCount() != timersAtRest_) {
    return "there are " + std::to_string(machine_.runLoop.timerCount()) + " timers instead of " +
           std::to_string(timersAtRest_);
  }
  return std::nullopt;
}

std::size_t PermissionSwarm::calledBack() const {
  return static_cast<std::size_t>(
      std::ranges::count_if(calls_, [](int calls) { return calls > 0; }));
}

std::optional<std::string> PermissionSwarm::end() {
  const std::vector<std::string> problems = scope_.end();
  return problems.empty() ? std::nullopt : std::optional(problems.front());
}

}  // namespace orvane
