// RecordingCanvas records every call as a line of text.
#pragma once

#include <string>
#include <vector>

#include "Orvane/ui/draw/Canvas.hpp"

namespace orvane::ui {

class RecordingCanvas : public Canvas {
 public:
  explicit RecordingCanvas(double scaleFactor = 1) : scaleFactor_(scaleFactor) {}

  [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
  /// All lines, each with a line feed; calls within a save or a layer are indented.
  [[nodiscard]] std::string text() const;
  /// The number of open saves and layers; 0 after a balanced drawing.
  [[nodiscard]] int depth() const { return depth_; }

  [[nodiscard]] double scaleFactor() const override { return scaleFactor_; }
  void save() override;
  void restore() override;
  void transform(const Transform& transform) override;
  void clip(const Shape& shape) override;
  void fill(const Shape& shape, const Paint& paint) override;
  void stroke(const Shape& shape, const Paint& paint, double lineWidth) override;
  void shadow(const Shape& shape, const PaintShadow& shadow) override;
  void beginLayer(const Rect& bounds, double opacity,
                  const std::optional<PaintShadow>& shadow) override;
  void endLayer() override;
  void text(const std::string& line, const Font& font, const Rgba& color, Point baseline) override;
  void image(const std::string& name, const Rect& destination) override;
  void symbol(const std::string& name, const Font& font, const Rgba& color,
              const Rect& rect) override;

 private:
  void write(const std::string& line);

  double scaleFactor_;
  int depth_ = 0;
  std::vector<std::string> lines_;
};

}  // namespace orvane::ui
