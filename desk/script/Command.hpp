// Command is one command of the script language.
#pragma once

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "desk/script/Arguments.hpp"
#include "desk/script/Parameter.hpp"
#include "desk/script/Problem.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

struct Command {
  /// One word, or two for a command of a family, such as "display attach".
  std::string name;
  /// The usage of its arguments, as shown in errors; empty without arguments.
  std::string usage;
  /// Reads all arguments before it has any effect. Returns why it failed. The caller runs the tasks
  /// that are due afterwards.
  std::function<Problem(ScriptContext&, Arguments&)> run;
};

/// Calls the action with the context or with its machine, depending on the parameter type.
template <typename Action, typename... Values>
Problem carryOut(const Action& action, ScriptContext& context, Values&&... values) {
  const auto call = [&] {
    if constexpr (std::is_invocable_v<const Action&, Machine&, Values...>) {
      return action(context.machine(), std::forward<Values>(values)...);
    } else {
      return action(context, std::forward<Values>(values)...);
    }
  };
  if constexpr (std::is_void_v<decltype(call())>) {
    call();
    return std::nullopt;
  } else {
    return call();
  }
}

/// A command with these parameters. The action is called with the machine or the context, and valid
/// values; it returns nothing, or a Problem.
template <typename... Values, typename Action>
[[nodiscard]] Command makeCommand(std::string name, std::tuple<Parameter<Values>...> parameters,
                                  Action action) {
  std::string usage;
  std::apply(
      [&usage](const auto&... parameter) {
        ((usage += (usage.empty() ? "" : " ") + parameter.usage), ...);
      },
      parameters);
  return {std::move(name), std::move(usage),
          [parameters = std::move(parameters), action](ScriptContext& context,
                                                       Arguments& arguments) -> Problem {
            // Braces guarantee evaluation from left to right.
            auto values = std::apply(
                [&](const auto&... parameter) {
                  return std::tuple<Values...>{parameter.read(context, arguments)...};
                },
                parameters);
            if (Problem problem = arguments.finish()) {
              return problem;
            }
            return std::apply(
                [&](Values&... value) { return carryOut(action, context, std::move(value)...); },
                values);
          }};
}

}  // namespace orvane::desk::script
