// The parts of the machine that a script can inspect.
#include <optional>
#include <string>
#include <variant>

#include <nlohmann/json.hpp>

#include "desk/script/Inspectables.hpp"
#include "desk/script/JsonText.hpp"

namespace orvane::desk::script {

namespace {

Json numberOrNull(const std::optional<std::uint32_t>& number) {
  return number ? Json(*number) : Json(nullptr);
}

Json openedOf(const Machine& machine) {
  Json list = Json::array();
  for (const Links::Opened& link : machine.links.opened()) {
    list.push_back(Json{{"url", link.url}, {"accepted", link.wasAccepted}});
  }
  return list;
}

Json clockOf(const Machine& machine) {
  const std::int64_t now = machine.clock.now();
  constexpr std::int64_t calendarStart =
      Clock::calendarSecondsAtStart * Clock::nanosecondsPerSecond;
  return {{"media", jsonSeconds(machine.clock.mediaNanoseconds())},
          {"now", jsonSeconds(now)},
          {"calendar", jsonSeconds(now + calendarStart)}};
}

Json defaultsOf(const Machine& machine) {
  Json object = Json::object();
  for (const auto& [key, value] : machine.userDefaults.values()) {
    object[key] = std::visit([](const auto& content) { return Json(content); }, value);
  }
  return object;
}

Json faultsOf(const Machine& machine) {
  return {{"count", machine.faults.count()}, {"texts", machine.faults.texts()}};
}

Json countersOf(const Machine& machine) {
  return {{"hardwareMovements", machine.counters.hardwareMovements},
          {"relocatedEvents", machine.counters.relocatedEvents},
          {"droppedEvents", machine.counters.droppedEvents},
          {"tapDeliveries", machine.eventTaps.deliveryCount()},
          {"displayChanges", machine.displays.changeCount()},
          {"timers", machine.runLoop.timerCount()},
          {"timerFires", machine.runLoop.timerFireCount()},
          {"tasks", machine.runLoop.taskCount()},
          {"defaultsWrites", machine.userDefaults.writeCount()},
          {"liveObjects", machine.objects.liveCount()}};
}

}  // namespace

Json dockOf(const Machine& machine) {
  Json reveals = Json::object();
  for (const auto& [number, count] : machine.dock.reveals()) {
    reveals[std::to_string(number)] = count;
  }
  return {{"edge", nameOf(machine.dock.edge())},
          {"autohide", machine.dock.autoHides()},
          {"display", numberOrNull(machine.dock.displayNumber())},
          {"visible", machine.dock.isVisible()},
          {"reveals", reveals}};
}

Json pointerOf(const Machine& machine) {
  const CGPoint place = machine.pointer.location();
  const std::optional<std::size_t> index = machine.pointer.displayIndex();
  return {{"x", place.x},
          {"y", place.y},
          {"display", index ? Json(machine.displays.all()[*index].number) : Json(nullptr)}};
}

void addMachineInspectables(InspectableTable& table) {
  table.add("dock", dockOf, "reveals");
  table.add("pointer", pointerOf);
  table.add("opened", openedOf);
  table.add("clock", clockOf);
  table.add("defaults", defaultsOf);
  table.add("faults", faultsOf);
  table.add("counters", countersOf);
}

}  // namespace orvane::desk::script
