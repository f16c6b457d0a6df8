// The table of what scripts can inspect, by name; each group of commands adds its entries.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "desk/script/Arguments.hpp"
#include "desk/script/Problem.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

using Json = nlohmann::ordered_json;

/// Something that a script can look at: `show` prints it, `expect` compares parts of it.
struct Inspectable {
  /// Puts what is to be seen into `shown`, keys in the order in which they are printed, or says why
  /// there is nothing to see.
  using Look = std::function<Problem(ScriptContext&, const std::string& argument, Json& shown)>;

  std::string name;
  /// What the word after the name stands for, such as "SURFACE"; empty when there is none. In an
  /// expectation it is the first part of the path.
  std::string parameter = {};
  Look look;
  /// A member that counts something by key: a key that it does not hold counts as 0. Empty when
  /// there is none.
  std::string countingMember = {};
};

class InspectableTable {
 public:
  /// An inspectable of the same name is replaced.
  void add(Inspectable inspectable);
  /// Null when there is none of this name.
  [[nodiscard]] const Inspectable* find(std::string_view name) const;
  /// All names, separated by commas.
  [[nodiscard]] std::string names() const { return namesIn(inspectables_); }

 private:
  std::map<std::string, Inspectable, std::less<>> inspectables_;
};

/// Everything that the desk can show.
[[nodiscard]] InspectableTable standardInspectables();

}  // namespace orvane::desk::script
