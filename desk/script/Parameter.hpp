// Parameter declares an argument of a command: its usage text and its parser.
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
  /// The usage text, such as "X Y" or "on|off".
  std::string usage;
  /// Parses it; the arguments keep the first problem.
  std::function<Value(ScriptContext&, Arguments&)> read;
};

/// The parameters of a command, in the order in which they are read.
template <typename... Values>
[[nodiscard]] std::tuple<Parameter<Values>...> takes(Parameter<Values>... parameters) {
  return {std::move(parameters)...};
}

/// `name` names the argument in messages; it is also the usage text if that is empty.
[[nodiscard]] Parameter<std::string> text(std::string name, std::string usage = {});
/// All remaining words, separated by blanks; may be empty.
[[nodiscard]] Parameter<std::string> restOfLine(const std::string& usage);
[[nodiscard]] Parameter<double> coordinate(const std::string& name);
[[nodiscard]] Parameter<std::uint32_t> displayNumber(const std::string& name);
/// "X Y", in global coordinates.
[[nodiscard]] Parameter<CGPoint> point();
/// One of several words. `name` names the argument in messages; the usage does if it is empty.
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
/// True for `yes`, false for `no`.
[[nodiscard]] Parameter<bool> either(const std::string& usage, std::string_view no,
                                     std::string_view yes);
[[nodiscard]] Parameter<bool> onOff();

}  // namespace orvane::desk::script
