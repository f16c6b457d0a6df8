// A canvas that paints nothing but computes a fingerprint of the drawing calls and the area that
// they would cover, from which the host finds what has to be repainted.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "Orvane/ui/draw/Canvas.hpp"

namespace orvane::ui {

inline constexpr std::uint64_t emptyFingerprint = 14695981039346656037ULL;

/// Adds values to a fingerprint.
void mixInto(std::uint64_t& fingerprint, std::uint64_t value);
void mixInto(std::uint64_t& fingerprint, double value);
void mixInto(std::uint64_t& fingerprint, std::initializer_list<double> values);
void mixInto(std::uint64_t& fingerprint, const Rect& rect);
void mixInto(std::uint64_t& fingerprint, const PaintShadow& shadow);

class InkProbe : public Canvas {
 public:
  /// Text counts as covering `textFrame`, the frame of its view, and a little around it.
  explicit InkProbe(const Rect& textFrame) : textFrame_(textFrame) {}

  [[nodiscard]] std::uint64_t fingerprint() const { return fingerprint_; }
  [[nodiscard]] const Rect& ink() const { return ink_; }

  [[nodiscard]] double scaleFactor() const override { return 1; }
  void save() override {}
  void restore() override {}
  void transform(const Transform&) override {}
  void clip(const Shape&) override {}
  void fill(const Shape& shape, const Paint& paint) override;
  void stroke(const Shape& shape, const Paint& paint, double lineWidth) override;
  void shadow(const Shape& shape, const PaintShadow& shadow) override;
  void beginLayer(const Rect&, double, const std::optional<PaintShadow>&) override {}
  void endLayer() override {}
  void text(const std::string& line, const Font& font, const Rgba& color, Point baseline) override;
  void image(const std::string& name, const Rect& destination) override;
  void symbol(const std::string& name, const Font& font, const Rgba& color,
              const Rect& rect) override;

 private:
  /// A call with these arguments that covers the area.
  template <typename... Arguments>
  void note(const Rect& area, const Arguments&... arguments);

  Rect textFrame_;
  Rect ink_;
  std::uint64_t fingerprint_ = emptyFingerprint;
};

}  // namespace orvane::ui
