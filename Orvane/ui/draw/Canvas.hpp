// The surface that the kit draws on; each platform implements it once.
#pragma once

#include <optional>
#include <string>

#include "Orvane/ui/draw/Fill.hpp"
#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/draw/Shadow.hpp"
#include "Orvane/ui/draw/Shape.hpp"
#include "Orvane/ui/draw/Transform.hpp"

namespace orvane::ui {

/// Coordinates are points, with the origin at the top left and y downwards. Colours are resolved.
class Canvas {
 public:
  Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  virtual ~Canvas() = default;

  /// Device pixels per point (1, 2, ...), apart from the transforms below.
  [[nodiscard]] virtual double scaleFactor() const = 0;

  /// Each save is followed by one restore, which restores the transform and the clip.
  virtual void save() = 0;
  virtual void restore() = 0;
  /// Later coordinates are mapped by `transform` first, then by the current transform.
  virtual void transform(const Transform& transform) = 0;
  /// Intersects the clip with `shape`.
  virtual void clip(const Shape& shape) = 0;

  virtual void fill(const Shape& shape, const Paint& paint) = 0;
  /// A line centred on the outline.
  virtual void stroke(const Shape& shape, const Paint& paint, double lineWidth) = 0;
  /// The shadow of the shape as if it were opaque, only outside of the shape, so that it does not
  /// darken a translucent fill.
  virtual void shadow(const Shape& shape, const PaintShadow& shadow) = 0;

  /// Composites everything up to endLayer as one picture with `opacity` (0 to 1). A shadow is cast
  /// by the alpha of that picture, beneath it, and has the same opacity. `bounds` contains
  /// everything that the layer paints, without its shadow.
  virtual void beginLayer(const Rect& bounds, double opacity,
                          const std::optional<PaintShadow>& shadow) = 0;
  virtual void endLayer() = 0;

  /// One line of UTF-8 text without line breaks; `baseline` is the start of its baseline.
  virtual void text(const std::string& line, const Font& font, const Rgba& color,
                    Point baseline) = 0;
  /// An image of the application's resources, stretched to the rectangle. Paints nothing for an
  /// unknown name.
  virtual void image(const std::string& name, const Rect& destination) = 0;
  /// A symbol in the font's size and weight, centred in the rectangle, whose size is that of
  /// ImageSource::symbolSize. Paints nothing for an unknown name.
  virtual void symbol(const std::string& name, const Font& font, const Rgba& color,
                      const Rect& rect) = 0;
};

}  // namespace orvane::ui
