// StatusBar is the right-hand part of the menu bar, where the application's item stands.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/StatusItem.hpp"
#include "desk/windows/DeskMenu.hpp"
#include "desk/windows/SymbolImage.hpp"

namespace orvane::desk {

class WindowServer;

/// One item as the application has described it. It is in the bar while it lives.
struct StatusBarItem {
  StatusBarItem();
  StatusBarItem(const StatusBarItem&) = delete;
  StatusBarItem& operator=(const StatusBarItem&) = delete;
  ~StatusBarItem();

  bool hasSquareLength = false;
  std::optional<appkit::ImagePosition> imagePosition;
  std::optional<appkit::ImageScaling> imageScaling;
  std::shared_ptr<SymbolImage> image;
  std::shared_ptr<DeskMenu> menu;
  std::string accessibilityValue;
  std::string autosaveName;
};

/// Every display's menu bar shows the same items. Rectangles are in global coordinates.
class StatusBar {
 public:
  explicit StatusBar(WindowServer& server) : server_(server) {}

  void add(StatusBarItem& item);
  void remove(StatusBarItem& item);
  /// The application's item; null when it has none. Of several, the first.
  [[nodiscard]] const StatusBarItem* item() const;

  /// The `position`-th place for an icon from the right, beside the clock, in the menu bar of a
  /// display with this frame.
  [[nodiscard]] static CGRect place(const CGRect& displayFrame, int position);
  /// Where the application's item is on a display with this frame: left of the system's own two.
  [[nodiscard]] static CGRect itemFrame(const CGRect& displayFrame);

  /// The display whose menu bar's item is there, by its place in the list; none when it is not on
  /// the item, or there is no item.
  [[nodiscard]] std::optional<std::size_t> displayOfItemAt(CGPoint place) const;
  [[nodiscard]] bool isInMenuBar(CGPoint place) const;
  void processEnded() { items_.clear(); }

 private:
  WindowServer& server_;
  std::vector<StatusBarItem*> items_;
};

}  // namespace orvane::desk
