// DeskWindow is one window of the simulated window system, with everything it was ever told.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/layout/Point.hpp"
#include "desk/windows/DropTarget.hpp"
#include "desk/windows/HostedView.hpp"

namespace orvane::desk {

/// Whose window it is: the application's, or one of the system's own programs.
enum class WindowOwner : std::uint8_t { application, system };

/// Frames are in window-system coordinates. The window server changes what has consequences; the
/// rest may be set by anybody.
struct DeskWindow {
  /// The height of a title bar, in points.
  static constexpr double titleBarHeight = 28;
  /// The same above content that reaches to the top of the window, as tall as with a toolbar.
  static constexpr double tallTitleBarHeight = 52;
  /// The value of NSWindowStyleMaskFullSizeContentView.
  static constexpr std::uint64_t fullSizeContentView = 1U << 15;

  DeskWindow(appkit::WindowKind kindOfWindow, CGRect contentRect, std::uint64_t mask);
  DeskWindow(const DeskWindow&) = delete;
  DeskWindow& operator=(const DeskWindow&) = delete;
  virtual ~DeskWindow() = default;

  [[nodiscard]] bool hasStyle(std::uint64_t style) const { return (styleMask & style) != 0; }
  [[nodiscard]] bool isPanel() const { return kind == appkit::WindowKind::panel; }
  /// Whether a click leaves the application as active or inactive as it is.
  [[nodiscard]] bool isNonactivating() const {
    return hasStyle(appkit::StyleMask::nonactivatingPanel);
  }
  /// As told, else as AppKit decides: with a title bar only, and a panel never becomes main.
  [[nodiscard]] bool canBecomeKey() const;
  [[nodiscard]] bool canBecomeMain() const;

  /// The frame without the title bar; all of it where the content reaches to the top.
  [[nodiscard]] CGRect contentFrame() const;
  /// From the top left of the content, as the content counts.
  [[nodiscard]] ui::Point contentPoint(CGPoint place) const;
  /// The outline that the corners cut out of the frame, from the frame's top left.
  [[nodiscard]] ui::Shape outline() const;
  /// Whether the window is there at this place; the corners that are cut away are not.
  [[nodiscard]] bool contains(CGPoint place) const;
  /// Also where content lies below the title bar.
  [[nodiscard]] bool isInTitleBar(CGPoint place) const;
  /// The place of the close button from the frame's top left; none without one.
  [[nodiscard]] std::optional<ui::Rect> closeButton() const;

  const appkit::WindowKind kind;
  const std::uint64_t styleMask;
  CGRect frame;
  WindowOwner owner = WindowOwner::application;
  std::string className;
  std::string title;
  bool isTitleHidden = false;
  bool hasTransparentTitlebar = false;
  bool isMovableByBackground = false;
  bool isReleasedWhenClosed = true;
  bool isOpaque = true;
  bool hasShadow = true;
  bool hasClearBackground = false;
  CGSize minSize{0, 0};
  CGSize maxSize{3.4e38, 3.4e38};
  std::uint64_t collectionBehavior = 0;
  std::int64_t level = appkit::WindowLevel::normal;
  bool isFloatingPanel = false;
  bool hidesOnDeactivate;
  bool becomesKeyOnlyIfNeeded = false;
  std::optional<bool> canBecomeKeyWindow;
  std::optional<bool> canBecomeMainWindow;

  std::shared_ptr<HostedView> content;
  std::function<void()> willClose;
  /// What takes files that are dropped on the window.
  std::optional<DropTarget> dropTarget;

  std::weak_ptr<DeskWindow> parent;
  std::vector<std::shared_ptr<DeskWindow>> children;
  bool isMiniaturized = false;
  bool isHiddenByDeactivation = false;
};

}  // namespace orvane::desk
