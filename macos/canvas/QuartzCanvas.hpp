// Draws the view kit with Core Graphics and Core Text.
#pragma once

#include <vector>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/draw/Canvas.hpp"

namespace orvane::appkit {

/// For the duration of one drawing pass: it borrows the context, whose user space has its origin at
/// the top left and y downwards, in points, as in a flipped view. Main thread only.
class QuartzCanvas : public ui::Canvas {
 public:
  /// `scaleFactor`: pixels per point. `shadowUnitsPerPoint`: shadows are measured in the context's
  /// base space, which is in points for a view and in pixels for a bitmap.
  QuartzCanvas(CGContextRef context, double scaleFactor, double shadowUnitsPerPoint = 1);

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

 private:
  void setShadow(const ui::PaintShadow& shadow);

  CGContextRef context_;
  double scaleFactor_;
  double shadowUnitsPerPoint_;
  // The context's transform before the kit's own transforms.
  CGAffineTransform initialTransform_;
  // The number of transparency layers of each open layer of the kit.
  std::vector<int> openLayers_;
};

}  // namespace orvane::appkit
