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
  /// Draws on an ARGB32 image surface without a device scale of its own, `scaleFactor` pixels to
  /// the point. The surface is referenced, the resources have to outlive the canvas.
  CairoCanvas(cairo_surface_t* target, double scaleFactor, DrawingResources& resources);
  /// The same on a picture of sixteen bits, which has to outlive the canvas. Layers have eight.
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

  /// Paints a picture of sixteen bits, its pixels as they are, with its top left at the pixel
  /// nearest to that point. The target has eight.
  void picture(const DeepSurface& picture, ui::Point corner);

  /// The context that is drawn on now, in points, for what the desk draws beside the view kit. A
  /// clip of any other form than rectangles goes through the canvas. What is drawn on it is lost
  /// outside of the layers of a picture of sixteen bits.
  cairo_t* context() { return layers_.back().context.get(); }

 private:
  struct ClipShape {
    ui::Shape shape;
    ui::Transform pixels;
  };
  /// What a clip is made of besides rectangles of whole pixels, which cairo tells.
  struct Clip {
    std::vector<ClipShape> shapes;
    /// They are more than one rounded rectangle on whole pixels.
    bool isTangled = false;
  };
  struct Layer {
    ContextPointer context;
    double opacity = 1;
    std::optional<ui::PaintShadow> shadow;
    // Top left of the layer's surface in pixels of the target.
    int x = 0;
    int y = 0;
    // The clip of now, and below it those that will be restored.
    std::vector<Clip> clips{1};
  };

  void noteClip(const ui::Shape& shape);
  /// A line width of zero fills the shape.
  void paintPath(const ui::Shape& shape, const ui::Paint& paint, double lineWidth);
  /// The same, in one colour or a gradient that runs down, by the coverage. False, and nothing
  /// painted, where that cannot be.
  bool paintCoverage(const ui::Shape& shape, const ui::Paint& paint, double lineWidth);
  /// The coverage of a shape within the clip, relative to the top left pixel of its bounds.
  const CoverageRuns& coverageRunsOf(const ui::Shape& shape, double lineWidth);
  /// Of some rows of a shape within the clip, in pixels of the target.
  Mask coveredRows(const ui::Shape& shape, double lineWidth, const PixelRect& rows);
  /// Of the rows from `top` up to `bottom`, in pixels of the target.
  RowColors colorsOf(const ui::Paint& paint, int top, int bottom);
  Rows<DeepColor> deepColorsOf(const ui::Paint& paint, int top, int bottom);
  /// The picture of sixteen bits, while it is that which is drawn on.
  DeepSurface* deepTarget() { return layers_.size() == 1 ? deep_ : nullptr; }
  /// Pixels that the clip leaves, or more.
  PixelRect clipExtents();
  /// Takes out of a surface, with its top left pixel at that of the target, what the clip's shapes
  /// leave out.
  void cutToClip(cairo_surface_t* picture, int x, int y);
  /// Paints on the picture of sixteen bits what only cairo can paint, within bounds.
  void paintThroughLayer(const ui::Rect& bounds, const std::function<void()>& paint);
  /// From the current coordinates to pixels of the target.
  [[nodiscard]] ui::Transform pixelTransform();
  /// Paints a mask in one colour; its anchor is a pixel of the target.
  void paintMask(const Mask& mask, int anchorX, int anchorY, const ui::Rgba& color);
  void paintLayerShadow(const Layer& layer, const ui::PaintShadow& shadow);
  /// Where a point of the current coordinates falls. Unless something is being scaled, the phase
  /// is taken in quarters of a pixel, so that masks can be shared.
  PixelPlacement placementOf(ui::Point anchor);
  bool isScaledByTransform();

  double scaleFactor_;
  DrawingResources& resources_;
  DeepSurface* deep_ = nullptr;
  std::vector<Layer> layers_;
};

}  // namespace orvane::desk
