// ModelFixture gives each test a trusted machine with two displays and the application's model.
#pragma once

#include <array>
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
    OrvaneAccessibilityPermission::setPrompt(
        [this](std::function<void()> onGranted) { prompts.push_back(std::move(onGranted)); });
  }

  /// Creates the model as the application does at launch.
  OrvaneModel& launch() {
    model = std::make_unique<OrvaneModel>();
    model->restoreLockIfNeeded();
    machine.runDue();
    return *model;
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

  /// The keys that the action wrote or removed, with counts.
  template <typename Action>
  Writes writesOf(Action action) {
    constexpr std::array keys{"selectedDisplayID", "isOrvaneEnabled", "hidesDockOnAllDisplays",
                              "temporaryUnlockModifier", "appLanguage"};
    Writes writes;
    for (const char* const key : keys) {
      writes[key] = -machine.userDefaults.writeCount(key);
    }
    action();
    for (const char* const key : keys) {
      writes[key] += machine.userDefaults.writeCount(key);
    }
    std::erase_if(writes, [](const auto& write) { return write.second == 0; });
    return writes;
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
};

}  // namespace orvane
