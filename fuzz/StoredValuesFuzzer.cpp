// With any values in the user defaults and the Dock's preferences, of any type, the application
// starts, works, and quits without a leak.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include "Orvane/base/Require.hpp"
#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {
namespace {

constexpr std::size_t longestText = 64;

PropertyValue anyValue(FuzzedDataProvider& data) {
  switch (data.ConsumeIntegralInRange(0, 3)) {
    case 0:
      return data.ConsumeBool();
    case 1:
      return data.ConsumeFloatingPoint<double>();
    case 2:
      return data.ConsumeRandomLengthString(longestText);
    default:
      return std::string(data.PickValueInArray({"left", "right", "top", "bottom", "option", "shift",
                                                "english", "chinese", "system", "1", "2", ""}));
  }
}

void storeSettings(FuzzedDataProvider& data, Machine& machine) {
  for (const char* const key : {"selectedDisplayID", "isOrvaneEnabled", "hidesDockOnAllDisplays",
                                "temporaryUnlockModifier", "appLanguage"}) {
    if (data.ConsumeBool()) {
      machine.userDefaults.set(key, anyValue(data));
    }
  }
  if (data.ConsumeBool()) {
    const auto host = data.ConsumeBool() ? Preferences::Host::any : Preferences::Host::current;
    machine.preferences.set({Dock::preferencesDomain, Preferences::User::current, host},
                            Dock::orientationKey, anyValue(data));
  }
}

void attachDisplays(FuzzedDataProvider& data, Machine& machine) {
  const int count = data.ConsumeIntegralInRange(0, 3);
  for (int index = 0; index < count; ++index) {
    Display display;
    display.number = static_cast<std::uint32_t>(index + 1);
    display.name = data.ConsumeRandomLengthString(longestText);
    if (data.ConsumeBool()) {
      display.uuid = data.ConsumeRandomLengthString(longestText);
    }
    display.frame = CGRectMake(
        data.ConsumeIntegralInRange(-4000, 4000), data.ConsumeIntegralInRange(-4000, 4000),
        data.ConsumeIntegralInRange(1, 4000), data.ConsumeIntegralInRange(1, 4000));
    display.hasNumberInDescription = data.ConsumeBool();
    // A real machine could not have a refused display either.
    static_cast<void>(machine.displays.attach(display));
  }
}

void useApplication(FuzzedDataProvider& data, Machine& machine, OrvaneModel& model) {
  model.refreshDisplays();
  static_cast<void>(model.status());
  if (data.ConsumeBool()) {
    model.toggleSelectedDisplayLock();
  }
  if (data.ConsumeBool()) {
    model.toggleHideDockOnAllDisplays();
  }
  machine.mouse.moveBy(data.ConsumeIntegralInRange(-4000, 4000),
                       data.ConsumeIntegralInRange(-4000, 4000));
  machine.advance(2);
  static_cast<void>(model.status());
}

}  // namespace
}  // namespace orvane::desk

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace orvane::desk;
  FuzzedDataProvider data(bytes, size);
  MachineScope scope;
  {
    Machine& machine = scope.machine();
    ApplicationHost application(machine);
    storeSettings(data, machine);
    attachDisplays(data, machine);
    machine.permission.setTrusted(data.ConsumeBool());
    application.launch();
    useApplication(data, machine, application.model());
    application.terminate();
  }
  orvane::require(scope.end().empty(), "the application left something behind");
  return 0;
}
