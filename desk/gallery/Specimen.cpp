// Time passes after every event, so that what it set in motion has arrived.
#include "desk/gallery/Specimen.hpp"

#include <utility>

namespace orvane::desk {

namespace {

/// In seconds; longer than any animation.
constexpr double betweenEvents = 10;

ui::HostPlatform platform(ui::TextMeasurer& text, DrawingResources& resources) {
  return {&text, resources.imageSource(), {}, {}};
}

}  // namespace

Specimen::Specimen(const GalleryItem& item, OrvaneLanguage language, bool isDark,
                   ui::TextMeasurer& text, DrawingResources& resources)
    : host_(std::make_unique<ui::ViewHost>(platform(text, resources))) {
  ui::Appearance appearance;
  appearance.dark = isDark;
  host_->setAppearance(appearance);
  host_->setRoot([make = item.make, language](const ui::Environment&) {
    return make(language).padding(margin);
  });
  host_->setSize(host_->intrinsicSize());
  host_->tick(0);
  use(item.hand);
}

void Specimen::use(Hand hand) {
  const ui::Point middle{size().width / 2, size().height / 2};
  switch (hand) {
    case Hand::away:
      break;
    case Hand::over:
      host_->pointerMoved(middle);
      break;
    case Hand::pressing:
      host_->pointerMoved(middle);
      host_->tick(betweenEvents);
      host_->pointerDown(middle);
      break;
    case Hand::tabbing:
      host_->keyDown({ui::Key::tab, {}, {}});
      break;
  }
  host_->tick(2 * betweenEvents);
  host_->tick(3 * betweenEvents);
}

void Specimen::paint(CairoCanvas& canvas, ui::Point corner) const {
  canvas.save();
  canvas.transform(ui::Transform::translation(corner));
  host_->paint(canvas, {0, 0, size().width, size().height});
  canvas.restore();
}

}  // namespace orvane::desk
