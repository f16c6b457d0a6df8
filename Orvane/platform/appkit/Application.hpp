// The application object: activation, modal sessions, and the end of the process; NSApplication on
// a Mac.
#pragma once

#include <functional>
#include <optional>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/KeyboardShortcut.hpp"

namespace orvane::appkit {

/// The values of NSApplicationActivationPolicy.
enum class ActivationPolicy { regular = 0, accessory = 1, prohibited = 2 };

/// The values of NSModalResponse for the buttons of an alert.
namespace ModalResponse {
inline constexpr int alertFirstButton = 1000;
inline constexpr int alertSecondButton = 1001;
}  // namespace ModalResponse

/// What the application is told of its life; unset functions are passed over.
struct ApplicationDelegate {
  std::function<void()> didFinishLaunching;
  /// The user has opened the running application again; true lets the platform do what it does.
  std::function<bool(bool hasVisibleWindows)> shouldHandleReopen;
  /// A key that was pressed in a window of the application, whose content has no use for it; the
  /// same in a modal session. Whether it meant something.
  std::function<bool(const ui::KeyEvent& event)> performKeyEquivalent;
  std::function<void()> willTerminate;
};

/// Main thread only.
class Application {
 public:
  Application() = delete;

  static void setDelegate(ApplicationDelegate delegate);

  static void setActivationPolicy(ActivationPolicy policy);
  static void activateIgnoringOtherApps();
  /// Takes its windows off the screen until it becomes active again.
  static void hide();
  /// Quits in order: the delegate is told first.
  static void terminate();
  [[nodiscard]] static std::optional<Window> keyWindow();
  /// That of the modal session; none without one.
  [[nodiscard]] static std::optional<Window> modalWindow();

  /// Where the pointer is: window-system coordinates, points, y upwards.
  [[nodiscard]] static CGPoint mouseLocation();

  /// Shows `window` and lets the user do nothing else in the application until stopModal; then
  /// calls `ended` with its response. An open menu is closed first, and the window stays in sight
  /// when the application is deactivated. The application may be quit in between, and then nobody
  /// is called. The task that calls this must have nothing left to do afterwards: until the session
  /// ends, the main queue delivers nothing, while events and timers of the common modes go on.
  static void runModal(const Window& window, std::function<void(int response)> ended);
  /// Ends the modal session; does nothing without one.
  static void stopModal(int response);
};

}  // namespace orvane::appkit
