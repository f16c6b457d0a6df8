// Time passes after every event, so that what it set in motion has arrived.
#include "showroom/gallery/Specimen.hpp"

#include <utility>

namespace orvane::showroom {

namespace {

/// In seconds; longer than any animation.
constexpr double betweenEvents = 10;

ui::HostPlatform platform(ui::TextMeasurer& text, desk::DrawingResources& resources) {
  return {.text = &text, .images = resources.imageSource()};
}

}  // namespace

Specimen::Specimen(const GalleryItem& item, OrvaneLanguage language,
                   const ui::Appearance& appearance, ui::TextMeasurer& text,
                   desk::DrawingResources& resources)
    : host_(std::make_unique<ui::ViewHost>(platform(text, resources))) {
  host_->setAppearance(appearance);
  const std::function<ui::View()> make =
      item.stage ? item.stage() : [make = item.make, language] { return make(language); };
  host_->setRoot([make](const ui::Environment&) { return make().padding(margin); });
  host_->setSize(host_->intrinsicSize());
  host_->tick(0);
  use(item.hand);
}

void Specimen::appear(const ui::Appearance& appearance) {
  host_->setAppearance(appearance);
  letTimePass();
}

void Specimen::use(Hand hand) {
  const ui::Point middle{size().width / 2, size().height / 2};
  // A panel's model may have changed as the panel appeared.
  host_->invalidate();
  letTimePass();
  switch (hand) {
    case Hand::away:
      break;
    case Hand::over:
      host_->pointerMoved(middle);
      break;
    case Hand::pressing:
      host_->pointerMoved(middle);
      letTimePass();
      host_->pointerDown(middle);
      break;
    case Hand::tabbing:
      host_->keyDown({.key = ui::Key::tab});
      break;
  }
  letTimePass();
}

void Specimen::letTimePass() {
  // The first one starts what has changed, the second one ends it.
  host_->tick(host_->time() + betweenEvents);
  host_->tick(host_->time() + betweenEvents);
}

void Specimen::paint(desk::CairoCanvas& canvas, ui::Point corner) const {
  canvas.save();
  canvas.transform(ui::Transform::translation(corner));
  host_->paint(canvas, {0, 0, size().width, size().height});
  canvas.restore();
}

}  // namespace orvane::showroom
