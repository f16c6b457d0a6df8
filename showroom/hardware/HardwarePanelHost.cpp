// Updates the panel to the machine's present time before each event.
#include "showroom/hardware/HardwarePanelHost.hpp"

#include <algorithm>
#include <utility>

#include "desk/hand/FindControl.hpp"

namespace orvane::showroom {

HardwarePanelHost::HardwarePanelHost(Hardware& hardware) : hardware_(hardware), host_(platform()) {
  host_.setRoot([this](const ui::Environment&) -> ui::View {
    return HardwarePanel{content_, &hardware_};
  });
}

ui::HostPlatform HardwarePanelHost::platform() {
  ui::HostServices services;
  services.requestRedraw = [this] { ++changeCount_; };
  return resources_.hostPlatform(std::move(services));
}

void HardwarePanelHost::update() {
  ui::Appearance appearance;
  appearance.dark = hardware_.machine.appearance.isDark;
  host_.setAppearance(appearance);
  const double wanted = host_.sizeThatFits({size_.width, std::nullopt}).height;
  host_.setSize({size_.width, std::max(size_.height, wanted)});
  scrolled_ = std::clamp(scrolled_, 0.0, host_.size().height - size_.height);
  host_.tick(hardware_.machine.clock.mediaTime());
}

void HardwarePanelHost::show(const HardwareContent& content) {
  if (!(content == content_)) {
    content_ = content;
    host_.invalidate();
  }
  update();
}

void HardwarePanelHost::paint(desk::CairoCanvas& canvas, ui::Point corner) {
  canvas.save();
  canvas.clip(ui::Shape::rectangle({corner.x, corner.y, size_.width, size_.height}));
  canvas.transform(ui::Transform::translation({corner.x, corner.y - scrolled_}));
  host_.paint(canvas, {0, scrolled_, size_.width, size_.height});
  canvas.restore();
}

void HardwarePanelHost::pointerMoved(ui::Point point) {
  update();
  host_.pointerMoved(inContent(point));
}

void HardwarePanelHost::pointerDown(ui::Point point) {
  update();
  host_.pointerMoved(inContent(point));
  host_.pointerDown(inContent(point));
}

void HardwarePanelHost::pointerUp(ui::Point point) {
  update();
  host_.pointerUp(inContent(point));
}

void HardwarePanelHost::scrollBy(double distance) {
  const double before = scrolled_;
  scrolled_ =
      std::clamp(scrolled_ + distance, 0.0, std::max(host_.size().height - size_.height, 0.0));
  changeCount_ += scrolled_ == before ? 0 : 1;
}

bool HardwarePanelHost::keyDown(const ui::KeyEvent& event) {
  update();
  const bool isTaken = host_.keyDown(event);
  update();
  revealFocus();
  return isTaken;
}

void HardwarePanelHost::revealFocus() {
  constexpr double margin = 8;
  const auto focused = desk::findElement(
      host_.semantics(), [](const ui::SemanticsNode& node) { return node.isFocused; });
  if (focused) {
    scrollBy(std::max(focused->frame.bottom() + margin - scrolled_ - size_.height, 0.0));
    scrollBy(std::min(focused->frame.y - margin - scrolled_, 0.0));
  }
}

}  // namespace orvane::showroom
