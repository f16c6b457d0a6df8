// Notifications, delivered to blocks on the main thread; on a Mac those of NSNotificationCenter
// and, between processes, of NSDistributedNotificationCenter.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace orvane::appkit {

enum class NotificationName {
  /// NSApplicationDidChangeScreenParametersNotification
  applicationDidChangeScreenParameters,
  /// "com.apple.accessibility.api", posted by the system to every process when its list of
  /// Accessibility permissions has changed. No header declares it.
  accessibilityPermissionsDidChange,
};

/// A registration, which lasts until it is passed to removeObserver.
class ObserverToken {
 public:
  struct Implementation;
  explicit ObserverToken(std::shared_ptr<Implementation> implementation)
      : implementation_(std::move(implementation)) {}
  [[nodiscard]] Implementation& implementation() const { return *implementation_; }

 private:
  std::shared_ptr<Implementation> implementation_;
};

/// Main thread only.
class NotificationCenter {
 public:
  NotificationCenter() = delete;

  /// Calls `block` on the main thread for each such notification of any sender. Observers are
  /// called in the order of their registration.
  [[nodiscard]] static ObserverToken addObserver(NotificationName name,
                                                 std::function<void()> block);
  /// Removing twice does nothing.
  static void removeObserver(const ObserverToken& token);
};

}  // namespace orvane::appkit
