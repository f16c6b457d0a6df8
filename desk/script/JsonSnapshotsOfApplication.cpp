// The application's state as JSON.
#include <cmath>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "Orvane/geometry/DisplaySnapshot.hpp"
#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/script/JsonSnapshots.hpp"
#include "desk/script/JsonText.hpp"

namespace orvane::desk::script::JsonSnapshots {

namespace {

const char* nameOf(OrvaneStatus status) {
  switch (status) {
    case OrvaneStatus::unlocked:
      return "unlocked";
    case OrvaneStatus::locked:
      return "locked";
    case OrvaneStatus::temporarilyUnlocked:
      return "temporarilyUnlocked";
    case OrvaneStatus::needsCheck:
      return "needsCheck";
    case OrvaneStatus::targetMissing:
      return "targetMissing";
    case OrvaneStatus::permissionRequired:
      break;
  }
  return "permissionRequired";
}

template <typename T>
Json valueOrNull(const std::optional<T>& value) {
  return value ? Json(*value) : Json(nullptr);
}

Json zones(const DockMouseGuard& guard) {
  Json list = Json::array();
  for (const TriggerZone& zone : guard.cachedTriggerZones()) {
    list.push_back(Json{{"rect", rectangle(zone.rect)},
                        {"nudge", Json{zone.nudgeVector.dx, zone.nudgeVector.dy}}});
  }
  return list;
}

/// Seconds between the launch and a moment of the calendar clock. That clock is a little coarser
/// than a microsecond, so each end is brought to whole microseconds before they are compared.
double secondsSinceLaunch(CFAbsoluteTime moment, std::int64_t launchedAtNanoseconds) {
  const double sinceStart = moment - static_cast<double>(Clock::calendarSecondsAtStart);
  const std::int64_t microseconds = std::llround(sinceStart * 1e6);
  const std::int64_t launchMicroseconds = (launchedAtNanoseconds + 500) / 1000;
  return jsonSeconds((microseconds - launchMicroseconds) * 1000);
}

Json guardJson(const DockMouseGuard& guard, const Machine& machine) {
  return {{"running", guard.isRunning()},
          {"zones", zones(guard)},
          {"blockedCount", guard.blockedCount()},
          {"isTemporarilyUnlocked", guard.isTemporarilyUnlocked()},
          {"blocksAllDisplays", guard.blocksAllDisplays()},
          {"lockedDisplayIdentifier", guard.lockedDisplayIdentifier()},
          {"overrideModifier", guard.overrideModifier().rawValue()},
          {"observing", guard.isObservingScreens()},
          {"taps", machine.eventTaps.aliveCount()},
          {"tapEnabled", machine.eventTaps.isAnyEnabled()}};
}

}  // namespace

Json displays() {
  Json list = Json::array();
  for (const DisplaySnapshot& display : DockMouseGuard::displays()) {
    list.push_back(Json{{"id", display.id},
                        {"matchingIdentifiers", display.matchingIdentifiers},
                        {"name", display.name},
                        {"frame", rectangle(display.frame)},
                        {"cgFrame", rectangle(display.cgFrame)},
                        {"isMain", display.isMain},
                        {"isBuiltIn", display.isBuiltIn}});
  }
  return list;
}

Json guard(const ApplicationHost& application, const Machine& machine) {
  if (application.isRunning()) {
    return guardJson(application.model().guardService(), machine);
  }
  return guardJson(DockMouseGuard(), machine);
}

Json messages(const ApplicationHost& application) {
  constexpr std::int64_t mediaStart = Clock::mediaSecondsAtStart * Clock::nanosecondsPerSecond;
  Json list = Json::array();
  for (const GuardMessage& message : application.messages()) {
    list.push_back(
        Json{{"at", jsonSeconds(message.atNanoseconds + mediaStart)}, {"text", message.text}});
  }
  return list;
}

Json model(const ApplicationHost& application) {
  const OrvaneModel& model = application.model();
  return {{"selectedDisplayID", valueOrNull(model.selectedDisplayID().value())},
          {"hasAccessibilityPermission", model.hasAccessibilityPermission().value()},
          {"isTemporarilyUnlocked", model.isTemporarilyUnlocked().value()},
          {"lastRestoreSucceeded", valueOrNull(model.lastRestoreSucceeded().value())},
          {"lastCheckedAt",
           secondsSinceLaunch(model.lastCheckedAt().value(), application.launchedAtNanoseconds())},
          {"appLanguage", model.appLanguage().value().rawValue()},
          {"temporaryUnlockModifier", model.temporaryUnlockModifier().value().rawValue()},
          {"hidesDockOnAllDisplays", model.hidesDockOnAllDisplays().value()},
          {"launchAtLoginEnabled", model.launchAtLoginEnabled().value()},
          {"launchAtLoginRequiresApproval", model.launchAtLoginRequiresApproval().value()},
          {"launchAtLoginErrorMessage", valueOrNull(model.launchAtLoginErrorMessage().value())},
          {"status", nameOf(model.status())}};
}

}  // namespace orvane::desk::script::JsonSnapshots
