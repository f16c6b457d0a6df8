// PropertyValue is a value as preferences and user defaults store it.
#pragma once

#include <string>
#include <variant>

namespace orvane::desk {

using PropertyValue = std::variant<std::string, bool, double>;

}  // namespace orvane::desk
