// ModelFixture gives each test a trusted machine with two displays and the application's model.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/permission/OrvaneAccessibilityPermission.hpp"
#include "tests/support/GeometryPrinting.hpp"
#include "tests/support/MachineFixture.hpp"
#include "tests/support/TestDisplays.hpp"

namespace orvane {

/// The laptop is display 1 and the main one; the monitor, display 2, is at its right.
class ModelFixture : public desk::MachineFixture {
 protected:
  using Value = desk::PropertyValue;
  using Writes = std::map<std::string, std::int64_t>;

  ModelFixture() {
    desk::attach(machine, desk::laptop());
    desk::attach(machine, desk::monitorAtTheRight());
    machine.permission.setTrusted(true);
    notePrompts();
  }

  /// Creates the model as the application does at launch.
  OrvaneModel& launch() {
    model = std::make_unique<OrvaneModel>();
    model->restoreLockIfNeeded();
    machine.runDue();
    return *model;
  }
  /// Ends the process, and begins the next one.
  OrvaneModel& relaunch() {
    quit();
    machine.process.start();
    notePrompts();
    return launch();
  }
  void quit() {
    model.reset();
    machine.process.end();
  }
  /// Launches and pins the Dock to the laptop.
  OrvaneModel& launchPinned() {
    launch().toggleSelectedDisplayLock();
    machine.runDue();
    return *model;
  }
  OrvaneModel& launchPreventing() {
    launch().toggleHideDockOnAllDisplays();
    machine.runDue();
    return *model;
  }

  [[nodiscard]] std::optional<Value> stored(std::string_view key) const {
    return machine.userDefaults.value(key);
  }
  void store(std::string_view key, Value value) { machine.userDefaults.set(key, std::move(value)); }

  /// The keys that the action wrote or removed, with counts.
  template <typename Action>
  Writes writesOf(Action action) {
    const Writes before = writeCounts();
    action();
    Writes during;
    for (const auto& [key, count] : writeCounts()) {
      const auto earlier = before.find(key);
      const std::int64_t added = count - (earlier == before.end() ? 0 : earlier->second);
      if (added > 0) {
        during.emplace(key, added);
      }
    }
    return during;
  }

  /// Holds the modifier and moves the pointer, so that the guard notices.
  void moveHolding(std::uint64_t flags) {
    machine.mouse.post({500, 500}, flags);
    machine.runDue();
  }

  /// Whether the tap with this identity still exists.
  [[nodiscard]] bool hasTap(std::uint64_t identity) {
    return machine.eventTaps.find(identity) != nullptr;
  }

  std::vector<std::function<void()>> prompts;
  std::unique_ptr<OrvaneModel> model;

 private:
  void notePrompts() {
    OrvaneAccessibilityPermission::setPrompt(
        [this](std::function<void()> onGranted) { prompts.push_back(std::move(onGranted)); });
  }
  [[nodiscard]] Writes writeCounts() const {
    Writes counts;
    for (const char* const key : {"selectedDisplayID", "isOrvaneEnabled", "hidesDockOnAllDisplays",
                                  "temporaryUnlockModifier", "appLanguage"}) {
      counts.emplace(key, machine.userDefaults.writeCount(key));
    }
    std::int64_t known = 0;
    for (const auto& [key, count] : counts) {
      known += count;
    }
    counts.emplace("any other key", machine.userDefaults.writeCount() - known);
    return counts;
  }
};

}  // namespace orvane
