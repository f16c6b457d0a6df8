// The application object: activation, modal sessions, and the end of the process; NSApplication on
// a Mac.
#pragma once

#include <functional>
#include <optional>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Window.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"

namespace orvane::appkit {

/// The values of NSApplicationActivationPolicy.
enum class ActivationPolicy { regular = 0, accessory = 1 };

/// The values of NSModalResponse for the buttons of an alert.
namespace ModalResponse {
inline constexpr int alertFirstButton = 1000;
inline constexpr int alertSecondButton = 1001;
}  // namespace ModalResponse

/// Callbacks for the application's life-cycle events. Unset functions are ignored.
struct ApplicationDelegate {
  std::function<void()> didFinishLaunching;
  /// The user has reopened the running application. Return true to let the platform respond as
  /// usual.
  std::function<bool(bool hasVisibleWindows)> shouldHandleReopen;
  /// A key press that the content of the key window did not handle, also in a modal session.
  /// Returns whether it was handled.
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
  /// Hides the application's windows until it becomes active again.
  static void hide();
  /// Quits in order: calls the delegate first.
  static void terminate();
  [[nodiscard]] static std::optional<Window> keyWindow();
  /// The window of the modal session; none without a session.
  [[nodiscard]] static std::optional<Window> modalWindow();

  /// The pointer's location, in window-system coordinates: points, y upwards.
  [[nodiscard]] static CGPoint mouseLocation();

  /// Shows `window` and blocks the rest of the application for the user until stopModal; then calls
  /// `ended` with its response. Closes an open menu first. The window stays visible when the
  /// application is deactivated. If the application quits meanwhile, `ended` is not called. The
  /// calling task must have nothing left to do afterwards: until the session ends, the main queue
  /// delivers nothing, while events and timers of the common modes go on.
  static void runModal(const Window& window, std::function<void(int response)> ended);
  /// Ends the modal session; does nothing without one.
  static void stopModal(int response);
};

}  // namespace orvane::appkit
