// The sizes of images and symbols, which the platform provides.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Rect.hpp"

namespace orvane::ui {

/// An unset function means that there are no images, or no symbols.
struct ImageSource {
  /// The size in points of an image of the application's resources; none for an unknown name.
  std::function<std::optional<Size>(const std::string& name)> imageSize;
  /// The size in points of a symbol in the font's size and weight; none for an unknown name.
  std::function<std::optional<Size>(const std::string& name, const Font& font)> symbolSize;

  [[nodiscard]] std::optional<Size> image(const std::string& name) const {
    return imageSize ? imageSize(name) : std::nullopt;
  }
  [[nodiscard]] std::optional<Size> symbol(const std::string& name, const Font& font) const {
    return symbolSize ? symbolSize(name, font) : std::nullopt;
  }
};

}  // namespace orvane::ui
