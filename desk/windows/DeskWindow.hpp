// DeskWindow is one window of the simulated window system, with all its attributes.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "desk/windows/DropTarget.hpp"
#include "desk/windows/HostedView.hpp"

namespace orvane::desk {

/// The application, or a program of the system.
enum class WindowOwner : std::uint8_t { application, system };

/// Frames are in window-system coordinates. The window server changes frame, content, parent,
/// children and the two flags at the end; the other attributes may be set directly.
struct DeskWindow {
  /// The height of a title bar, in points.
  static constexpr double titleBarHeight = 28;
  /// The same with fullSizeContentView; as tall as with a toolbar.
  static constexpr double tallTitleBarHeight = 52;
  /// The value of NSWindowStyleMaskFullSizeContentView.
  static constexpr std::uint64_t fullSizeContentView = 1U << 15;

  DeskWindow(appkit::WindowKind kindOfWindow, CGRect contentRect, std::uint64_t mask);
  DeskWindow(const DeskWindow&) = delete;
  DeskWindow& operator=(const DeskWindow&) = delete;
  virtual ~DeskWindow() = default;

  [[nodiscard]] bool hasStyle(std::uint64_t style) const { return (styleMask & style) != 0; }
  [[nodiscard]] bool isPanel() const { return kind == appkit::WindowKind::panel; }
  /// Whether a click does not activate the application.
  [[nodiscard]] bool isNonactivating() const {
    return hasStyle(appkit::StyleMask::nonactivatingPanel);
  }
  /// The attribute if it is set, otherwise AppKit's default: a title bar is needed, and a panel
  /// never becomes main.
  [[nodiscard]] bool canBecomeKey() const;
  [[nodiscard]] bool canBecomeMain() const;

  /// The frame without the title bar; the whole frame with fullSizeContentView.
  [[nodiscard]] CGRect contentFrame() const;
  /// A point in window-system coordinates, from the content's top left.
  [[nodiscard]] ui::Point contentPoint(CGPoint place) const;
  /// The frame with its rounded corners, from the frame's top left.
  [[nodiscard]] ui::Shape outline() const;
  /// Hit test: the rounded corners are respected.
  [[nodiscard]] bool contains(CGPoint place) const;
  /// Also where the title bar overlaps the content.
  [[nodiscard]] bool isInTitleBar(CGPoint place) const;
  /// The close button's frame, from the window's top left; none without one.
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
  /// Accepts files dropped on the window.
  std::optional<DropTarget> dropTarget;

  std::weak_ptr<DeskWindow> parent;
  std::vector<std::shared_ptr<DeskWindow>> children;
  bool isMiniaturized = false;
  bool isHiddenByDeactivation = false;
};

}  // namespace orvane::desk
