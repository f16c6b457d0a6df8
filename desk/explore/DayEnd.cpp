// The end of a day: what has to work when nothing is in its way any more.
#include <algorithm>
#include <array>

#include "desk/explore/Day.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

Lines calm(const Trial& trial) {
  Lines lines{"notifications prompt", "taps allow",       "sources allow",
              "links accept",         "login error none", "release"};
  if (trial.moment().isMenuOpen) {
    lines.emplace_back("menu close");
  }
  if (trial.moment().isChangingTogether) {
    lines.emplace_back("display done");
  }
  if (!Situation::of(trial.machine()).edge) {
    lines.emplace_back("dock edge bottom");
  }
  return lines;
}

/// Side by side, or one above the other where the Dock is at a side: every display has an edge of
/// its own for it.
Lines arrange(const Trial& trial) {
  Lines lines{"display together"};
  const std::vector<Display>& displays = trial.machine().displays.all();
  const bool isAside = trial.machine().dock.edge() == DockEdge::bottom;
  double place = 0;
  for (const Display& display : displays) {
    const CGSize size = display.frame.size;
    lines.push_back("display frame " + std::to_string(display.number) + " " +
                    decimal(isAside ? place : 0) + "," + decimal(isAside ? 0 : place) + "," +
                    decimal(size.width) + "," + decimal(size.height));
    place += isAside ? size.width : size.height;
  }
  std::uint32_t number = 50;
  for (std::size_t count = displays.size(); count < 2; ++count) {
    const std::string corner = isAside ? decimal(place) + ",0" : "0," + decimal(place);
    lines.push_back("display attach " + std::to_string(number) + " frame=" + corner +
                    ",1600,1000 uuid=END" + std::to_string(number) + " name=\"Last\"");
    place += isAside ? 1600 : 1000;
    ++number;
  }
  lines.emplace_back("display done");
  return lines;
}

/// Of the open menu or a window.
void pressLabelled(Trial& trial, const std::string& surface, const char* english,
                   const char* chinese) {
  const auto controls = Surfaces(WindowServer::current()).controls(surface);
  for (std::size_t index = 0; index < controls.size(); ++index) {
    const std::string& label = controls[index].node.label;
    if (label == english || label == chinese) {
      trial.take(controlLine("press", surface, controls, index));
      return;
    }
  }
  trial.complain({liveness, std::string("\"") + english + "\" is not in " + surface});
}

void answerAlerts(Trial& trial) {
  for (int alert = 0; alert < 3 && !trial.violation() && trial.moment().isModal; ++alert) {
    pressLabelled(trial, "alert", wordsOf(Tongue::english).notNow, wordsOf(Tongue::chinese).notNow);
    trial.take("advance 3");
  }
}

/// The first row of the displays stands after the three switches of the menu.
void chooseFirstDisplay(Trial& trial) {
  constexpr std::size_t switches = 3;
  trial.take("menu open");
  const auto controls = Surfaces(WindowServer::current()).controls(Surfaces::menu);
  if (controls.size() <= switches) {
    trial.complain({liveness, "the menu has no displays to choose from"});
    return;
  }
  trial.take(controlLine("press", Surfaces::menu, controls, switches));
}

void pressWhatIsWanted(Trial& trial, LastWish lastWish) {
  const bool prevents = lastWish == LastWish::prevent;
  const Stored& stored = trial.moment().stored;
  const Situation situation = Situation::of(trial.machine());
  if (!prevents && (!stored.selected || situation.named(*stored.selected) == nullptr)) {
    chooseFirstDisplay(trial);
  }
  if (trial.violation() ||
      (trial.moment().isGuardRunning && trial.moment().stored.prevents == prevents)) {
    return;
  }
  trial.take("menu open");
  const Words& english = wordsOf(Tongue::english);
  const Words& chinese = wordsOf(Tongue::chinese);
  pressLabelled(trial, Surfaces::menu, prevents ? english.prevent : english.pin,
                prevents ? chinese.prevent : chinese.pin);
  trial.take("menu close");
}

void pressAgainstForbiddenEdges(Trial& trial) {
  const Situation situation = Situation::of(trial.machine());
  const Wish wish = trial.moment().stored.wish();
  const std::vector<CGPoint> places = situation.forbiddenPlaces(wish);
  if (places.empty()) {
    trial.complain({liveness, "no edge is forbidden"});
  }
  const DockEdge edge = trial.machine().dock.edge();
  const std::string way = edge == DockEdge::bottom ? "0 40"
                          : edge == DockEdge::left ? "-40 0"
                                                   : "40 0";
  for (const CGPoint& place : places) {
    const auto reveals = trial.machine().dock.reveals();
    trial.take("move " + decimal(place.x) + " " + decimal(place.y));
    // As often as does not count as a runaway.
    trial.take("push " + way + " times 200 every 0.02");
    if (!trial.violation() && trial.machine().dock.reveals() != reveals) {
      trial.complain({liveness, "the Dock came up where it is forbidden"});
    }
  }
  if (!trial.violation() && !trial.moment().isGuardRunning) {
    trial.complain({liveness, "the guard did not bear 200 presses", "guard.running true"});
  }
}

}  // namespace

void bringToGoodEnd(Trial& trial, LastWish lastWish) {
  if (trial.violation()) {
    return;
  }
  trial.takeAll(calm(trial));
  if (!trial.moment().isLaunched) {
    trial.take("launch");
  }
  answerAlerts(trial);
  trial.takeAll(arrange(trial));
  trial.take("trust on");
  // What was asked for before comes to its end: a guide that is open sees the permission and goes.
  trial.take("advance 12");
  answerAlerts(trial);
  if (trial.violation()) {
    return;
  }
  if (trial.moment().isModal) {
    trial.complain({liveness, "there is no end of alerts"});
    return;
  }
  pressWhatIsWanted(trial, lastWish);
  trial.take("advance 2");
  if (!trial.violation() && !trial.moment().isGuardRunning) {
    trial.complain({liveness, "the guard does not run", "guard.running true"});
  }
  if (!trial.violation()) {
    pressAgainstForbiddenEdges(trial);
  }
}

}  // namespace orvane::desk::explore
