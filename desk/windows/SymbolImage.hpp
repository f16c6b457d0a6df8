// SymbolImage is an image of a system symbol, with the attributes that the application has set.
#pragma once

#include <string>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

struct SymbolImage {
  std::string name;
  std::string accessibilityDescription;
  /// In points.
  double pointSize = 0;
  bool isTemplate = false;
  /// In points.
  CGSize size{};
};

}  // namespace orvane::desk
