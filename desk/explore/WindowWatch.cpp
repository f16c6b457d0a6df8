// Compares the frames of the windows before and after a step.
#include "desk/explore/WindowWatch.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "desk/explore/Presses.hpp"
#include "desk/windows/Surfaces.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::explore {

namespace {

/// The panel scrolls to the chosen card within this time, in nanoseconds.
constexpr std::int64_t scrollTime = Clock::nanosecondsPerSecond;
/// In points: the rounding of origins, and how much larger a raised card is on each side.
constexpr double originRounding = 1;
constexpr double cardOverhang = 2;

bool pressesSettings(const Step& step) {
  return step.hasRun &&
         (presses(step, &Labels::settings, "menu") || presses(step, &Labels::settings, "main"));
}

bool areCentred(const CGRect& first, const CGRect& second) {
  return std::abs(CGRectGetMidX(first) - CGRectGetMidX(second)) <= originRounding &&
         std::abs(CGRectGetMidY(first) - CGRectGetMidY(second)) <= originRounding;
}

/// Whether no part of the surface is covered, or outside of the displays.
bool isInSight(const std::string& surface) {
  const WindowServer& server = WindowServer::current();
  const auto window = Surfaces(WindowServer::current()).window(surface);
  if (window == nullptr) {
    return false;
  }
  const Displays& displays = server.machine().displays;
  const CGRect frame = displays.flipped(window->frame);
  constexpr double step = 6;
  for (double y = step; y < frame.size.height; y += step) {
    for (double x = step; x < frame.size.width; x += step) {
      const CGPoint place{frame.origin.x + x, frame.origin.y + y};
      const bool isCovered = !displays.indexContaining(place) || server.windowAt(place) != window;
      // Its corners are rounded.
      if (isCovered && window->contains(displays.flipped(place))) {
        return false;
      }
    }
  }
  return true;
}

/// Counts the selected cards that are wholly in their scroll area (true), and the others.
void countCards(const ui::SemanticsNode& node, const ui::Rect& area, std::map<bool, int>& counts) {
  if (node.role == ui::Role::radioButton && node.isSelected) {
    ++counts[node.frame.intersection(area).width >= node.frame.width - 2 * cardOverhang];
  }
  const ui::Rect& inner = node.role == ui::Role::scrollArea ? node.frame : area;
  for (const ui::SemanticsNode& child : node.children) {
    countCards(child, inner, counts);
  }
}

}  // namespace

std::optional<Violation> WindowWatch::check(const Step& step) {
  return firstOf([&] { return checkPanel(step); }, [&] { return checkSettings(step); },
                 [&] { return checkGuide(step); }, [&] { return checkDrag(step); },
                 [&] { return checkChosenCard(step); });
}

WindowWatch::Check WindowWatch::checkPanel(const Step& step) const {
  const bool isShown =
      step.hasRun && (step.line == "reopen" || presses(step, &Labels::openWindow, "menu"));
  const auto before = step.before.frames.find("main");
  const auto after = step.after.frames.find("main");
  const bool wasShown = before != step.before.frames.end() && after != step.after.frames.end();
  return wasShown && !step.wasNotified && (isShown || pressesSettings(step)) &&
                 !CGRectEqualToRect(before->second, after->second)
             ? Check(Violation{"windows", "the panel was moved although it was shown already"})
             : std::nullopt;
}

WindowWatch::Check WindowWatch::checkSettings(const Step& step) const {
  const auto panel = step.after.frames.find("main");
  const auto settings = step.after.frames.find("settings");
  if (!pressesSettings(step) || panel == step.after.frames.end() ||
      settings == step.after.frames.end()) {
    return std::nullopt;
  }
  if (!areCentred(settings->second, panel->second)) {
    return Violation{"windows", "the settings are not in the middle of the panel"};
  }
  const Surfaces surfaces(WindowServer::current());
  return surfaces.window("settings")->parent.lock() == surfaces.window("main")
             ? std::nullopt
             : Check(Violation{"windows", "the settings would not move with the panel"});
}

WindowWatch::Check WindowWatch::checkGuide(const Step& step) const {
  const auto guide = step.after.frames.find("guide");
  const bool hasOpened = !step.before.isGuideOpen && guide != step.after.frames.end();
  // The pointer stays where it is while time passes.
  if (!hasOpened || firstWord(step.line) != "advance" || step.isStale || step.wasNotified) {
    return std::nullopt;
  }
  const CGPoint pointer = step.machine.pointer.location();
  const CGPoint middle{CGRectGetMidX(guide->second), CGRectGetMidY(guide->second)};
  const std::vector<CGRect>& displays = step.machine.displays.globalFrames();
  const bool isBeside = std::ranges::any_of(displays, [&](const CGRect& display) {
    // In window-system coordinates the top row is outside of the display.
    const bool isInTopRow = pointer.y == display.origin.y;
    return CGRectContainsPoint(display, pointer) &&
           (isInTopRow || CGRectContainsPoint(display, middle));
  });
  return displays.empty() || isBeside
             ? std::nullopt
             : Check(Violation{"guide", "it opened on another display than that of the pointer"});
}

WindowWatch::Check WindowWatch::checkDrag(const Step& step) const {
  const bool isBlocked = step.before.isModal || step.after.isModal || step.before.isMenuOpen ||
                         step.machine.mouse.cursor() == Mouse::Cursor::held;
  if (step.hasRun || isBlocked) {
    return std::nullopt;
  }
  for (const char* const surface : {"main", "settings", "guide"}) {
    if (step.line.starts_with(std::string("drag ") + surface + " ") && isInSight(surface)) {
      return Violation{"windows", std::string(surface) + " cannot be dragged"};
    }
  }
  // The pointer moves only if the icon and the list are in sight. At a display's edge it may be
  // unable to begin a drag.
  const CGPoint before = step.before.pointer;
  const CGPoint after = step.after.pointer;
  const bool hasTried = step.line == "drop icon" && (before.x != after.x || before.y != after.y) &&
                        isInSight("guide");
  return hasTried ? Check(Violation{"guide", "its icon cannot be dragged into the list"})
                  : std::nullopt;
}

WindowWatch::Check WindowWatch::checkChosenCard(const Step& step) {
  const std::string_view command = firstWord(step.line);
  const auto panel = step.after.trees.find("main");
  if (panel == step.after.trees.end() || command == "scroll" || command == "key" ||
      step.after.isQueueHeld || step.wasNotified) {
    showsChosenCard_ = false;
    return std::nullopt;
  }
  const bool hasChosen = step.before.stored.selected != step.after.stored.selected;
  showsChosenCard_ = showsChosenCard_ || hasChosen || !step.before.isMainOpen;
  const bool isSettled = command == "advance" && step.after.now - step.before.now >= scrollTime &&
                         !step.wasNotified && !step.isStale;
  std::map<bool, int> counts;
  countCards(panel->second, panel->second.frame, counts);
  // Displays that share an identifier are chosen together.
  return showsChosenCard_ && isSettled && counts[false] > 0 && counts[true] == 0
             ? Check(Violation{"panel", "the card of the chosen display is out of sight"})
             : std::nullopt;
}

}  // namespace orvane::desk::explore
