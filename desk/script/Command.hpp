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
  /// One word, or two when the first one begins a family, such as "display attach".
  std::string name;
  /// The shape of its arguments, for people; empty when it has none.
  std::string usage;
  /// Reads all arguments before it does anything; says what is wrong when it cannot be carried out.
  /// What falls due at the same instant is served by whoever calls it.
  std::function<Problem(ScriptContext&, Arguments&)> run;
};

/// Calls the action on the machine, or on the whole context when that is what it takes.
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

/// A command with those parameters. The action gets the machine, or the context, and their values,
/// none of them wrong; it returns nothing, or what is wrong when it cannot be carried out.
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
            // What stands in braces is read from left to right.
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
