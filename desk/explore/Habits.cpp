// The mix of a day, and the habits of the system. Those of displays and hands have files of their
// own.
#include "desk/explore/Habits.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>
#include <string_view>

namespace orvane::desk::explore {

namespace {

using Texts = std::array<const char*, 6>;

Lines letTimePass(Scene& scene) {
  constexpr std::array<const char*, 20> seconds{
      "0.001", "0.016", "0.1", "0.25", "0.3", "0.5", "0.75", "0.999", "1",  "1",
      "1.001", "1.5",   "2",   "2",    "2.5", "3",   "5",    "10.1",  "12", "61"};
  return {std::string("advance ") + scene.lots.oneOf(seconds)};
}

Lines moveDock(Scene& scene) {
  constexpr std::array<const char*, 3> edges{"bottom", "left", "right"};
  if (scene.lots.chance(300)) {
    return {scene.machine.dock.autoHides() ? "dock autohide off" : "dock autohide on"};
  }
  return {std::string("dock edge ") + scene.lots.oneOf(edges)};
}

Lines changeLocale(Scene& scene) {
  constexpr std::array<const char*, 8> languages{
      "preferred=en-US current=en_US", "preferred=zh-Hans-CN current=zh_CN",
      "preferred=fr-FR,zh-Hant-TW",    "preferred=fr,de current=en_GB",
      "preferred=fr-FR current=fr_FR", "preferred=ZH_tw",
      "preferred=zhx,en-AU",           "current=zh_HK"};
  return {std::string("locale ") + scene.lots.oneOf(languages)};
}

Lines changeLooks(Scene& scene) {
  constexpr std::array<const char*, 12> looks{
      "appearance dark",   "appearance light",   "accent 247,79,158", "wallpaper busy",
      "wallpaper default", "motion reduced",     "motion full",       "transparency reduced",
      "transparency full", "contrast increased", "contrast normal",   "wallpaper white"};
  return {scene.lots.oneOf(looks)};
}

Lines changePermission(Scene& scene) {
  return {scene.machine.permission.isTrusted() ? "trust off" : "trust on"};
}

Lines grantPermission(Scene& /*scene*/) {
  return {"trust on"};
}

Lines damageStoredValue(Scene& scene) {
  constexpr std::array<const char*, 12> damages{
      "defaults set selectedDisplayID number 1",
      "defaults set selectedDisplayID string GONE",
      "defaults set selectedDisplayID string \"\"",
      "defaults set isOrvaneEnabled string yes",
      "defaults set isOrvaneEnabled bool true",
      "defaults set hidesDockOnAllDisplays number 1",
      "defaults set hidesDockOnAllDisplays bool true",
      "defaults set temporaryUnlockModifier string OPTION",
      "defaults set temporaryUnlockModifier bool true",
      "defaults set appLanguage string klingon",
      "defaults set appLanguage number 2",
      "defaults remove selectedDisplayID"};
  return {scene.lots.oneOf(damages)};
}

Lines endAndLaunch(Scene& scene) {
  constexpr std::array<const char*, 3> ends{"terminate", "terminate", "reopen"};
  return {scene.lots.oneOf(ends)};
}

Lines launch(Scene& scene) {
  if (scene.lots.chance(120)) {
    return damageStoredValue(scene);
  }
  return {"launch"};
}

struct Habit {
  std::size_t weight;
  Lines (*lines)(Scene& scene);
};

constexpr std::array habits{
    Habit{12, letTimePass},
    Habit{3, attachDisplay},
    Habit{3, detachDisplay},
    Habit{3, moveDisplay},
    Habit{2, renumberDisplays},
    Habit{1, chooseMainDisplay},
    Habit{2, changeDisplaysTogether},
    Habit{3, moveDock},
    Habit{1, changeLocale},
    Habit{1, changeLooks},
    Habit{4, changePermission},
    Habit{3, movePointer},
    Habit{9, pressAgainstEdge},
    Habit{1, runAway},
    Habit{3, postEvents},
    Habit{4, holdKeys},
    Habit{1, changeCursor},
    Habit{5, operateMenu},
    Habit{20, pressControl},
    Habit{2, hoverControl},
    Habit{3, clickSomewhere},
    Habit{4, typeKey},
    Habit{2, typeShortcut},
    Habit{1, scrollWheel},
    Habit{2, dragWindow},
    Habit{2, closeWindow},
    Habit{2, dropIcon},
    Habit{4, doOperation},
    Habit{1, endAndLaunch},
    Habit{12, followGuide},
};

Lines refuseTaps(Scene& scene) {
  return {scene.machine.eventTaps.refusesCreation() ? "taps allow" : "taps refuse"};
}

Lines refuseSources(Scene& scene) {
  return {scene.machine.runLoop.refusesSources() ? "sources allow" : "sources refuse"};
}

template <std::size_t count>
Lines disableTap(Scene& scene, const char* how, const std::array<int, count>& times) {
  return Lines(static_cast<std::size_t>(scene.lots.oneOf(times)),
               std::string("tap disabled ") + how);
}

Lines timeOutTap(Scene& scene) {
  return disableTap(scene, "timeout", std::array{1, 1, 1, 5, 6});
}

Lines disableTapByInput(Scene& scene) {
  return disableTap(scene, "userinput", std::array{1, 1, 5});
}

Lines killTapSilently(Scene& scene) {
  return disableTap(scene, "silently", std::array{1});
}

Lines killTapForGood(Scene& scene) {
  Lines lines = disableTap(scene, "forgood", std::array{1});
  if (scene.lots.chance(500)) {
    lines.emplace_back("taps refuse");
  }
  return lines;
}

Lines revokePermission(Scene& /*scene*/) {
  return {"trust off"};
}

Lines refuseLinks(Scene& scene) {
  constexpr Texts prefixes{"x-apple",
                           "x-apple.systempreferences:com.apple.settings",
                           "x-apple.systempreferences:com.apple.Desktop",
                           "x",
                           "mailto:",
                           "https:"};
  if (scene.lots.chance(350)) {
    return {"links accept"};
  }
  return {std::string("links refuse ") + scene.lots.oneOf(prefixes)};
}

Lines failLoginItem(Scene& scene) {
  return {scene.machine.loginItem.error ? "login error none"
                                        : "login error \"Operation not permitted\""};
}

Lines demandApproval(Scene& scene) {
  constexpr std::array<const char*, 4> states{"requiresApproval", "requiresApproval", "notFound",
                                              "notRegistered"};
  return {std::string("login status ") + scene.lots.oneOf(states)};
}

Lines delayNotifications(Scene& scene) {
  constexpr Texts delays{"0.001", "0.2", "0.9", "1.5", "3", "11"};
  if (scene.machine.notifications.delayNanoseconds > 0) {
    return {"notifications prompt"};
  }
  return {std::string("notifications late ") + scene.lots.oneOf(delays)};
}

Lines doubleNotifications(Scene& scene) {
  return {scene.machine.notifications.isDoubled ? "notifications prompt" : "notifications doubled"};
}

Lines breakPreference(Scene& scene) {
  constexpr Texts edges{"top", "Left", "number", "missing", "\"\"", "bottom"};
  return {std::string("dock edge ") + scene.lots.oneOf(edges)};
}

Lines crash(Scene& /*scene*/) {
  return {"crash"};
}

Lines crashWithDamage(Scene& scene) {
  Lines lines{"crash"};
  for (const std::string& line : damageStoredValue(scene)) {
    lines.push_back(line);
  }
  lines.emplace_back("launch");
  return lines;
}

struct FaultKind {
  const char* name;
  Lines (*lines)(Scene& scene);
};

constexpr std::array faultKinds{
    FaultKind{"tap creation refused", refuseTaps},
    FaultKind{"source refused", refuseSources},
    FaultKind{"tap disabled by time-out", timeOutTap},
    FaultKind{"tap disabled by user input", disableTapByInput},
    FaultKind{"tap dead without a word", killTapSilently},
    FaultKind{"tap dead for good", killTapForGood},
    FaultKind{"permission revoked", revokePermission},
    FaultKind{"permission granted", grantPermission},
    FaultKind{"links refused", refuseLinks},
    FaultKind{"login item failing", failLoginItem},
    FaultKind{"login item unapproved", demandApproval},
    FaultKind{"notifications late", delayNotifications},
    FaultKind{"notifications doubled", doubleNotifications},
    FaultKind{"displays changed under events", changeDisplaysUnderEvents},
    FaultKind{"preference of another type", breakPreference},
    FaultKind{"crash", crash},
    FaultKind{"stored value damaged", crashWithDamage},
};

}  // namespace

Habits::Habits(Lots& lots) : lots_(lots), faultCounts_(faultKinds.size()) {
  for (const Habit& habit : habits) {
    constexpr std::array<std::size_t, 4> factors{0, 1, 1, 4};
    weights_.push_back(habit.weight * lots_.oneOf(factors));
  }
  // Time passes every day, and something is pressed.
  weights_[0] = std::max(weights_[0], habits[0].weight);
  const bool isCalm = lots_.chance(150);
  for (std::size_t index = 0; index < faultKinds.size(); ++index) {
    constexpr std::array<std::size_t, 6> chances{0, 0, 0, 4, 10, 30};
    faultChances_.push_back(isCalm ? 0 : lots_.oneOf(chances));
  }
}

std::vector<std::string> Habits::faultNames() {
  std::vector<std::string> names;
  std::ranges::transform(faultKinds, std::back_inserter(names), &FaultKind::name);
  return names;
}

Lines Habits::beginning() {
  constexpr std::array<const char*, 4> second{
      "display attach 2 frame=1440,0,1920,1080 uuid=RIGHT name=\"Right\"",
      "display attach 2 frame=1440,-180,1920,1080 uuid=RIGHT name=\"Right\"",
      "display attach 2 frame=200,900,1920,1080 uuid=ABOVE name=\"书房\"",
      "display attach 2 frame=-1080,-300,1080,1920 uuid=LEFT name=\"Bureau é\" main"};
  Lines lines{lots_.chance(700) ? "display attach 1 frame=0,0,1440,900 uuid=BUILTIN builtin main"
                                : "display attach 1 frame=0,0,1440,900 name=\"Studio\" main"};
  if (lots_.chance(850)) {
    lines.emplace_back(lots_.oneOf(second));
  }
  if (lots_.chance(750)) {
    lines.emplace_back("trust on");
  }
  if (lots_.chance(250)) {
    lines.emplace_back("locale preferred=zh-Hans-CN current=zh_CN");
  }
  if (lots_.chance(300)) {
    lines.emplace_back("dock autohide on");
  }
  lines.emplace_back("launch");
  return lines;
}

Lines Habits::next(Machine& machine, const ApplicationHost& application) {
  Scene scene{lots_, machine, application.isRunning()};
  if (!scene.isRunning && lots_.chance(500)) {
    return launch(scene);
  }
  for (std::size_t index = 0; index < faultKinds.size(); ++index) {
    if (lots_.chance(faultChances_[index])) {
      const Lines lines = faultKinds[index].lines(scene);
      faultCounts_[index] += lines.empty() ? 0 : 1;
      if (!lines.empty()) {
        return lines;
      }
    }
  }
  const std::size_t sum = std::accumulate(weights_.begin(), weights_.end(), std::size_t{0});
  std::size_t place = lots_.below(sum);
  std::size_t index = 0;
  while (place >= weights_[index]) {
    place -= weights_[index++];
  }
  Lines lines = habits[index].lines(scene);
  return lines.empty() ? letTimePass(scene) : lines;
}

}  // namespace orvane::desk::explore
