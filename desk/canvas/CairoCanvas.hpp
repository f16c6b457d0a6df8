// The view kit's canvas on a cairo image surface.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <cairo.h>

#include "Orvane/ui/draw/Canvas.hpp"
#include "desk/canvas/CairoPointers.hpp"
#include "desk/canvas/DeepSurface.hpp"
#include "desk/canvas/DrawingResources.hpp"

namespace orvane::desk {

class CairoCanvas : public ui::Canvas {
 public:
  /// Draws on an ARGB32 image surface without a device scale, with `scaleFactor` pixels per point.
  /// The surface is referenced; the resources must outlive the canvas.
  CairoCanvas(cairo_surface_t* target, double scaleFactor, DrawingResources& resources);
  /// Draws on a picture of sixteen bits, which must outlive the canvas. Layers have eight bits.
  CairoCanvas(DeepSurface& target, double scaleFactor, DrawingResources& resources);

  double scaleFactor() const override { return scaleFactor_; }

  void save() override;
  void restore() override;
  void transform(const ui::Transform& transform) override;
  void clip(const ui::Shape& shape) override;

  void fill(const ui::Shape& shape, const ui::Paint& paint) override;
  void stroke(const ui::Shape& shape, const ui::Paint& paint, double lineWidth) override;
  void shadow(const ui::Shape& shape, const ui::PaintShadow& shadow) override;

  void beginLayer(const ui::Rect& bounds, double opacity,
                  const std::optional<ui::PaintShadow>& shadow) override;
  void endLayer() override;

  void text(const std::string& line, const ui::Font& font, const ui::Rgba& color,
            ui::Point baseline) override;
  void image(const std::string& name, const ui::Rect& destination) override;
  void symbol(const std::string& name, const ui::Font& font, const ui::Rgba& color,
              const ui::Rect& rect) override;

  /// Paints a picture of sixteen bits, unscaled, with its top left at the pixel nearest to that
  /// point, on a target of eight bits.
  void picture(const DeepSurface& picture, ui::Point corner);

  /// The pixels of a rectangle and a margin around it, within the clip.
  [[nodiscard]] PixelRect visiblePixels(const ui::Rect& rect, int margin);

  /// The current cairo context, in points, for drawing that the canvas does not support. Clips
  /// other than rectangles must be set with the canvas. On a picture of sixteen bits it draws only
  /// within layers.
  cairo_t* context() { return layers_.back().context.get(); }

 private:
  struct ClipShape {
    ui::Shape shape;
    ui::Transform pixels;
  };
  /// The part of a clip that is not a rectangle of whole pixels; cairo keeps those.
  using Clip = std::vector<ClipShape>;
  struct Layer {
    ContextPointer context;
    double opacity = 1;
    std::optional<ui::PaintShadow> shadow;
    // The top left of the layer's surface, in pixels of the target.
    int x = 0;
    int y = 0;
    // The current clip, on top of those to restore.
    std::vector<Clip> clips{1};
  };

  /// A line width of zero fills the shape.
  void paintShape(const ui::Shape& shape, const ui::Paint& paint, double lineWidth);
  /// Paints it with cairo, on a target of eight bits.
  void paintPath(const ui::Shape& shape, const ui::Paint& paint, double lineWidth);
  /// The coverage of a shape within the clip, in the pixels of `bounds`.
  SurfacePointer makeShapeMask(const ui::Shape& shape, double lineWidth, const PixelRect& bounds);
  /// The same, cached for all shapes that differ only by whole pixels.
  cairo_surface_t* shapeMask(const ui::Shape& shape, double lineWidth, const PixelRect& bounds);
  /// For the rows from `top` to `bottom` (exclusive), in pixels of the target.
  RowColors colorsOf(const ui::Paint& paint, int top, int bottom);
  /// The picture of sixteen bits, if it is the current target; otherwise null.
  DeepSurface* deepTarget() { return layers_.size() == 1 ? deep_ : nullptr; }
  /// The clip's bounds or more, in pixels.
  PixelRect clipExtents();
  /// Clears the pixels of a surface, aligned with the target, that the clip's shapes exclude.
  void cutToClip(cairo_surface_t* picture, int x, int y);
  /// Paints on the picture of sixteen bits with cairo, through a layer, within bounds.
  void paintThroughLayer(const ui::Rect& bounds, const std::function<void()>& paint);
  /// From the current coordinates to pixels of the target.
  [[nodiscard]] ui::Transform pixelTransform();
  /// Paints a mask in a colour, with its anchor at a pixel of the target.
  void paintMask(const Mask& mask, int anchorX, int anchorY, const ui::Rgba& color);
  /// The same except within a rectangle relative to the anchor.
  void paintMaskAround(const Mask& mask, int anchorX, int anchorY, const ui::Rect& inner,
                       const ui::Rgba& color);
  void paintLayerShadow(const Layer& layer, const ui::PaintShadow& shadow);
  /// The pixel and the phase of a point in the current coordinates. Unless the transform scales,
  /// the phase is in quarters of a pixel, so that masks can be shared.
  PixelPlacement placementOf(ui::Point anchor);
  bool isScaledByTransform();

  double scaleFactor_;
  DrawingResources& resources_;
  DeepSurface* deep_ = nullptr;
  std::vector<Layer> layers_;
};

}  // namespace orvane::desk
