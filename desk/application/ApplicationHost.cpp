// Starts and ends the application on the simulated Mac, and records its guard's messages.
#include "desk/application/ApplicationHost.hpp"

#include <utility>

#include "Orvane/app/OrvaneApp.hpp"
#include "Orvane/app/OrvaneAppState.hpp"
#include "Orvane/base/Require.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

ApplicationHost::ApplicationHost(Machine& machine)
    : machine_(machine), systemSettings_(SystemSettings::installOn(WindowServer::current())) {}

void ApplicationHost::launch() {
  if (isRunning()) {
    return;
  }
  messages_.clear();
  launchedAt_ = machine_.clock.now();
  machine_.process.start();
  OrvaneApp::install();
  WindowServer::current().application.finishLaunching();
  // The callback through which the model receives the guard's messages is wrapped after the launch,
  // which creates the model, and before the main queue delivers the first message.
  DockMouseGuard& guard = model().guardService();
  guard.onEvent = [this, toOwner = std::move(guard.onEvent)](const std::string& message) {
    messages_.push_back({machine_.clock.now(), message});
    toOwner(message);
  };
  machine_.runDue();
}

void ApplicationHost::reopen() {
  if (isRunning()) {
    WindowServer::current().application.reopen();
    machine_.runDue();
  }
}

void ApplicationHost::terminate() {
  if (isRunning()) {
    WindowServer::current().application.terminate();
    machine_.runDue();
  }
}

void ApplicationHost::crash() {
  machine_.process.end();
}

OrvaneSnapshot ApplicationHost::snapshot() const {
  return isRunning() ? OrvaneSnapshot::current() : OrvaneSnapshot{};
}

OrvaneModel& ApplicationHost::model() const {
  require(isRunning(), "the application is not running");
  return OrvaneAppState::model();
}

}  // namespace orvane::desk
