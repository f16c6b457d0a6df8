// Draws a shape with a margin, blurs it and cuts the hole.
#include "desk/canvas/ShadowMask.hpp"

#include <cmath>

#include "desk/canvas/Blur.hpp"
#include "desk/canvas/ImageSurface.hpp"

namespace orvane::desk {

void appendShape(cairo_t* context, const ui::Shape& shape) {
  const ui::Path path = shape.path();
  for (const ui::PathElement& element : path.elements()) {
    switch (element.kind) {
      case ui::PathElement::Kind::move:
        cairo_move_to(context, element.to.x, element.to.y);
        break;
      case ui::PathElement::Kind::line:
        cairo_line_to(context, element.to.x, element.to.y);
        break;
      case ui::PathElement::Kind::cubic:
        cairo_curve_to(context, element.control1.x, element.control1.y, element.control2.x,
                       element.control2.y, element.to.x, element.to.y);
        break;
      case ui::PathElement::Kind::close:
        cairo_close_path(context);
        break;
    }
  }
}

Mask makeShadowMask(const ui::Shape& shape, double sigma, const ui::Shape& hole) {
  if (shape.rect.isEmpty()) {
    return {};
  }
  const int reach = blurReach(sigma);
  Mask mask;
  mask.x = static_cast<int>(std::floor(shape.rect.x)) - reach;
  mask.y = static_cast<int>(std::floor(shape.rect.y)) - reach;
  const int width = static_cast<int>(std::ceil(shape.rect.right())) + reach - mask.x;
  const int height = static_cast<int>(std::ceil(shape.rect.bottom())) + reach - mask.y;
  mask.surface = imageSurface(width, height, CAIRO_FORMAT_A8);
  const ContextPointer context(cairo_create(mask.surface.get()));
  cairo_translate(context.get(), -mask.x, -mask.y);
  appendShape(context.get(), shape);
  cairo_fill(context.get());
  blurSurface(mask.surface.get(), sigma, BlurEdge::transparent);
  cairo_set_operator(context.get(), CAIRO_OPERATOR_DEST_OUT);
  appendShape(context.get(), hole);
  cairo_fill(context.get());
  return mask;
}

SurfacePointer coverageOf(cairo_surface_t* picture, int x, int y) {
  return partOf(picture, x, y, cairo_image_surface_get_width(picture),
                cairo_image_surface_get_height(picture), CAIRO_FORMAT_A8);
}

}  // namespace orvane::desk
