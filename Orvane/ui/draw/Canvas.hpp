// What the kit draws on. Coordinates are points, origin at the top left, y downwards; colours are
// resolved. A platform implements this once; it holds no view and no appearance.
#pragma once

#include <optional>
#include <string>

#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/draw/Paint.hpp"
#include "Orvane/ui/draw/Shadow.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/draw/Transform.hpp"

namespace orvane::ui {

class Canvas {
 public:
  Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  virtual ~Canvas() = default;

  // Device pixels per point (1, 2, ...), without the transforms made below.
  virtual double scaleFactor() const = 0;

  // Every save is followed by one restore, which takes back the transform and the clip.
  virtual void save() = 0;
  virtual void restore() = 0;
  // From now on coordinates are first changed by this, then by what was in force before.
  virtual void transform(const Transform& transform) = 0;
  // Nothing outside of the shape is painted from now on (in addition to earlier clips).
  virtual void clip(const Shape& shape) = 0;

  virtual void fill(const Shape& shape, const Paint& paint) = 0;
  // A line centred on the outline. The kit has inset the shape where the line is to lie inside.
  virtual void stroke(const Shape& shape, const Paint& paint, double lineWidth) = 0;
  // The shadow that the shape would cast if it were opaque, painted only outside of the shape, so
  // that a translucent fill does not darken.
  virtual void shadow(const Shape& shape, const PaintShadow& shadow) = 0;

  // What follows until endLayer is painted as one picture with this opacity (0 to 1); a shadow, if
  // given, is cast by the alpha of that whole picture and painted beneath it, within the same
  // opacity. The bounds hold everything that the layer paints, without its shadow.
  virtual void beginLayer(const Rect& bounds, double opacity,
                          const std::optional<PaintShadow>& shadow) = 0;
  virtual void endLayer() = 0;

  // One line of text without line breaks (UTF-8), its baseline starting at the point.
  virtual void text(const std::string& line, const Font& font, const Rgba& color,
                    Point baseline) = 0;
  // An image of the application's resources, stretched to the rectangle. An unknown name paints
  // nothing.
  virtual void image(const std::string& name, const Rect& destination) = 0;
  // A symbol in one colour at a size in points and a weight, centred in the rectangle, which has
  // the size that ImageSource::symbolSize gave. An unknown name paints nothing.
  virtual void symbol(const std::string& name, const Font& font, const Rgba& color,
                      const Rect& rect) = 0;
};

}  // namespace orvane::ui
