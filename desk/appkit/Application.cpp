// The application object on the desk, a front for the window server.
#include "Orvane/platform/appkit/Application.hpp"

#include <utility>

#include "desk/windows/Implementations.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

using desk::WindowServer;

void Application::setDelegate(ApplicationDelegate delegate) {
  desk::recordCall("Application.setDelegate");
  WindowServer::current().application.setDelegate(std::move(delegate));
}

void Application::setActivationPolicy(ActivationPolicy policy) {
  desk::recordCall("Application.setActivationPolicy", {static_cast<std::int64_t>(policy)});
  desk::Machine::current().application.activationPolicy = policy;
}

void Application::activateIgnoringOtherApps() {
  desk::recordCall("Application.activateIgnoringOtherApps");
  WindowServer::current().focus.activate();
}

void Application::hide() {
  WindowServer::current().focus.hide();
}

void Application::terminate() {
  desk::recordCall("Application.terminate");
  WindowServer::current().application.terminate();
}

std::optional<Window> Application::keyWindow() {
  const auto key = WindowServer::current().focus.keyWindow();
  return key == nullptr ? std::nullopt : std::optional(desk::handleOf(key));
}

std::optional<Window> Application::modalWindow() {
  const auto modal = WindowServer::current().modal.window();
  return modal == nullptr ? std::nullopt : std::optional(desk::handleOf(modal));
}

CGPoint Application::mouseLocation() {
  const desk::Machine& machine = desk::Machine::current();
  return machine.displays.flipped(machine.pointer.location());
}

void Application::runModal(const Window& window, std::function<void(int response)> ended) {
  desk::recordCall("Application.runModal");
  WindowServer::current().modal.run(window.implementation(), std::move(ended));
}

void Application::stopModal(int response) {
  WindowServer::current().modal.stop(response);
}

}  // namespace orvane::appkit
