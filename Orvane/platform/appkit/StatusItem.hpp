// An item of the system's status bar; NSStatusItem on a Mac.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "Orvane/platform/appkit/Image.hpp"
#include "Orvane/platform/appkit/Menu.hpp"

namespace orvane::appkit {

/// The values of NSCellImagePosition and NSImageScaling in use.
enum class ImagePosition { imageOnly = 1 };
enum class ImageScaling { proportionallyDown = 0 };

/// Owns its item: destroying it removes the item from the menu bar. Main thread only.
class StatusItem {
 public:
  /// A new item of variable length whose button has neither target nor action.
  StatusItem();
  StatusItem(StatusItem&&) noexcept;
  StatusItem& operator=(StatusItem&&) noexcept;
  ~StatusItem();

  /// As wide as the menu bar is high.
  void setSquareLength();
  void setImagePosition(ImagePosition position);
  void setImageScaling(ImageScaling scaling);
  /// None leaves the button without an image.
  void setImage(const std::optional<Image>& image);
  /// The item's state, which VoiceOver reads after the image's description.
  void setAccessibilityValue(std::string_view value);
  /// A click on the item opens the menu.
  void setMenu(const Menu& menu);
  /// The name under which the system remembers the item's position.
  void setAutosaveName(std::string_view name);

  struct Implementation;

 private:
  std::unique_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
