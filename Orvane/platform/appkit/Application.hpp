// The application object: activation policy, activation, and the end of the process;
// NSApplication on a Mac.
#pragma once

namespace orvane::appkit {

/// The values of NSApplicationActivationPolicy.
enum class ActivationPolicy { regular = 0, accessory = 1, prohibited = 2 };

/// Main thread only.
class Application {
 public:
  Application() = delete;

  static void setActivationPolicy(ActivationPolicy policy);
};

}  // namespace orvane::appkit
