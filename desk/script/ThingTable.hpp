// What a script can look at, by name. Whoever has something to show adds it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "desk/script/Thing.hpp"

namespace orvane::desk::script {

class ThingTable {
 public:
  /// A thing of the same name is replaced.
  void add(Thing thing);
  /// Null when there is none of this name.
  [[nodiscard]] const Thing* find(std::string_view name) const;
  /// All names, separated by commas.
  [[nodiscard]] std::string names() const;

 private:
  std::map<std::string, Thing, std::less<>> things_;
};

/// Everything that the desk can show.
[[nodiscard]] ThingTable standardThings();

}  // namespace orvane::desk::script
