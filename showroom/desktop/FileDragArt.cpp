// A translucent image, and a mark beside the pointer.
#include "showroom/desktop/FileDragArt.hpp"

namespace orvane::showroom {

namespace {

constexpr double imageOpacity = 0.7;
constexpr ui::Rgba green{0.16, 0.76, 0.25, 1};

/// A plus in a disc below the pointer.
void paintCopyMark(desk::CairoCanvas& canvas, const CGPoint& place) {
  constexpr double side = 17;
  constexpr double armLength = 9;
  constexpr double armWidth = 2;
  const ui::Rect disc{place.x + 12, place.y + 14, side, side};
  const double middleX = disc.x + side / 2;
  const double middleY = disc.y + side / 2;
  const auto paintArm = [&](double width, double height) {
    canvas.fill(ui::Shape::rectangle({middleX - width / 2, middleY - height / 2, width, height}),
                ui::Paint::solid({1, 1, 1, 1}));
  };
  canvas.shadow(ui::Shape::ellipse(disc), {{0, 0, 0, 0.3}, 3, {0, 1}});
  canvas.fill(ui::Shape::ellipse(disc), ui::Paint::solid(green));
  paintArm(armLength, armWidth);  // NOLINT(readability-suspicious-call-argument)
  paintArm(armWidth, armLength);
}

}  // namespace

void paintFileDrag(desk::CairoCanvas& canvas, desk::WindowServer& server) {
  const desk::FileDrag& drag = *server.pointer.fileDrag();
  const CGPoint place = server.machine().pointer.location();
  const ui::Rect image = drag.image.movedBy({place.x, place.y});
  canvas.beginLayer(image, imageOpacity, std::nullopt);
  canvas.image(drag.imageName, image);
  canvas.endLayer();
  if (server.pointer.canDropHere()) {
    paintCopyMark(canvas, place);
  }
}

}  // namespace orvane::showroom
