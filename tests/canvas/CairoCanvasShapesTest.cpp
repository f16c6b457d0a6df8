// Shapes painted from cached coverage equal cairo's, pixel by pixel.
#include <algorithm>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/GradientRows.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/ShadowMask.hpp"
#include "tests/support/KeptPicture.hpp"
#include "tests/support/Pixels.hpp"

namespace orvane::desk {
namespace {

using ui::Paint;
using ui::Rect;
using ui::Rgba;
using ui::Shape;

constexpr int width = 200;
constexpr int height = 200;

struct Task {
  Shape shape;
  Paint paint;
  double lineWidth = 0;
  std::optional<Shape> clip;
  std::optional<Rect> cut;
};

rc::Gen<Shape> genShape(double step) {
  const auto length = [step](int minimum, int maximum) {
    return rc::gen::map(
        rc::gen::inRange(static_cast<int>(minimum / step), static_cast<int>(maximum / step)),
        [step](int steps) { return steps * step; });
  };
  return rc::gen::apply(
      [](Shape::Kind kind, ui::CornerStyle style, double radius, double x, double y, double across,
         double down) {
        return Shape{kind, {x, y, across, down}, radius, style};
      },
      rc::gen::element(Shape::Kind::rectangle, Shape::Kind::roundedRectangle, Shape::Kind::capsule,
                       Shape::Kind::ellipse),
      rc::gen::element(ui::CornerStyle::circular, ui::CornerStyle::continuous), length(1, 20),
      length(3, 30), length(3, 30), length(1, 55), length(1, 55));
}

rc::Gen<Rgba> genColor() {
  const auto fraction =
      rc::gen::map(rc::gen::inRange(0, 101), [](int percent) { return percent / 100.0; });
  return rc::gen::apply(
      [](double red, double green, double blue, double alpha) {
        return Rgba{red, green, blue, alpha};
      },
      fraction, fraction, fraction, rc::gen::oneOf(fraction, rc::gen::just(1.0)));
}

void paintWithCairo(cairo_t* context, const Task& task) {
  const auto clipTo = [&](const Shape& shape) {
    cairo_new_path(context);
    appendShape(context, shape);
    cairo_clip(context);
  };
  if (task.clip) {
    clipTo(*task.clip);
  }
  if (task.paint.isSolid()) {
    const Rgba& color = task.paint.stops.front().color;
    cairo_set_source_rgba(context, color.red, color.green, color.blue, color.alpha);
  } else {
    cairo_set_source(context, gradientOf(task.paint).get());
  }
  cairo_new_path(context);
  appendShape(context, task.shape);
  if (task.lineWidth > 0) {
    cairo_set_line_width(context, task.lineWidth);
    cairo_stroke(context);
  } else {
    cairo_fill(context);
  }
}

void paintWithCanvas(CairoCanvas& canvas, const Task& task) {
  canvas.save();
  if (task.clip) {
    canvas.clip(*task.clip);
  }
  if (task.cut) {
    canvas.clip(Shape::rectangle(*task.cut));
  }
  if (task.lineWidth > 0) {
    canvas.stroke(task.shape, task.paint, task.lineWidth);
  } else {
    canvas.fill(task.shape, task.paint);
  }
  canvas.restore();
}

std::string text(const Shape& shape) {
  std::ostringstream stream;
  stream << static_cast<int>(shape.kind) << " " << static_cast<int>(shape.cornerStyle) << " "
         << shape.cornerRadius << " (" << shape.rect.x << " " << shape.rect.y << " "
         << shape.rect.width << " " << shape.rect.height << ")";
  return stream.str();
}

std::string text(const Task& task, double scale) {
  std::ostringstream stream;
  const Rgba& color = task.paint.stops.front().color;
  stream << "color " << color.red << " " << color.green << " " << color.blue << " scale " << scale
         << " shape " << text(task.shape) << " line " << task.lineWidth << " stops "
         << task.paint.stops.size() << " alpha " << task.paint.stops.front().color.alpha;
  if (task.clip) {
    stream << " clip " << text(*task.clip);
  }
  if (task.cut) {
    stream << " cut " << text(Shape::rectangle(*task.cut));
  }
  return stream.str();
}

Task makeTask() {
  Task task;
  task.shape = *genShape(0.25);
  const bool isStroke = *rc::gen::arbitrary<bool>();
  task.paint = Paint::solid(*genColor());
  if (isStroke) {
    task.lineWidth = *rc::gen::element(0.5, 0.8, 1.0, 1.3, 3.0);
  } else if (*rc::gen::arbitrary<bool>()) {
    task.paint = {{{*genColor(), 0}, {*genColor(), 0.4}, {*genColor(), 1}},
                  {3, task.shape.rect.y},
                  {3, task.shape.rect.bottom()}};
  }
  if (*rc::gen::arbitrary<bool>()) {
    task.cut = (*genShape(1)).rect;
  } else if (*rc::gen::arbitrary<bool>()) {
    task.clip = *genShape(1);
    task.clip->kind = Shape::Kind::roundedRectangle;
  }
  return task;
}

/// Cairo's picture of the whole shape, copied within the clip: cairo rounds an outline that it
/// clips.
void paintExpected(cairo_surface_t* surface, double scale, const Task& task) {
  const SurfacePointer whole = partOf(surface, 0, 0, width, height);
  const ContextPointer painting(cairo_create(whole.get()));
  cairo_scale(painting.get(), scale, scale);
  paintWithCairo(painting.get(), task);
  const ContextPointer context(cairo_create(surface));
  if (task.cut) {
    cairo_scale(context.get(), scale, scale);
    cairo_rectangle(context.get(), task.cut->x, task.cut->y, task.cut->width, task.cut->height);
    cairo_clip(context.get());
    cairo_identity_matrix(context.get());
  }
  cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(context.get(), whole.get(), 0, 0);
  cairo_paint(context.get());
}

RC_GTEST_PROP(CairoCanvasShapesProperty, EveryPixelIsThatOfCairo, ()) {
  const double scale = *rc::gen::element(1.0, 2.0);
  // On a clear surface cairo replaces instead of blending, which rounds differently.
  Rgba ground = *genColor();
  ground.alpha = std::max(ground.alpha, 0.05);
  const SurfacePointer expected = filledSurface(width, height, ground);
  const SurfacePointer painted = filledSurface(width, height, ground);
  DrawingResources resources;
  CairoCanvas canvas(painted.get(), scale, resources);
  // The second and third paint from the coverage of the first, the third at another position.
  Task task = makeTask();
  for (const ui::Point shift : {ui::Point{0, 0}, {0, 0}, {7, 3}}) {
    task.shape.rect = task.shape.rect.movedBy(shift);
    paintExpected(expected.get(), scale, task);
    paintWithCanvas(canvas, task);
    if (const auto difference = pictureDifference(painted.get(), expected.get(), 0)) {
      RC_FAIL(text(task, scale) + ": " + *difference);
    }
  }
}

}  // namespace
}  // namespace orvane::desk
