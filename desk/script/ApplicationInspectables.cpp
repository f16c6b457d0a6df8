// The parts of the application that a script can inspect.
#include <cmath>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "Orvane/geometry/DisplaySnapshot.hpp"
#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/script/Inspectables.hpp"
#include "desk/script/JsonText.hpp"

namespace orvane::desk::script {

namespace {

const char* nameOf(PermissionGuideState state) {
  switch (state) {
    case PermissionGuideState::checking:
      return "checking";
    case PermissionGuideState::success:
      return "success";
    case PermissionGuideState::timeout:
      return "timeout";
  }
  return "";
}

template <typename T>
Json valueOrNull(const std::optional<T>& value) {
  return value ? Json(*value) : Json(nullptr);
}

Json zones(const GuardSnapshot& guard) {
  Json list = Json::array();
  for (const TriggerZone& zone : guard.zones) {
    list.push_back(Json{{"rect", jsonRectangle(zone.rect)},
                        {"nudge", Json{zone.nudgeVector.dx, zone.nudgeVector.dy}}});
  }
  return list;
}

/// Seconds from the launch to a time of the calendar clock. That clock is slightly coarser than a
/// microsecond, so both times are rounded to microseconds first.
double secondsSinceLaunch(CFAbsoluteTime moment, std::int64_t launchedAtNanoseconds) {
  const double sinceStart = moment - static_cast<double>(Clock::calendarSecondsAtStart);
  const std::int64_t microseconds = std::llround(sinceStart * 1e6);
  const std::int64_t launchMicroseconds = (launchedAtNanoseconds + 500) / 1000;
  return jsonSeconds((microseconds - launchMicroseconds) * 1000);
}

/// As the application would list them now, whether it is running or not.
Json displaysOfGuard() {
  Json shown = Json::array();
  for (const DisplaySnapshot& display : DockMouseGuard::displays()) {
    shown.push_back(Json{{"id", display.id},
                         {"matchingIdentifiers", display.matchingIdentifiers},
                         {"name", display.name},
                         {"frame", jsonRectangle(display.frame)},
                         {"cgFrame", jsonRectangle(display.cgFrame)},
                         {"isMain", display.isMain},
                         {"isBuiltIn", display.isBuiltIn}});
  }
  return shown;
}

/// While the application is not running, the state of a new guard.
Json guardOf(const ScriptContext& context) {
  const GuardSnapshot guard = context.application().snapshot().guard;
  const EventTaps& taps = context.machine().eventTaps;
  return {{"running", guard.isRunning},
          {"zones", zones(guard)},
          {"blockedCount", guard.blockedCount},
          {"isTemporarilyUnlocked", guard.isTemporarilyUnlocked},
          {"blocksAllDisplays", guard.blocksAllDisplays},
          {"lockedDisplayIdentifier", guard.lockedDisplayIdentifier},
          {"overrideModifier", guard.overrideModifier.rawValue()},
          {"observing", guard.isObservingScreens},
          {"taps", taps.aliveCount()},
          {"tapEnabled", taps.isAnyEnabled()}};
}

Json messagesOf(const ScriptContext& context) {
  constexpr std::int64_t mediaStart = Clock::mediaSecondsAtStart * Clock::nanosecondsPerSecond;
  Json shown = Json::array();
  for (const GuardMessage& message : context.application().messages()) {
    shown.push_back(
        Json{{"at", jsonSeconds(message.atNanoseconds + mediaStart)}, {"text", message.text}});
  }
  return shown;
}

Problem lookAtModel(ScriptContext& context, const std::string&, Json& shown) {
  const ApplicationHost& application = context.application();
  if (!application.isRunning()) {
    return "the application is not running";
  }
  const OrvaneSnapshot now = application.snapshot();
  shown = {
      {"selectedDisplayID", valueOrNull(now.selectedDisplayID)},
      {"hasAccessibilityPermission", now.hasAccessibilityPermission},
      {"isTemporarilyUnlocked", now.isTemporarilyUnlocked},
      {"lastRestoreSucceeded", valueOrNull(now.lastRestoreSucceeded)},
      {"lastCheckedAt", secondsSinceLaunch(now.lastCheckedAt, application.launchedAtNanoseconds())},
      {"appLanguage", now.appLanguage.rawValue()},
      {"temporaryUnlockModifier", now.temporaryUnlockModifier.rawValue()},
      {"hidesDockOnAllDisplays", now.hidesDockOnAllDisplays},
      {"launchAtLoginEnabled", now.launchAtLoginEnabled},
      {"launchAtLoginRequiresApproval", now.launchAtLoginRequiresApproval},
      {"launchAtLoginErrorMessage", valueOrNull(now.launchAtLoginErrorMessage)},
      {"status", script::nameOf(now.status)}};
  return std::nullopt;
}

Json guideOf(const ScriptContext& context) {
  const auto guide = context.application().snapshot().guide;
  return {
      {"state", nameOf(guide.state)}, {"visible", guide.isVisible}, {"polling", guide.isPolling}};
}

}  // namespace

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

void addApplicationInspectables(InspectableTable& table) {
  table.add("displays", displaysOfGuard);
  table.add("guard", guardOf);
  table.add("guide", guideOf);
  table.add("messages", messagesOf);
  table.add("model", Inspectable{.parameter = {}, .look = lookAtModel});
}

}  // namespace orvane::desk::script
