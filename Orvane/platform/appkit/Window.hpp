// A window or panel of the application; NSWindow and NSPanel on a Mac.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane::appkit {

/// The values of NSWindowStyleMask, to be or-ed together.
namespace StyleMask {
inline constexpr std::uint64_t borderless = 0;
inline constexpr std::uint64_t titled = 1;
inline constexpr std::uint64_t closable = 2;
inline constexpr std::uint64_t miniaturizable = 4;
inline constexpr std::uint64_t nonactivatingPanel = 128;
}  // namespace StyleMask

/// The values of NSWindowCollectionBehavior, to be or-ed together.
namespace CollectionBehavior {
inline constexpr std::uint64_t moveToActiveSpace = 1U << 1;
inline constexpr std::uint64_t managed = 1U << 2;
inline constexpr std::uint64_t stationary = 1U << 4;
inline constexpr std::uint64_t fullScreenAuxiliary = 1U << 8;
inline constexpr std::uint64_t auxiliary = 1U << 17;
}  // namespace CollectionBehavior

/// The values of NSWindowLevel in use.
namespace WindowLevel {
inline constexpr std::int64_t normal = 0;
inline constexpr std::int64_t modalPanel = 8;
inline constexpr std::int64_t status = 25;
}  // namespace WindowLevel

enum class WindowKind { window, panel };

/// A handle: copies refer to the same window and compare equal. The window lives as long as a
/// handle, a parent window or the screen holds it. Frames are in window-system coordinates: points,
/// origin at the lower left of the first screen, y upwards. Main thread only.
class Window {
 public:
  /// Buffered, not deferred, not visible. Panels and borderless windows refuse to become key or
  /// main as AppKit's do, unless set otherwise below.
  Window(WindowKind kind, CGRect contentRect, std::uint64_t styleMask);

  friend bool operator==(const Window& first, const Window& second) {
    return first.implementation_ == second.implementation_;
  }

  [[nodiscard]] WindowKind kind() const;
  [[nodiscard]] std::uint64_t styleMask() const;

  /// The class name by which the window list identifies the window.
  void setClassName(std::string_view name);
  void setCanBecomeKeyWindow(bool can);
  void setCanBecomeMainWindow(bool can);

  void setTitle(std::string_view title);
  void setTitleHidden(bool isHidden);
  void setTitlebarAppearsTransparent(bool isTransparent);
  void setMovableByWindowBackground(bool isMovable);
  void setReleasedWhenClosed(bool isReleased);
  void setOpaque(bool isOpaque);
  void setHasShadow(bool hasShadow);
  /// Nothing is drawn behind the content.
  void setClearBackground();
  void setMinSize(CGSize size);
  void setMaxSize(CGSize size);
  void setCollectionBehavior(std::uint64_t behavior);
  void setLevel(std::int64_t level);
  /// Panels only.
  void setFloatingPanel(bool isFloating);
  void setHidesOnDeactivate(bool hides);
  /// Panels only.
  void setBecomesKeyOnlyIfNeeded(bool onlyIfNeeded);

  void setContentView(const HostingView& view);
  void clearContentView();
  [[nodiscard]] std::optional<HostingView> contentView() const;

  /// `willClose` is called once, immediately before the window closes; it may drop every handle.
  void onWillClose(std::function<void()> willClose);
  void clearDelegate();

  [[nodiscard]] CGRect frame() const;
  void setFrameOrigin(CGPoint origin);
  /// Centres the window on its screen, slightly above the middle, as the window system does.
  void center();
  /// None when the window is on no screen.
  [[nodiscard]] std::optional<Screen> screen() const;

  [[nodiscard]] bool isVisible() const;
  [[nodiscard]] bool isKeyWindow() const;
  [[nodiscard]] bool isMiniaturized() const;
  void miniaturize();
  void deminiaturize();
  void makeKeyAndOrderFront();
  void makeKeyWindow();
  void orderFrontRegardless();
  void close();

  /// `child` moves with this window and stays above it.
  void addChildWindowAbove(const Window& child);
  void removeChildWindow(const Window& child);
  [[nodiscard]] std::vector<Window> childWindows() const;

  struct Implementation;
  explicit Window(std::shared_ptr<Implementation> implementation);
  [[nodiscard]] const std::shared_ptr<Implementation>& implementation() const {
    return implementation_;
  }

 private:
  std::shared_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
