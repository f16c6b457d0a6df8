// StatusBar is the right-hand part of the menu bar, with the application's status item.
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

/// A status item. It is in the bar during its lifetime.
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
  /// The application's first item; null when it has none.
  [[nodiscard]] const StatusBarItem* item() const;

  /// The frame of the icon at `position`, counted from 0 at the clock to the left, on a display
  /// with this frame.
  [[nodiscard]] static CGRect place(const CGRect& displayFrame, int position);
  /// The frame of the application's item, left of the system's two, on a display with this frame.
  [[nodiscard]] static CGRect itemFrame(const CGRect& displayFrame);

  /// The index of the display whose status item contains the point; none when there is no such
  /// item.
  [[nodiscard]] std::optional<std::size_t> displayOfItemAt(CGPoint place) const;
  [[nodiscard]] bool isInMenuBar(CGPoint place) const;
  void processEnded() { items_.clear(); }

 private:
  WindowServer& server_;
  std::vector<StatusBarItem*> items_;
};

}  // namespace orvane::desk
