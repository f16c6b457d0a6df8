// One function per chapter. Numbers and names in captions are read from the machine, and each
// caption's claim is checked first.
#include "showroom/tour/TourStory.hpp"

#include <string>

#include "Orvane/panels/settings/ShortcutText.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"
#include "showroom/desktop/StandardDisplays.hpp"

namespace orvane::showroom {

namespace {

constexpr std::uint32_t builtIn = 1;
constexpr std::uint32_t right = 2;
constexpr std::uint32_t left = 3;

std::string counted(std::int64_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::int64_t zoneCount(TourStage& stage) {
  return static_cast<std::int64_t>(stage.snapshot().guard.zones.size());
}

void setAutoHide(TourStage& stage, bool hides) {
  desk::Dock::store(stage.machine().preferences, desk::Dock::autoHideKey, hides);
}

/// Advances the machine, which starts at midnight, to this time of day.
void waitUntil(TourStage& stage, int hour, int minute) {
  constexpr int minutesPerHour = 60;
  constexpr int secondsPerMinute = 60;
  const double wanted = (hour * minutesPerHour + minute) * secondsPerMinute;
  stage.machine().advance(wanted - static_cast<double>(stage.machine().clock.now()) /
                                       static_cast<double>(desk::Clock::nanosecondsPerSecond));
}

void showUnguardedDock(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  attachNextStandardDisplay(machine);
  attachNextStandardDisplay(machine);
  waitUntil(stage, 10, 8);
  stage.moveAway(right);
  stage.check(machine.displays.count() == 2, "there are two displays");
  stage.check(stage.isDockOn(builtIn) && machine.dock.isVisible(), "the Dock is on the first");
  stage.addStep("Two displays. The Dock lives on " + stage.dockPlace() + ".");

  stage.pressLowerEdge(right, 3, 0.05);
  machine.advance(0.4);
  stage.check(stage.isDockOn(right) && machine.dock.revealCount() == 1,
              "the Dock followed the pointer");
  stage.addStep(
      "The pointer presses against the lower edge of the other display, and the Dock "
      "follows it to " +
      stage.dockPlace() + ".");

  stage.moveAway(builtIn);
  stage.pressLowerEdge(builtIn, 3, 0.05);
  machine.advance(0.4);
  stage.check(stage.isDockOn(builtIn) && machine.dock.revealCount() == 2,
              "the Dock followed it back");
  stage.addStep("A touch of the edge of " + stage.dockPlace() + " takes it back there: " +
                counted(machine.dock.revealCount(), "jump") + " that nobody asked for.");
}

void showMenu(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.moveAway(builtIn);
  stage.application().launch();
  machine.advance(1);
  stage.check(stage.application().isRunning() && !stage.snapshot().guard.isRunning,
              "Orvane runs and guards nothing");
  stage.check(desk::WindowServer::current().windows().empty(), "no window is open");
  stage.addStep(
      "Orvane is running: an open lock in the menu bar, no window, and nothing guarded yet.");

  stage.clickIcon(builtIn);
  stage.check(desk::WindowServer::current().menus.isStatusMenuOpen(), "the menu is open");
  stage.writeCloseUp("menu", desk::Surfaces::menu);
  stage.addStep(
      "A click on the lock opens the menu: three switches, the displays, and little else.");
}

void showPermission(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.click("Pin Dock", desk::Surfaces::menu);
  machine.advance(0.5);
  stage.check(stage.isOpen("alert"), "the alert is open");
  stage.check(!stage.snapshot().guard.isRunning, "nothing is guarded without the permission");
  stage.addStep("Pin Dock: watching the pointer needs a permission, and Orvane says so first.");

  stage.click("Open Privacy Settings", "alert");
  machine.advance(2.5);
  stage.check(stage.isOpen("system"), "the settings are open");
  stage.check(stage.isOpen("guide"), "the guide is there");
  stage.addStep("The System Settings open on the right page, and a small guide waits beside them.");

  stage.dropIcon();
  machine.advance(1.4);
  stage.check(stage.snapshot().guard.isRunning && zoneCount(stage) == 1,
              "the guard runs with one zone");
  const desk::Display* const target = machine.displays.find(builtIn);
  stage.check(stage.snapshot().selectedDisplayID == target->uuid,
              "the Dock's own display is the target");
  stage.check(desk::WindowServer::current().statusBar.item()->image->name == "lock.fill" &&
                  stage.isOpen("guide"),
              "the lock is closed, and the guide says so");
  stage.addStep(
      "Its icon dropped onto the list is all it takes: the lock closes, the Dock belongs to " +
      target->name + ".");
  machine.advance(2);
  stage.closeWindow("system");
  stage.check(desk::WindowServer::current().windows().empty(), "guide and settings are gone");
}

void showPinning(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.moveAway(builtIn);
  stage.showZones();
  const std::int64_t jumps = machine.dock.revealCount();
  stage.pressLowerEdge(right, 60, 0.05);
  const std::int64_t blocked = stage.snapshot().guard.blockedCount;
  stage.check(blocked == 60, "all sixty touches were moved back");
  stage.check(stage.isDockOn(builtIn) && machine.dock.revealCount() == jumps, "the Dock stayed");
  machine.advance(0.1);
  stage.addStep("The same pressing again, 60 times: " + counted(zoneCount(stage), "trigger zone") +
                " moves the pointer back " + counted(blocked, "time") + ", and the Dock stays on " +
                stage.dockPlace() + ".");
}

void showModifier(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.moveAway(right);
  machine.modifierKeys.hold(kCGEventFlagMaskAlternate);
  stage.pressLowerEdge(right, 3, 0.05);
  machine.advance(0.4);
  stage.check(stage.snapshot().isTemporarilyUnlocked && stage.isDockOn(right),
              "the held key lets the Dock come");
  stage.addStep("While " + std::string(shortcutText(stage.snapshot().temporaryUnlockModifier)) +
                " is held the pointer passes: the Dock may come to " + stage.dockPlace() + ".");

  machine.modifierKeys.releaseAll();
  stage.moveAway(builtIn);
  stage.pressLowerEdge(builtIn, 3, 0.05);
  machine.advance(0.4);
  stage.moveAway(right);
  const std::int64_t jumps = machine.dock.revealCount();
  stage.pressLowerEdge(right, 20, 0.05);
  stage.check(!stage.snapshot().isTemporarilyUnlocked, "the guard is locked again");
  stage.check(stage.isDockOn(builtIn) && machine.dock.revealCount() == jumps,
              "the Dock stays at home");
  stage.addStep("The key is released and the Dock taken home; from now on it stays on " +
                stage.dockPlace() + " again.");
}

void showWindow(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.clickIcon(builtIn);
  stage.click("Open Window", desk::Surfaces::menu);
  machine.advance(1);
  stage.check(stage.isOpen("main"), "the window is open");
  stage.writeCloseUp("main-panel", "main");
  stage.addStep(
      "The window shows the same with more room: a card for each display, and what is on.");

  stage.click("Settings", "main");
  machine.advance(1);
  stage.moveAway(right);
  stage.writeCloseUp("settings-panel", "settings");
  stage.pick("Language", "Chinese", "settings");
  machine.advance(1);
  stage.check(stage.snapshot().appLanguage == OrvaneLanguage::chinese, "the language is Chinese");
  stage.check(stage.isOpen("settings"), "the settings are open");
  stage.addStep("In the settings: the language, here Chinese at once, and the key that unlocks.");

  stage.pick("语言", "跟随系统", "settings");
  stage.pressEscape();
  stage.check(!stage.isOpen("settings"), "the settings are closed");
}

void showPreventing(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.click("Unpin Dock", "main");
  stage.click("Close", "main");
  setAutoHide(stage, true);
  stage.moveAway(builtIn);
  stage.check(!machine.dock.isVisible(), "the Dock has hidden itself");
  stage.pressLowerEdge(builtIn, 1, 0);
  machine.advance(0.14);
  const double shown = machine.dock.shownFraction();
  stage.check(!stage.snapshot().guard.isRunning && shown > 0 && shown < 1, "the Dock slides in");
  stage.addStep(
      "Unlocked again, and the Dock hides itself: one touch of the edge and it slides in.");

  stage.moveAway(builtIn);
  stage.clickIcon(builtIn);
  stage.click("Prevent Dock Pop-Up", desk::Surfaces::menu);
  stage.pressEscape();
  machine.advance(1);
  stage.check(stage.snapshot().guard.isRunning && zoneCount(stage) == 2, "two zones are guarded");
  stage.check(!machine.dock.isVisible(), "the Dock is hidden");
  stage.addStep("Prevent Dock Pop-Up: now every display has its trigger zone, " +
                counted(zoneCount(stage), "zone") + " in all.");

  const std::int64_t jumps = machine.dock.revealCount();
  const std::int64_t blocked = stage.snapshot().guard.blockedCount;
  stage.pressLowerEdge(builtIn, 40, 0.05);
  stage.moveAway(builtIn);
  stage.pressLowerEdge(right, 40, 0.05);
  const std::int64_t touches = stage.snapshot().guard.blockedCount - blocked;
  stage.check(touches == 80, "all eighty touches were moved back");
  stage.check(machine.dock.revealCount() == jumps && !machine.dock.isVisible(),
              "the Dock never came up");
  stage.addStep(std::to_string(touches) + " touches of both edges: the Dock comes up " +
                counted(machine.dock.revealCount() - jumps, "time") + ".");
}

void showShutOff(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.moveAway(right);
  machine.advance(3);
  const std::int64_t blocked = stage.snapshot().guard.blockedCount;
  stage.pressLowerEdge(right, 180, 0.01);
  const std::int64_t touches = stage.snapshot().guard.blockedCount - blocked;
  stage.check(touches == 180 && !stage.snapshot().guard.isRunning && zoneCount(stage) == 0,
              "the guard has switched itself off");
  stage.addStep("Something presses " + counted(touches, "time") +
                " within two seconds: Orvane never fights for the mouse, it switches itself off.");
}

void showPlugging(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  machine.appearance.isDark = true;
  waitUntil(stage, 20, 30);
  stage.moveAway(right);
  attachNextStandardDisplay(machine);
  machine.runDue();
  stage.check(machine.displays.count() == 3, "there are three displays");
  stage.check(stage.snapshot().guard.isRunning && zoneCount(stage) == 3, "three zones are guarded");
  stage.addStep("Evening. A third display is plugged in, and with it the guard is back: " +
                counted(zoneCount(stage), "zone") + ".");

  setAutoHide(stage, false);
  stage.clickIcon(builtIn);
  stage.click("Open Window", desk::Surfaces::menu);
  machine.advance(1);
  stage.click(stage.nameOf(left), "main");
  stage.click("Pin Dock", "main");
  machine.advance(1);
  stage.check(stage.snapshot().guard.isRunning && zoneCount(stage) == 2, "the Dock is pinned");
  stage.addStep("A click on its card and one on Pin Dock: the Dock belongs to " +
                stage.nameOf(left) + " now.");

  stage.click("Close", "main");
  stage.moveAway(left);
  stage.pressLowerEdge(left, 3, 0.05);
  machine.advance(0.4);
  stage.check(stage.isDockOn(left) && zoneCount(stage) == 2, "the Dock is on the third display");
  const std::int64_t jumps = machine.dock.revealCount();
  stage.moveAway(builtIn);
  stage.pressLowerEdge(builtIn, 40, 0.05);
  stage.moveAway(right);
  stage.pressLowerEdge(right, 40, 0.05);
  stage.check(stage.isDockOn(left) && machine.dock.revealCount() == jumps, "the Dock stayed");
  stage.addStep("One touch fetches it there; touching the edges of " + stage.nameOf(builtIn) +
                " and " + stage.nameOf(right) + " changes nothing.");
}

void showUnplugging(TourStage& stage) {
  desk::Machine& machine = stage.machine();
  stage.moveAway(builtIn);
  const std::string target = stage.nameOf(left);
  const std::int64_t jumps = machine.dock.revealCount();
  stage.check(!machine.displays.detach(left), "the display can be unplugged");
  machine.advance(0.5);
  stage.check(!stage.snapshot().guard.isRunning && zoneCount(stage) == 0, "the guard pauses");
  stage.check(stage.snapshot().status == OrvaneStatus::targetMissing, "the target is missing");
  stage.check(stage.isDockOn(builtIn) && machine.dock.revealCount() == jumps,
              "the system moved the Dock");
  stage.addStep(target + " is unplugged. The system moves the Dock to " + stage.dockPlace() +
                "; Orvane pauses and remembers.");

  attachNextStandardDisplay(machine);
  machine.advance(0.5);
  stage.check(stage.snapshot().guard.isRunning && zoneCount(stage) == 2, "the guard is back");
  stage.moveAway(left);
  stage.pressLowerEdge(left, 3, 0.05);
  machine.advance(0.4);
  stage.moveAway(right);
  const std::int64_t jumpsSince = machine.dock.revealCount();
  stage.pressLowerEdge(right, 40, 0.05);
  stage.check(stage.isDockOn(left) && machine.dock.revealCount() == jumpsSince,
              "the Dock is pinned again");
  stage.addStep(
      "Plugged in again: the guard is back by itself, and the Dock, fetched with one touch, "
      "stays on " +
      stage.dockPlace() + ".");

  stage.moveAway(right);
  stage.application().terminate();
  machine.advance(1);
  stage.application().launch();
  machine.advance(1);
  stage.pressLowerEdge(right, 40, 0.05);
  stage.check(stage.snapshot().guard.isRunning, "the lock is restored");
  stage.check(stage.isDockOn(left) && machine.dock.revealCount() == jumpsSince, "the Dock stayed");
  stage.addStep(
      "Orvane is quit and launched again: the lock is restored, and the Dock is where it "
      "belongs, on " +
      stage.dockPlace() + ".");
}

}  // namespace

void playTour(TourStage& stage) {
  showUnguardedDock(stage);
  showMenu(stage);
  showPermission(stage);
  showPinning(stage);
  showModifier(stage);
  showWindow(stage);
  showPreventing(stage);
  showShutOff(stage);
  showPlugging(stage);
  showUnplugging(stage);
}

}  // namespace orvane::showroom
