// The machine around the application as the shim pretends it to be: what a test may arrange, and
// what it may look at afterwards.
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
  /// Empty: the system knows none.
  std::string uuid;
  std::string name;
  /// Global coordinates, y downwards.
  CGRect frame{};
  bool isBuiltIn = false;
};

struct FileDrag {
  std::string url;
  /// The values of NSDragOperation, or-ed together.
  unsigned operations = 0;
  /// In the coordinates of the view that was dragged from.
  CGRect frame{};
  bool hasImage = false;
};

/// Another copy of the application.
struct Copy {
  /// None: not launched by the system.
  std::optional<double> launchedAt;
  bool isRunning = true;
};

/// Main thread only.
struct World {
  /// Empty: those of the X server. The first is the main one.
  std::vector<Display> displays;
  /// Global coordinates.
  CGPoint pointer{};
  std::uint64_t heldModifiers = 0;
  bool isTrusted = false;
  bool isVoiceOverOn = false;
  bool increasesContrast = false;
  bool reducesTransparency = false;
  bool reducesMotion = false;

  /// By "application/key"; the application sees what was stored when it last synchronised.
  std::map<std::string, std::variant<std::string, double>> storedPreferences;
  std::map<std::string, std::variant<std::string, double>> seenPreferences;
  /// Empty: the process's own.
  std::vector<std::string> preferredLanguages;
  std::string localeIdentifier;

  /// A number of SMAppServiceStatus.
  int loginItemStatus = 0;
  /// Not empty: registrations fail with this text.
  std::string loginItemError;
  bool isBundleOnReadOnlyVolume = false;
  std::vector<std::string> openedLinks;
  /// Not empty: links that begin so are refused.
  std::string refusedLinkPrefix;

  /// By process number.
  std::map<int, Copy> otherCopies;
  /// To which copies the application has yielded its activation.
  std::vector<int> yieldedTo;
  int activations = 0;
  std::vector<std::string> distributedNotifications;

  /// The file that is on its way with the pointer.
  std::optional<FileDrag> drag;
  /// What assistive programs were told: the notification, and after a bar the announced text.
  std::vector<std::string> announcements;

  /// Ports and sources of event taps that exist.
  int liveTapObjects = 0;
  /// What Quartz would not have put up with, such as a port that ends while it is valid.
  std::vector<std::string> tapFaults;
};

World& world();

/// A movement of the pointer by hardware: every enabled tap on the run loop may change it.
void movePointer(CGPoint goal);
/// The system disables all taps and says why.
void disableTaps(CGEventType reason);
int liveTaps();
int enabledTaps();
/// Posts NSApplicationDidChangeScreenParametersNotification.
void announceDisplays();

}  // namespace orvane::gnustep
