// What a script can look at, by name. Whoever has something to show adds it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include <nlohmann/json_fwd.hpp>

#include "desk/script/Complaint.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

using Json = nlohmann::ordered_json;

/// Something that a script can look at: `show` prints it, `expect` compares parts of it.
struct Thing {
  /// Puts what is to be seen into `shown`, keys in the order in which they are printed, or says why
  /// there is nothing to see.
  using Look = std::function<Complaint(ScriptContext&, const std::string& argument, Json& shown)>;

  std::string name;
  /// What the word after the name stands for, such as "SURFACE"; empty when there is none. In an
  /// expectation it is the first part of the path.
  std::string parameter = {};
  Look look;
  /// A member of the thing that counts something by key: a key that it does not hold counts as 0.
  /// Empty when there is none.
  std::string countingMember = {};
};

class ThingTable {
 public:
  /// A thing of the same name is replaced.
  void add(Thing thing);
  /// Null when there is none of this name.
  [[nodiscard]] const Thing* find(std::string_view name) const;
  /// All names, separated by commas.
  [[nodiscard]] std::string names() const { return namesIn(things_); }

 private:
  std::map<std::string, Thing, std::less<>> things_;
};

/// Everything that the desk can show.
[[nodiscard]] ThingTable standardThings();

}  // namespace orvane::desk::script
