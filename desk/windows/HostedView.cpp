// The services of a view's host on the simulated window system, and its frame timer.
#include "desk/windows/HostedView.hpp"

#include <string>
#include <utility>

#include "desk/machine/Machine.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

ui::Appearance HostedView::appearanceOf(const Machine& machine) {
  const Appearance& chosen = machine.appearance;
  ui::Appearance appearance;
  appearance.dark = chosen.isDark;
  appearance.reduceMotion = chosen.reducesMotion;
  appearance.increaseContrast = chosen.increasesContrast;
  if (chosen.accent) {
    appearance.accent = ui::Rgba{chosen.accent->red / 255.0, chosen.accent->green / 255.0,
                                 chosen.accent->blue / 255.0, 1};
  }
  return appearance;
}

HostedView::HostedView(ui::RootBuilder buildRoot) : host_(platform()) {
  host_.setAppearance(appearanceOf(Machine::current()));
  host_.setRoot(std::move(buildRoot));
}

HostedView::~HostedView() {
  stopFrames();
}

ui::HostPlatform HostedView::platform() {
  ui::HostServices services;
  services.requestRedraw = [this] {
    if (isOnScreen_ && !isUpdating_) {
      WindowServer::current().updates.request(weak_from_this());
    }
  };
  services.requestFrames = [this] {
    if (isOnScreen_) {
      startFrames();
    }
  };
  services.openMenu = [this](const ui::MenuRequest& request) {
    WindowServer::current().menus.openPopUp(request, weak_from_this());
  };
  services.beginDrag = [this](const ui::DragRequest& request) {
    WindowServer::current().pointer.beginFileDrag(request, *this);
  };
  services.dismiss = [this] {
    // The callback may destroy this view.
    if (const std::function<void()> kept = dismiss) {
      kept();
    }
  };
  return WindowServer::current().resources().hostPlatform(std::move(services));
}

void HostedView::update() {
  const Machine* const machine = Machine::currentOrNull();
  if (isUpdating_ || machine == nullptr) {
    return;
  }
  isUpdating_ = true;
  ui::Appearance appearance = appearanceOf(*machine);
  // Without a process there is no run loop that calls the frame timer, so animations jump to their
  // end.
  appearance.reduceMotion = appearance.reduceMotion || !machine->process.isRunning();
  host_.setAppearance(appearance);
  if (willUpdate) {
    willUpdate();
  }
  host_.tick(machine->clock.mediaTime());
  isUpdating_ = false;
  // An update may need another one.
  if (isOnScreen_ && (host_.needsUpdate() || host_.nextFrameWanted())) {
    startFrames();
  }
}

void HostedView::setFrame(CGRect frame) {
  frame_ = frame;
  host_.setSize({frame.size.width, frame.size.height});
}

void HostedView::setOnScreen(bool isOnScreen) {
  if (isOnScreen == isOnScreen_) {
    return;
  }
  isOnScreen_ = isOnScreen;
  if (isOnScreen) {
    WindowServer::current().updates.request(weak_from_this());
  } else {
    stopFrames();
    host_.pointerCancelled();
    host_.pointerExited();
  }
}

bool HostedView::hasFrames() const {
  return frames_ != nullptr && frames_->isValid;
}

void HostedView::startFrames() {
  if (hasFrames()) {
    return;
  }
  frames_ = Machine::current().runLoop.addTimer(
      Clock::nanosecondsPerSecond / frameRate, RunLoop::commonModes, [this] {
        const std::shared_ptr<HostedView> kept = shared_from_this();
        update();
        if (!host_.nextFrameWanted() && !host_.needsUpdate()) {
          stopFrames();
        }
      });
}

void HostedView::stopFrames() {
  if (hasFrames() && Machine::currentOrNull() != nullptr) {
    Machine::current().runLoop.invalidateTimer(frames_);
  }
  frames_.reset();
}

}  // namespace orvane::desk
