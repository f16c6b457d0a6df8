// The environment that the shim simulates: the state that a test may set up, and the effects that
// it may inspect.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::gnustep {

struct Display {
  std::uint32_t number = 0;
  /// Empty if the system has none.
  std::string uuid;
  std::string name;
  /// Global coordinates, y downwards.
  CGRect frame{};
  bool isBuiltIn = false;
};

struct FileDrag {
  std::string url;
  /// A mask of NSDragOperation values.
  unsigned operations = 0;
  /// In the coordinates of the source view.
  CGRect frame{};
  bool hasImage = false;
};

/// Another copy of the application.
struct Copy {
  /// Empty if it was not launched by the system.
  std::optional<double> launchedAt;
  bool isRunning = true;
};

/// Main thread only.
struct World {
  /// If empty, those of the X server. The first is the main one.
  std::vector<Display> displays;
  /// Global coordinates.
  CGPoint pointer{};
  std::uint64_t heldModifiers = 0;
  bool isTrusted = false;
  bool isVoiceOverOn = false;
  bool increasesContrast = false;
  bool reducesMotion = false;

  /// By "application/key"; the application sees the values of its last synchronisation.
  std::map<std::string, std::variant<std::string, double>> storedPreferences;
  std::map<std::string, std::variant<std::string, double>> seenPreferences;
  /// If empty, those of the process.
  std::vector<std::string> preferredLanguages;
  std::string localeIdentifier;

  /// A value of SMAppServiceStatus.
  int loginItemStatus = 0;
  /// If not empty, registrations fail with this error.
  std::string loginItemError;
  bool isBundleOnReadOnlyVolume = false;
  std::vector<std::string> openedLinks;
  /// If not empty, opening links with this prefix fails.
  std::string refusedLinkPrefix;

  /// By process identifier.
  std::map<int, Copy> otherCopies;
  /// The copies to which the application has yielded its activation.
  std::vector<int> yieldedTo;
  int activations = 0;
  std::vector<std::string> distributedNotifications;

  /// The file of the current dragging session.
  std::optional<FileDrag> drag;
  /// The accessibility notifications: the name, a bar and the announced text.
  std::vector<std::string> announcements;

  /// The number of live ports and sources of event taps.
  int liveTapObjects = 0;
  /// Misuse that Quartz would not tolerate, such as a port that is released while it is valid.
  std::vector<std::string> tapFaults;
};

World& world();

/// Moves the pointer as hardware does: every enabled tap on the run loop may change the movement.
void movePointer(CGPoint goal);
/// Disables all taps as the system does, with a reason.
void disableTaps(CGEventType reason);
int liveTaps();
int enabledTaps();
/// Posts NSApplicationDidChangeScreenParametersNotification.
void announceDisplays();

}  // namespace orvane::gnustep
