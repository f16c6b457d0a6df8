// The sizes of images and symbols, which the platform provides.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// By default it has no images or symbols.
struct ImageSource {
  using OptionalSize = std::optional<Size>;

  /// The size in points of an image of the application's resources; none for an unknown name.
  std::function<OptionalSize(const std::string& name)> imageSize = [](const std::string&) {
    return OptionalSize();
  };
  /// The size in points of a symbol in the font's size and weight; none for an unknown name.
  std::function<OptionalSize(const std::string& name, const Font& font)> symbolSize =
      [](const std::string&, const Font&) { return OptionalSize(); };
};

}  // namespace orvane::ui
