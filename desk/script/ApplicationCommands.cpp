// The commands that start, end and operate the application.
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "Orvane/guard/DockMouseGuard.hpp"
#include "desk/script/Commands.hpp"

namespace orvane::desk::script {

namespace {

constexpr const char* notRunning = "the application is not running";

/// An action that requires a running application.
auto whileRunning(void (ApplicationHost::*action)()) {
  return [action](ScriptContext& context) -> Problem {
    if (!context.application().isRunning()) {
      return notRunning;
    }
    (context.application().*action)();
    return std::nullopt;
  };
}

/// A choice among the cases of an enumeration, by raw value.
template <typename Type>
Parameter<Type> oneOf() {
  std::vector<std::pair<std::string_view, Type>> values;
  values.reserve(Type::allCases.size());
  for (const Type value : Type::allCases) {
    values.emplace_back(value.rawValue(), value);
  }
  return choice<Type>("VALUE", std::move(values), "the value");
}

/// An operation of the model.
template <typename... Values>
auto onModel(void (OrvaneModel::*operation)(Values...)) {
  return [operation](ScriptContext& context, const std::decay_t<Values>&... values) {
    (context.application().model().*operation)(values...);
  };
}

/// By name, with their parameters.
const CommandTable& operations() {
  using Model = OrvaneModel;
  static const CommandTable all = [] {
    CommandTable table;
    table.add("refreshDisplays", takes(), onModel(&Model::refreshDisplays));
    table.add("selectDisplay", takes(text("\"ID\"")), onModel(&Model::selectDisplay));
    table.add("toggleLock", takes(), onModel(&Model::toggleLock));
    table.add("toggleSelectedDisplayLock", takes(), onModel(&Model::toggleSelectedDisplayLock));
    table.add("toggleHideDockOnAllDisplays", takes(), onModel(&Model::toggleHideDockOnAllDisplays));
    table.add("restoreLockIfNeeded", takes(), onModel(&Model::restoreLockIfNeeded));
    table.add("refreshLaunchAtLoginStatus", takes(), onModel(&Model::refreshLaunchAtLoginStatus));
    table.add("setLaunchAtLoginEnabled", takes(onOff()), onModel(&Model::setLaunchAtLoginEnabled));
    table.add("openAccessibilitySettings", takes(), onModel(&Model::openAccessibilitySettings));
    table.add("openPrivacyPolicy", takes(), onModel(&Model::openPrivacyPolicy));
    table.add("openSupportEmail", takes(), onModel(&Model::openSupportEmail));
    table.add("openDesktopAndDockSettings", takes(),
              [](Machine&) { DockMouseGuard::openDesktopAndDockSettings(); });
    table.add("appLanguage", takes(oneOf<OrvaneLanguage>()), onModel(&Model::setAppLanguage));
    table.add("temporaryUnlockModifier", takes(oneOf<OrvaneModifier>()),
              onModel(&Model::setTemporaryUnlockModifier));
    table.add("hidesDockOnAllDisplays", takes(onOff()), onModel(&Model::setHidesDockOnAllDisplays));
    return table;
  }();
  return all;
}

Problem doOperation(ScriptContext& context, Arguments& arguments) {
  const std::string name = arguments.text("OPERATION");
  const auto found = operations().all().find(name);
  if (found == operations().all().end()) {
    arguments.report("there is no operation \"" + name + "\", only " + namesIn(operations().all()));
    return arguments.finish();
  }
  return context.application().isRunning() ? found->second.run(context, arguments)
                                           : Problem(notRunning);
}

}  // namespace

void addApplicationCommands(CommandTable& table) {
  table.add("launch", takes(), [](ScriptContext& context) { context.application().launch(); });
  table.add("terminate", takes(), whileRunning(&ApplicationHost::terminate));
  table.add("crash", takes(), whileRunning(&ApplicationHost::crash));
  table.add("reopen", takes(), whileRunning(&ApplicationHost::reopen));
  table.add({"do", "OPERATION [ARGUMENT]", doOperation});
}

}  // namespace orvane::desk::script
