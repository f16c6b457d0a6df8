// Advances time after every event, so that animations end.
#include "showroom/gallery/Specimen.hpp"

#include <utility>

namespace orvane::showroom {

namespace {

/// In seconds; longer than any animation.
constexpr double settlingTime = 10;

}  // namespace

Specimen::Specimen(const GalleryItem& item, OrvaneLanguage language,
                   const ui::Appearance& appearance, desk::DrawingResources& resources)
    : host_(std::make_unique<ui::ViewHost>(resources.hostPlatform())) {
  host_->setAppearance(appearance);
  const std::function<ui::View()> make =
      item.stage ? item.stage() : [make = item.make, language] { return make(language); };
  host_->setRoot([make](const ui::Environment&) { return make().padding(margin); });
  host_->setSize(host_->intrinsicSize());
  host_->tick(0);
  use(item.interaction);
}

void Specimen::appear(const ui::Appearance& appearance) {
  host_->setAppearance(appearance);
  settle();
}

void Specimen::use(Interaction interaction) {
  const ui::Point middle{size().width / 2, size().height / 2};
  // The appearing panel may have changed its model.
  host_->invalidate();
  settle();
  switch (interaction) {
    case Interaction::none:
      break;
    case Interaction::hovered:
      host_->pointerMoved(middle);
      break;
    case Interaction::pressed:
      host_->pointerMoved(middle);
      settle();
      host_->pointerDown(middle);
      break;
    case Interaction::focused:
      host_->keyDown({.key = ui::Key::tab});
      break;
  }
  settle();
}

void Specimen::settle() {
  // The first tick starts animations, the second ends them.
  host_->tick(host_->time() + settlingTime);
  host_->tick(host_->time() + settlingTime);
}

void Specimen::paint(desk::CairoCanvas& canvas, ui::Point corner) const {
  canvas.save();
  canvas.transform(ui::Transform::translation(corner));
  host_->paint(canvas, {0, 0, size().width, size().height});
  canvas.restore();
}

}  // namespace orvane::showroom
