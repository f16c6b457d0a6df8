// The weights of a day, its faults, and the actions of the system.
#include "desk/explore/ActionGenerator.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <numeric>
#include <string_view>

namespace orvane::desk::explore {

namespace {

Lines advanceTime(ActionContext& context) {
  constexpr std::array<const char*, 20> seconds{
      "0.001", "0.016", "0.1", "0.25", "0.3", "0.5", "0.75", "0.999", "1",  "1",
      "1.001", "1.5",   "2",   "2",    "2.5", "3",   "5",    "10.1",  "12", "61"};
  return {std::string("advance ") + context.random.oneOf(seconds)};
}

Lines moveDock(ActionContext& context) {
  constexpr std::array<const char*, 3> edges{"bottom", "left", "right"};
  if (context.random.chance(300)) {
    return {context.machine.dock.autoHides() ? "dock autohide off" : "dock autohide on"};
  }
  return {std::string("dock edge ") + context.random.oneOf(edges)};
}

Lines changeLocale(ActionContext& context) {
  constexpr std::array<const char*, 8> languages{
      "preferred=en-US current=en_US", "preferred=zh-Hans-CN current=zh_CN",
      "preferred=fr-FR,zh-Hant-TW",    "preferred=fr,de current=en_GB",
      "preferred=fr-FR current=fr_FR", "preferred=ZH_tw",
      "preferred=zhx,en-AU",           "current=zh_HK"};
  return {std::string("locale ") + context.random.oneOf(languages)};
}

Lines changeAppearance(ActionContext& context) {
  constexpr std::array<const char*, 12> appearances{
      "appearance dark",   "appearance light",   "accent 247,79,158", "wallpaper busy",
      "wallpaper default", "motion reduced",     "motion full",       "transparency reduced",
      "transparency full", "contrast increased", "contrast normal",   "wallpaper white"};
  return {context.random.oneOf(appearances)};
}

Lines changePermission(ActionContext& context) {
  return {context.machine.permission.isTrusted() ? "trust off" : "trust on"};
}

/// The permission is away for the moment of a choice, and the application is notified too late.
Lines chooseWithoutPermission(ActionContext& context) {
  constexpr std::array<const char*, 6> choices{
      "do temporaryUnlockModifier shift",  "do temporaryUnlockModifier command",
      "do temporaryUnlockModifier option", "do toggleSelectedDisplayLock",
      "do toggleHideDockOnAllDisplays",    "do toggleLock"};
  const bool isPossible = context.isRunning && context.machine.permission.isTrusted() &&
                          context.machine.runLoop.mode() == RunLoop::Mode::standard;
  return isPossible ? Lines{"notifications late 1.5",      "trust off",
                            context.random.oneOf(choices), "trust on",
                            "notifications prompt",        "advance 2.5"}
                    : Lines{};
}

/// The user looks at the login item after the system has changed it.
Lines changeLoginItem(ActionContext& context) {
  constexpr std::array<const char*, 4> states{"requiresApproval", "enabled", "notFound",
                                              "notRegistered"};
  return {std::string("login status ") + context.random.oneOf(states),
          context.machine.runLoop.mode() == RunLoop::Mode::standard ? "menu open" : "advance 1"};
}

Lines grantPermission(ActionContext& /*context*/) {
  return {"trust on"};
}

Lines damageStoredValue(ActionContext& context) {
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
  return {context.random.oneOf(damages)};
}

Lines endOrReopen(ActionContext& context) {
  constexpr std::array<const char*, 3> ends{"terminate", "terminate", "reopen"};
  return {context.random.oneOf(ends)};
}

Lines launch(ActionContext& context) {
  if (context.random.chance(120)) {
    return damageStoredValue(context);
  }
  return {"launch"};
}

struct Action {
  std::size_t weight;
  Lines (*lines)(ActionContext& context);
};

constexpr std::array actions{
    Action{12, advanceTime},
    Action{3, attachDisplay},
    Action{3, detachDisplay},
    Action{3, moveDisplay},
    Action{2, renumberDisplays},
    Action{1, chooseMainDisplay},
    Action{2, changeDisplaysTogether},
    Action{3, moveDock},
    Action{1, changeLocale},
    Action{1, changeAppearance},
    Action{4, changePermission},
    Action{1, chooseWithoutPermission},
    Action{1, changeLoginItem},
    Action{3, movePointer},
    Action{9, pressAgainstEdge},
    Action{1, runAway},
    Action{3, postEvents},
    Action{4, holdKeys},
    Action{1, changeCursor},
    Action{5, operateMenu},
    Action{20, pressControl},
    Action{3, pickItem},
    Action{2, hoverControl},
    Action{3, clickSomewhere},
    Action{4, typeKey},
    Action{2, typeShortcut},
    Action{1, scrollWheel},
    Action{2, dragWindow},
    Action{2, closeWindow},
    Action{2, dropIcon},
    Action{4, doOperation},
    Action{1, endOrReopen},
    Action{12, followGuide},
};

Lines refuseTaps(ActionContext& context) {
  return {context.machine.eventTaps.refusesCreation() ? "taps allow" : "taps refuse"};
}

Lines refuseSources(ActionContext& context) {
  return {context.machine.runLoop.refusesSources() ? "sources allow" : "sources refuse"};
}

template <std::size_t count>
Lines disableTap(ActionContext& context, const char* how, const std::array<int, count>& times) {
  Lines lines(static_cast<std::size_t>(context.random.oneOf(times)),
              std::string("tap disabled ") + how);
  return lines;
}

Lines timeOutTap(ActionContext& context) {
  return disableTap(context, "timeout", std::array{1, 1, 1, 5, 6});
}

Lines disableTapByInput(ActionContext& context) {
  return disableTap(context, "userinput", std::array{1, 1, 5});
}

Lines disableTapSilently(ActionContext& context) {
  return disableTap(context, "silently", std::array{1});
}

Lines disableTapPermanently(ActionContext& context) {
  Lines lines = disableTap(context, "forgood", std::array{1});
  if (context.random.chance(500)) {
    lines.emplace_back("taps refuse");
  }
  return lines;
}

Lines revokePermission(ActionContext& /*context*/) {
  return {"trust off"};
}

Lines refuseLinks(ActionContext& context) {
  constexpr std::array<const char*, 6> prefixes{"x-apple",
                                                "x-apple.systempreferences:com.apple.settings",
                                                "x-apple.systempreferences:com.apple.Desktop",
                                                "x",
                                                "mailto:",
                                                "https:"};
  if (context.random.chance(350)) {
    return {"links accept"};
  }
  return {std::string("links refuse ") + context.random.oneOf(prefixes)};
}

Lines failLoginItem(ActionContext& context) {
  return {context.machine.loginItem.error ? "login error none"
                                          : "login error \"Operation not permitted\""};
}

Lines demandApproval(ActionContext& context) {
  constexpr std::array<const char*, 4> states{"requiresApproval", "requiresApproval", "notFound",
                                              "notRegistered"};
  return {std::string("login status ") + context.random.oneOf(states)};
}

Lines delayNotifications(ActionContext& context) {
  constexpr std::array<const char*, 6> delays{"0.001", "0.2", "0.9", "1.5", "3", "11"};
  if (context.machine.notifications.delayNanoseconds > 0) {
    return {"notifications prompt"};
  }
  return {std::string("notifications late ") + context.random.oneOf(delays)};
}

Lines doubleNotifications(ActionContext& context) {
  return {context.machine.notifications.isDoubled ? "notifications prompt"
                                                  : "notifications doubled"};
}

Lines setInvalidEdge(ActionContext& context) {
  constexpr std::array<const char*, 6> edges{"top", "Left", "number", "missing", "\"\"", "bottom"};
  return {std::string("dock edge ") + context.random.oneOf(edges)};
}

Lines crash(ActionContext& /*context*/) {
  return {"crash"};
}

Lines crashWithDamage(ActionContext& context) {
  Lines lines{"crash"};
  for (const std::string& line : damageStoredValue(context)) {
    lines.push_back(line);
  }
  lines.emplace_back("launch");
  return lines;
}

struct FaultKind {
  const char* name;
  Lines (*lines)(ActionContext& context);
};

constexpr std::array faultKinds{
    FaultKind{"tap creation refused", refuseTaps},
    FaultKind{"source refused", refuseSources},
    FaultKind{"tap disabled by time-out", timeOutTap},
    FaultKind{"tap disabled by user input", disableTapByInput},
    FaultKind{"tap disabled silently", disableTapSilently},
    FaultKind{"tap disabled permanently", disableTapPermanently},
    FaultKind{"permission revoked", revokePermission},
    FaultKind{"permission granted", grantPermission},
    FaultKind{"links refused", refuseLinks},
    FaultKind{"login item failing", failLoginItem},
    FaultKind{"login item without approval", demandApproval},
    FaultKind{"notifications late", delayNotifications},
    FaultKind{"notifications doubled", doubleNotifications},
    FaultKind{"displays changed during events", changeDisplaysUnderEvents},
    FaultKind{"invalid Dock edge", setInvalidEdge},
    FaultKind{"crash", crash},
    FaultKind{"stored value damaged", crashWithDamage},
};

}  // namespace

ActionGenerator::ActionGenerator(Random& random)
    : random_(random), faultCounts_(faultKinds.size()) {
  for (const Action& action : actions) {
    constexpr std::array<std::size_t, 4> factors{0, 1, 1, 4};
    weights_.push_back(action.weight * random_.oneOf(factors));
  }
  // Time advances every day.
  weights_[0] = std::max(weights_[0], actions[0].weight);
  const bool isCalm = random_.chance(150);
  for (std::size_t index = 0; index < faultKinds.size(); ++index) {
    constexpr std::array<std::size_t, 6> permilles{0, 0, 0, 4, 10, 30};
    faultPermilles_.push_back(isCalm ? 0 : random_.oneOf(permilles));
  }
}

std::vector<std::string> ActionGenerator::faultNames() {
  std::vector<std::string> names;
  std::ranges::transform(faultKinds, std::back_inserter(names), &FaultKind::name);
  return names;
}

Lines ActionGenerator::beginning() {
  constexpr std::array<const char*, 4> second{
      "display attach 2 frame=1440,0,1920,1080 uuid=RIGHT name=\"Right\"",
      "display attach 2 frame=1440,-180,1920,1080 uuid=RIGHT name=\"Right\"",
      "display attach 2 frame=200,900,1920,1080 uuid=ABOVE name=\"书房\"",
      "display attach 2 frame=-1080,-300,1080,1920 uuid=LEFT name=\"Bureau é\" main"};
  Lines lines{random_.chance(700) ? "display attach 1 frame=0,0,1440,900 uuid=BUILTIN builtin main"
                                  : "display attach 1 frame=0,0,1440,900 name=\"Studio\" main"};
  if (random_.chance(850)) {
    lines.emplace_back(random_.oneOf(second));
  }
  if (random_.chance(750)) {
    lines.emplace_back("trust on");
  }
  if (random_.chance(250)) {
    lines.emplace_back("locale preferred=zh-Hans-CN current=zh_CN");
  }
  if (random_.chance(300)) {
    lines.emplace_back("dock autohide on");
  }
  lines.emplace_back("launch");
  if (random_.chance(400)) {
    lines.emplace_back("trust on");
    lines.emplace_back(random_.chance(700) ? "do toggleSelectedDisplayLock"
                                           : "do toggleHideDockOnAllDisplays");
  }
  return lines;
}

Lines ActionGenerator::next(Machine& machine, const ApplicationHost& application) {
  ActionContext context{random_, machine, application.isRunning()};
  if (!context.isRunning && random_.chance(500)) {
    return launch(context);
  }
  for (std::size_t index = 0; index < faultKinds.size(); ++index) {
    if (random_.chance(faultPermilles_[index])) {
      Lines lines = faultKinds[index].lines(context);
      faultCounts_[index] += lines.empty() ? 0 : 1;
      if (!lines.empty()) {
        return lines;
      }
    }
  }
  // Most users finish what they have begun.
  if (weights_.back() > 0 && random_.chance(250)) {
    if (Lines lines = followGuide(context); !lines.empty()) {
      return lines;
    }
  }
  const std::size_t sum = std::accumulate(weights_.begin(), weights_.end(), std::size_t{0});
  std::size_t remaining = random_.below(sum);
  std::size_t index = 0;
  while (remaining >= weights_[index]) {
    remaining -= weights_[index++];
  }
  Lines lines = actions[index].lines(context);
  return lines.empty() ? advanceTime(context) : lines;
}

}  // namespace orvane::desk::explore
