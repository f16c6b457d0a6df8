// The liveness check: once all faults have ended, one switch must start a guard that works.
#include "desk/explore/Day.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

Lines endFaults(const CheckedSession& session) {
  Lines lines{"notifications prompt", "taps allow",       "sources allow",
              "links accept",         "login error none", "release"};
  if (session.observation().isMenuOpen) {
    lines.emplace_back("menu close");
  }
  if (session.observation().isChangingTogether) {
    lines.emplace_back("display done");
  }
  if (!DisplayConfiguration::of(session.machine()).edge) {
    lines.emplace_back("dock edge bottom");
  }
  return lines;
}

/// In a row, or in a column if the Dock is at a side, so that every display has an exposed edge.
Lines arrange(const CheckedSession& session) {
  Lines lines{"display together"};
  const std::vector<Display>& displays = session.machine().displays.all();
  const bool isRow = session.machine().dock.edge() == DockEdge::bottom;
  double place = 0;
  for (const Display& display : displays) {
    const CGSize size = display.frame.size;
    lines.push_back("display frame " + std::to_string(display.number) + " " +
                    decimal(isRow ? place : 0) + "," + decimal(isRow ? 0 : place) + "," +
                    decimal(size.width) + "," + decimal(size.height));
    place += isRow ? size.width : size.height;
  }
  std::uint32_t number = 50;
  for (std::size_t count = displays.size(); count < 2; ++count) {
    const std::string corner = isRow ? decimal(place) + ",0" : "0," + decimal(place);
    lines.push_back("display attach " + std::to_string(number) + " frame=" + corner +
                    ",1600,1000 uuid=END" + std::to_string(number) + " name=\"Last\"");
    place += isRow ? 1600 : 1000;
    ++number;
  }
  lines.emplace_back("display done");
  return lines;
}

/// Presses the control of a surface that has one of the labels.
void pressLabelled(CheckedSession& session, const std::string& surface, const char* english,
                   const char* chinese) {
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  for (std::size_t index = 0; index < controls.size(); ++index) {
    const std::string& label = controls[index].node.label;
    if (label == english || label == chinese) {
      session.run(controlLine("press", surface, controls, index));
      return;
    }
  }
  session.report({liveness, std::string("\"") + english + "\" is not in " + surface});
}

void answerAlerts(CheckedSession& session) {
  for (int alert = 0; alert < 3 && !session.violation() && session.observation().isModal; ++alert) {
    pressLabelled(session, "alert", labelsIn(Language::english).notNow,
                  labelsIn(Language::chinese).notNow);
    session.run("advance 3");
  }
}

void chooseFirstDisplay(CheckedSession& session) {
  session.run("menu open");
  const auto controls = Surfaces(WindowServer::current()).controls(Surfaces::menu);
  if (controls.size() <= menuSwitches) {
    session.report({liveness, "the menu lists no display"});
    return;
  }
  session.run(controlLine("press", Surfaces::menu, controls, menuSwitches));
}

void switchOnLock(CheckedSession& session, FinalMode finalMode) {
  const bool prevents = finalMode == FinalMode::prevent;
  const Stored& stored = session.observation().stored;
  const DisplayConfiguration configuration = DisplayConfiguration::of(session.machine());
  if (!prevents && (!stored.selected || configuration.named(*stored.selected) == nullptr)) {
    chooseFirstDisplay(session);
  }
  if (session.violation() ||
      (session.observation().isGuardRunning && session.observation().stored.prevents == prevents)) {
    return;
  }
  session.run("menu open");
  const Labels& english = labelsIn(Language::english);
  const Labels& chinese = labelsIn(Language::chinese);
  pressLabelled(session, Surfaces::menu, prevents ? english.prevent : english.pin,
                prevents ? chinese.prevent : chinese.pin);
  session.run("menu close");
}

void pressAgainstForbiddenEdges(CheckedSession& session) {
  const DisplayConfiguration configuration = DisplayConfiguration::of(session.machine());
  const GuardGoal goal = session.observation().stored.goal();
  const std::vector<CGPoint> places = configuration.forbiddenEdgePoints(goal);
  if (places.empty()) {
    session.report({liveness, "there is no forbidden edge"});
  }
  const DockEdge edge = session.machine().dock.edge();
  const std::string push = edge == DockEdge::bottom ? "0 40"
                           : edge == DockEdge::left ? "-40 0"
                                                    : "40 0";
  for (const CGPoint& place : places) {
    const auto reveals = session.machine().dock.reveals();
    session.run("move " + decimal(place.x) + " " + decimal(place.y));
    // Slow enough not to count as a runaway.
    session.run("push " + push + " times 200 every 0.02");
    for (const auto& [number, count] : session.machine().dock.reveals()) {
      const auto known = reveals.find(number);
      const std::int64_t before = known == reveals.end() ? 0 : known->second;
      if (!session.violation() && count != before) {
        session.report({liveness, "the Dock appeared on a forbidden display",
                        "dock.reveals." + std::to_string(number) + " " + std::to_string(before)});
      }
    }
  }
  if (!session.violation() && !session.observation().isGuardRunning) {
    session.report({liveness, "the guard stopped during 200 presses", "guard.running true"});
  }
}

}  // namespace

void checkLiveness(CheckedSession& session, FinalMode finalMode) {
  if (session.violation()) {
    return;
  }
  session.runAll(endFaults(session));
  if (!session.observation().isLaunched) {
    session.run("launch");
  }
  answerAlerts(session);
  session.runAll(arrange(session));
  session.run("trust on");
  // An open guide notices the permission and closes.
  session.run("advance 12");
  answerAlerts(session);
  if (session.violation()) {
    return;
  }
  if (session.observation().isModal) {
    session.report({liveness, "alerts keep appearing"});
    return;
  }
  switchOnLock(session, finalMode);
  session.run("advance 2");
  if (!session.violation() && !session.observation().isGuardRunning) {
    session.report({liveness, "the guard is not running", "guard.running true"});
  }
  const bool prevents = session.observation().stored.prevents;
  if (!session.violation() && prevents != (finalMode == FinalMode::prevent)) {
    session.report({liveness, "the guard runs in the other mode",
                    std::string("guard.blocksAllDisplays ") + (prevents ? "false" : "true")});
  }
  if (!session.violation()) {
    pressAgainstForbiddenEdges(session);
  }
}

}  // namespace orvane::desk::explore
