// What scripts can inspect, by name.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <nlohmann/json_fwd.hpp>

#include "Orvane/model/OrvaneStatus.hpp"
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

  /// The name of the parameter after the name, such as "SURFACE"; empty for none. In an expectation
  /// it is the first part of the path.
  std::string parameter;
  Look look;
  /// A member with counts by key, in which a missing key counts as 0; empty for none.
  std::string countingMember = {};
};

class InspectableTable {
 public:
  /// Replaces an inspectable with the same name.
  void add(const std::string& name, Inspectable inspectable) {
    inspectables_.insert_or_assign(name, std::move(inspectable));
  }
  /// Adds one without a parameter whose state can always be read. `snapshot` takes the machine, the
  /// context or nothing, and returns JSON.
  template <typename Snapshot>
  void add(const std::string& name, Snapshot snapshot, const std::string& countingMember = {}) {
    add(name, Inspectable{.parameter = {},
                          .look = [snapshot](ScriptContext& context, const std::string&,
                                             Json& shown) -> Problem {
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
  [[nodiscard]] const Inspectable* find(std::string_view name) const {
    const auto found = inspectables_.find(name);
    return found != inspectables_.end() ? &found->second : nullptr;
  }
  /// All names, separated by commas.
  [[nodiscard]] std::string names() const { return namesIn(inspectables_); }

 private:
  std::map<std::string, Inspectable, std::less<>> inspectables_;
};

/// All of the desk's inspectables.
[[nodiscard]] InspectableTable standardInspectables();

/// The status in the script language, such as "locked".
[[nodiscard]] const char* nameOf(OrvaneStatus status);

/// The status item's menu: whether it is open, and its rows, even while it is closed.
[[nodiscard]] Json statusMenuSnapshot();
[[nodiscard]] Json dockOf(const Machine& machine);
[[nodiscard]] Json pointerOf(const Machine& machine);

/// The machine itself.
void addMachineInspectables(InspectableTable& table);
/// The application's snapshot.
void addApplicationInspectables(InspectableTable& table);
/// Windows, menus and announcements.
void addWindowInspectables(InspectableTable& table);

}  // namespace orvane::desk::script
