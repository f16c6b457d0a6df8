// The entry of the application: it puts the parts together that do not know each other, and hands
// the delegate to the platform.
#pragma once

namespace orvane {

class OrvaneApp {
 public:
  OrvaneApp() = delete;

  /// To be called once in a process, before the platform says that the application has launched.
  /// No window is made; all are opened on demand.
  static void install();
};

}  // namespace orvane
