// What scripts can inspect, by name.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>

#include <nlohmann/json_fwd.hpp>

#include "desk/script/Arguments.hpp"
#include "desk/script/Problem.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

using Json = nlohmann::ordered_json;

/// `show` prints it, `expect` compares parts of it.
struct Inspectable {
  /// Writes its state to `shown`, with keys in the order of printing; returns why that is
  /// impossible.
  using Look = std::function<Problem(ScriptContext&, const std::string& argument, Json& shown)>;

  std::string name;
  /// The name of the parameter after the name, such as "SURFACE"; empty for none. In an expectation
  /// it is the first part of the path.
  std::string parameter = {};
  Look look;
  /// A member with counts by key, in which a missing key counts as 0; empty for none.
  std::string countingMember = {};
};

class InspectableTable {
 public:
  /// Replaces an inspectable with the same name.
  void add(Inspectable inspectable);
  /// Adds one without a parameter whose state can always be read. `snapshot` takes the machine, the
  /// context or nothing, and returns JSON.
  template <typename Snapshot>
  void add(const std::string& name, Snapshot snapshot, const std::string& countingMember = {}) {
    add({.name = name,
         .look = [snapshot](ScriptContext& context, const std::string&, Json& shown) -> Problem {
           if constexpr (std::is_invocable_v<Snapshot>) {
             shown = snapshot();
           } else if constexpr (std::is_invocable_v<Snapshot, Machine&>) {
             shown = snapshot(context.machine());
           } else {
             shown = snapshot(context);
           }
           return std::nullopt;
         },
         .countingMember = countingMember});
  }
  /// Null when there is none with this name.
  [[nodiscard]] const Inspectable* find(std::string_view name) const;
  /// All names, separated by commas.
  [[nodiscard]] std::string names() const { return namesIn(inspectables_); }

 private:
  std::map<std::string, Inspectable, std::less<>> inspectables_;
};

/// All of the desk's inspectables.
[[nodiscard]] InspectableTable standardInspectables();

}  // namespace orvane::desk::script
