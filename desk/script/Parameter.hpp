// Parameter is one argument of a command as the table of commands declares it: how it is written,
// and how it is read.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "desk/script/Arguments.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

template <typename Value>
struct Parameter {
  /// How it is written, for people: "X Y", "on|off".
  std::string usage;
  /// Takes it from the arguments, which keep the first problem.
  std::function<Value(ScriptContext&, Arguments&)> read;
};

/// The parameters of a command, in the order in which they are read.
template <typename... Values>
[[nodiscard]] std::tuple<Parameter<Values>...> takes(Parameter<Values>... parameters) {
  return {std::move(parameters)...};
}

/// `name` stands for the argument in messages and, without a usage, in the usage.
[[nodiscard]] Parameter<std::string> text(std::string name, std::string usage = {});
[[nodiscard]] Parameter<double> coordinate(const std::string& name);
[[nodiscard]] Parameter<std::uint32_t> displayNumber(const std::string& name);
/// "X Y", in global coordinates.
[[nodiscard]] Parameter<CGPoint> point();
/// One of the words. `name` stands for it in messages; without one, the usage does.
template <typename Value>
[[nodiscard]] Parameter<Value> choice(const std::string& usage,
                                      std::vector<std::pair<std::string_view, Value>> values,
                                      const std::string& name = {}) {
  return {usage, [name = name.empty() ? usage : name, values = std::move(values)](
                     ScriptContext&, Arguments& arguments) {
            std::vector<std::string_view> words;
            words.reserve(values.size());
            for (const auto& [word, value] : values) {
              words.push_back(word);
            }
            return values[arguments.choice(name, words)].second;
          }};
}
/// Whether it is `yes` and not `no`.
[[nodiscard]] Parameter<bool> either(const std::string& usage, std::string_view no,
                                     std::string_view yes);
[[nodiscard]] Parameter<bool> onOff();

}  // namespace orvane::desk::script
