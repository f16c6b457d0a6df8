// EventTap is one event tap of the session.
#pragma once

#include <cstdint>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::desk {

struct EventTap {
  CGEventMask eventsOfInterest;
  CGEventTapCallBack callback;
  void* userInfo;
  bool isListenOnly;
  /// Never reused, so that a port can outlive its tap.
  std::uint64_t identity;
  /// The modes in which a source of the tap is in the run loop, as in RunLoop::ModeSet; empty while
  /// none is, and then the tap receives no events.
  std::uint8_t sourceModes = 0;
  bool isEnabled = true;
  /// False once the system has disabled it for good, as it does to the tap of an application that
  /// was removed from the list of permissions.
  bool canBeEnabled = true;
  /// False for good once the permission is lost or the port invalidated.
  bool isAlive = true;
};

}  // namespace orvane::desk
