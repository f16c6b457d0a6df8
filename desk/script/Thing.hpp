// Thing is something that a script can look at: `show` prints it, `expect` compares parts of it.
#pragma once

#include <functional>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "desk/script/Complaint.hpp"
#include "desk/script/ScriptContext.hpp"

namespace orvane::desk::script {

using Json = nlohmann::ordered_json;

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

}  // namespace orvane::desk::script
