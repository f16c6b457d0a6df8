// Random sequences of changes of displays and of the permission, launches, ends and presses of
// controls; the icon and the menu always show the state of the guard.
#include <algorithm>
#include <array>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <rapidcheck/gtest.h>

#include "desk/machine/MachineScope.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/hardware/Hardware.hpp"

namespace orvane {
namespace {

/// What is done, and two numbers that say to what.
using Step = std::tuple<unsigned, unsigned, unsigned>;

class Afternoon {
 public:
  Afternoon() {
    hardware_.attachDisplay();
    hardware_.attachDisplay();
    hardware_.setTrusted(true);
    hardware_.launch();
  }

  void perform(const Step& step) {
    const auto [kind, first, second] = step;
    switch (kind % 12) {
      case 0:
        first % 2 == 0 ? hardware_.attachDisplay() : hardware_.detachDisplay(1 + second % 4);
        break;
      case 1:
        hardware_.makeMain(1 + first % 4);
        break;
      case 2:
        hardware_.setEdge(static_cast<desk::DockEdge>(first % 3));
        break;
      case 3:
        hardware_.setTrusted(first % 3 != 0);
        break;
      case 4:
        hardware_.setLanguageList(first % 4);
        break;
      case 5:
        startOrEnd(first);
        break;
      case 6:
        openMenu(first);
        break;
      case 7:
      case 8:
        pressSomething(first, second);
        break;
      case 9:
        pressKey(first);
        break;
      case 10:
        click(first, second);
        break;
      default:
        machine().advance(first % 4);
        break;
    }
    machine().runDue();
  }

  /// Empty when icon and menu say what is.
  std::string lie() {
    desk::WindowServer& server = desk::WindowServer::current();
    if ((server.statusBar.item() != nullptr) != hardware_.isRunning()) {
      return "the item is there without the application, or the other way round";
    }
    if (!hardware_.isRunning()) {
      return server.menus.isOpen() ? "a menu has outlived its application" : "";
    }
    // A second brings the icon up to date, under an open menu and an alert too.
    machine().advance(1);
    const bool isLocked = application_.model().isGuardRunning();
    const std::string icon = server.statusBar.item()->image->name;
    if (icon != (isLocked ? "lock.fill" : "lock.open")) {
      return "the icon is " + icon;
    }
    while (server.menus.isOpen()) {
      server.menus.close();
    }
    return server.menus.openStatusMenu(0) ? menuLie() : "";
  }

  bool endsCleanly() { return scope_.end().empty(); }

 private:
  [[nodiscard]] desk::Machine& machine() { return scope_.machine(); }

  void startOrEnd(unsigned which) {
    switch (which % 8) {
      case 0:
        hardware_.terminate();
        break;
      case 1:
        hardware_.crash();
        break;
      case 2:
      case 3:
        hardware_.reopen();
        break;
      default:
        hardware_.launch();
        break;
    }
  }

  void openMenu(unsigned which) {
    const std::size_t count = machine().displays.count();
    if (count > 0) {
      desk::WindowServer::current().menus.openStatusMenu(which % count);
    }
  }

  void pressSomething(unsigned surface, unsigned control) {
    const desk::Surfaces surfaces(desk::WindowServer::current());
    const std::vector<std::string> names = surfaces.names();
    if (names.empty()) {
      return;
    }
    const auto controls = surfaces.controls(names[surface % names.size()]);
    if (!controls.empty()) {
      controls[control % controls.size()].press();
    }
  }

  void pressKey(unsigned which) {
    constexpr std::array keys{ui::Key::up,    ui::Key::down,   ui::Key::enter,
                              ui::Key::space, ui::Key::escape, ui::Key::tab};
    desk::WindowServer::current().keyDown({keys[which % keys.size()], {}, {}});
  }

  void click(unsigned x, unsigned y) {
    const auto& frames = machine().displays.globalFrames();
    if (frames.empty()) {
      return;
    }
    const CGRect& frame = frames[x % frames.size()];
    machine().mouse.moveTo({frame.origin.x + x % 1000, frame.origin.y + y % 600});
    machine().runDue();
    machine().mouse.pressButton();
    machine().runDue();
    machine().mouse.releaseButton();
  }

  /// The menu has just been opened.
  std::string menuLie() {
    const OrvaneModel& model = application_.model();
    const auto snapshot = desk::script::statusMenuSnapshot();
    const auto& rows = snapshot["rows"];
    const bool isLocked = model.isGuardRunning();
    const bool isPreventing = model.hidesDockOnAllDisplays().value();
    const std::size_t displays = std::max<std::size_t>(machine().displays.count(), 1);
    if (rows.size() != 10 + displays) {
      return "there are " + std::to_string(rows.size()) + " rows";
    }
    if (rows[2]["isOn"] != (isLocked && isPreventing) ||
        rows[3]["isOn"] != (isLocked && !isPreventing)) {
      return "a switch is wrong";
    }
    if (rows[3]["isEnabled"] != model.selectedDisplayID().value().has_value()) {
      return "pinning is offered without a target, or not offered with one";
    }
    std::size_t marks = 0;
    for (const auto& row : rows) {
      marks += row.value("isSelected", false) ? 1U : 0U;
    }
    return marks != (model.selectedDisplay() ? 1U : 0U) ? "the mark is not with the target" : "";
  }

  desk::MachineScope scope_;
  desk::ApplicationHost application_{scope_.machine()};
  showroom::Hardware hardware_{scope_.machine(), application_};
};

RC_GTEST_PROP(ShellSequence, IconAndMenuNeverLie, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(rc::gen::tuple(
      rc::gen::inRange(0U, 12U), rc::gen::inRange(0U, 5000U), rc::gen::inRange(0U, 5000U)));
  Afternoon afternoon;
  for (const Step& step : steps) {
    afternoon.perform(step);
    if (std::get<1>(step) % 3 == 0) {
      const std::string lie = afternoon.lie();
      RC_LOG() << lie << "\n";
      RC_ASSERT(lie.empty());
    }
  }
  RC_ASSERT(afternoon.lie().empty());
  RC_ASSERT(afternoon.endsCleanly());
}

}  // namespace
}  // namespace orvane
