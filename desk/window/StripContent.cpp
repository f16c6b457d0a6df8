// Collects the strip's texts from the session.
#include "desk/window/StripContent.hpp"

#include "desk/window/WindowCommands.hpp"

namespace orvane::desk {

namespace {

std::string guardText(const DeskSession& session) {
  if (!session.application().isRunning()) {
    return "Not running";
  }
  switch (session.application().model().status()) {
    case OrvaneStatus::unlocked:
      return "Unlocked";
    case OrvaneStatus::locked:
      return "Locked";
    case OrvaneStatus::temporarilyUnlocked:
      return "Unlocked for now";
    case OrvaneStatus::needsCheck:
      return "Needs a check";
    case OrvaneStatus::targetMissing:
      return "Display missing";
    case OrvaneStatus::permissionRequired:
      return "No permission";
  }
  return {};
}

}  // namespace

StripContent StripContent::of(const DeskSession& session, bool isMouseHeld) {
  StripContent content;
  for (const WindowCommand& command : windowCommands()) {
    content.keys.push_back({std::string(1, command.key), command.label, command.state(session),
                            command.isOn(session)});
  }
  const ApplicationHost& application = session.application();
  const std::string blocked =
      application.isRunning() ? std::to_string(application.model().guardService().blockedCount())
                              : "0";
  content.figures = {{"Dock on", session.dockDisplayName()},
                     {"Orvane", guardText(session)},
                     {"Moved back", blocked},
                     {"Events per second", std::to_string(session.eventsPerSecond())}};
  content.hint = isMouseHeld ? "The mouse is held \u00b7 Escape gives it back"
                             : "Click a screen to hold the mouse";
  if (!application.messages().empty()) {
    content.message = application.messages().back().text;
  }
  content.isDark = session.machine().appearance.isDark;
  return content;
}

}  // namespace orvane::desk
