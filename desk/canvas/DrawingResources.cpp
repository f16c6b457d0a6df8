// The sizes of pictures and symbols for the view kit.
#include "desk/canvas/DrawingResources.hpp"

namespace orvane::desk {

ui::ImageSource DrawingResources::imageSource() {
  return {
      [this](const std::string& name) { return images.size(name); },
      [this](const std::string& name, const ui::Font& font) { return symbols.size(name, font); }};
}

}  // namespace orvane::desk
