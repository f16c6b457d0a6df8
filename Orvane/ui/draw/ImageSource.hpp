// Sizes of images and symbols by name; both functions are given by the platform.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Size.hpp"

namespace orvane::ui {

struct ImageSource {
  // The size in points of an image of the application's resources; empty when there is none. An
  // unset function means that there are no images.
  std::function<std::optional<Size>(const std::string& name)> imageSize;
  // The size in points of a symbol drawn at the font's size and weight; empty when unknown.
  std::function<std::optional<Size>(const std::string& name, const Font& font)> symbolSize;

  std::optional<Size> image(const std::string& name) const {
    return imageSize ? imageSize(name) : std::nullopt;
  }
  std::optional<Size> symbol(const std::string& name, const Font& font) const {
    return symbolSize ? symbolSize(name, font) : std::nullopt;
  }
};

}  // namespace orvane::ui
