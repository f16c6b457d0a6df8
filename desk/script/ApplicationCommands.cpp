// The commands that start, end and operate the application.
#include "desk/script/ApplicationCommands.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Orvane/guard/DockMouseGuard.hpp"

namespace orvane::desk::script {

namespace {

constexpr const char* notRunning = "the application is not running";

Complaint launch(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.application().launch();
  return std::nullopt;
}

Command whileRunning(std::string name, void (*action)(ApplicationHost&)) {
  return {std::move(name), "", [action](ScriptContext& context, Arguments& arguments) -> Complaint {
            if (Complaint complaint = arguments.finish()) {
              return complaint;
            }
            if (!context.application().isRunning()) {
              return notRunning;
            }
            action(context.application());
            return std::nullopt;
          }};
}

using Operation = Complaint (*)(ScriptContext& context, Arguments& arguments);

/// An operation of the model without arguments.
template <void (OrvaneModel::*operation)()>
Complaint call(ScriptContext& context, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  (context.application().model().*operation)();
  return std::nullopt;
}

/// An operation of the model that switches something.
template <void (OrvaneModel::*operation)(bool)>
Complaint callWithSwitch(ScriptContext& context, Arguments& arguments) {
  const bool value = arguments.onOff("on|off");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  (context.application().model().*operation)(value);
  return std::nullopt;
}

/// A setter of the model whose argument is one of the cases of a type, by its raw value.
template <typename Type, void (OrvaneModel::*setter)(Type)>
Complaint callWithCase(ScriptContext& context, Arguments& arguments) {
  std::vector<std::string_view> names;
  std::ranges::transform(Type::allCases, std::back_inserter(names),
                         [](Type value) { return value.rawValue(); });
  const std::size_t index = arguments.choice("the value", names);
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  (context.application().model().*setter)(Type::allCases[index]);
  return std::nullopt;
}

Complaint selectDisplay(ScriptContext& context, Arguments& arguments) {
  const std::string identifier = arguments.text("\"ID\"");
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  context.application().model().selectDisplay(identifier);
  return std::nullopt;
}

Complaint openDesktopAndDockSettings(ScriptContext& /*context*/, Arguments& arguments) {
  if (Complaint complaint = arguments.finish()) {
    return complaint;
  }
  DockMouseGuard::openDesktopAndDockSettings();
  return std::nullopt;
}

const std::map<std::string, Operation, std::less<>>& operations() {
  using Model = OrvaneModel;
  static const std::map<std::string, Operation, std::less<>> all = {
      {"refreshDisplays", call<&Model::refreshDisplays>},
      {"selectDisplay", selectDisplay},
      {"toggleLock", call<&Model::toggleLock>},
      {"toggleSelectedDisplayLock", call<&Model::toggleSelectedDisplayLock>},
      {"toggleHideDockOnAllDisplays", call<&Model::toggleHideDockOnAllDisplays>},
      {"restoreLockIfNeeded", call<&Model::restoreLockIfNeeded>},
      {"refreshLaunchAtLoginStatus", call<&Model::refreshLaunchAtLoginStatus>},
      {"setLaunchAtLoginEnabled", callWithSwitch<&Model::setLaunchAtLoginEnabled>},
      {"openAccessibilitySettings", call<&Model::openAccessibilitySettings>},
      {"openPrivacyPolicy", call<&Model::openPrivacyPolicy>},
      {"openSupportEmail", call<&Model::openSupportEmail>},
      {"openDesktopAndDockSettings", openDesktopAndDockSettings},
      {"appLanguage", callWithCase<OrvaneLanguage, &Model::setAppLanguage>},
      {"temporaryUnlockModifier", callWithCase<OrvaneModifier, &Model::setTemporaryUnlockModifier>},
      {"hidesDockOnAllDisplays", callWithSwitch<&Model::setHidesDockOnAllDisplays>},
  };
  return all;
}

Complaint doOperation(ScriptContext& context, Arguments& arguments) {
  const std::string name = arguments.text("OPERATION");
  const auto found = operations().find(name);
  if (found == operations().end()) {
    std::string known;
    for (const auto& [operationName, operation] : operations()) {
      known += known.empty() ? "" : ", ";
      known += operationName;
    }
    arguments.complain("there is no operation \"" + name + "\", only " + known);
    return arguments.finish();
  }
  if (!context.application().isRunning()) {
    return notRunning;
  }
  return found->second(context, arguments);
}

}  // namespace

void addApplicationCommands(CommandTable& table) {
  table.add({"launch", "", launch});
  table.add(
      whileRunning("terminate", [](ApplicationHost& application) { application.terminate(); }));
  table.add(whileRunning("crash", [](ApplicationHost& application) { application.crash(); }));
  table.add(whileRunning("reopen", [](ApplicationHost& application) { application.reopen(); }));
  table.add({"do", "OPERATION [ARGUMENT]", doOperation});
}

}  // namespace orvane::desk::script
