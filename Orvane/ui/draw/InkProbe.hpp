// A canvas that paints nothing but notes what would be painted: a fingerprint, and the area it
// would cover. The kit uses it to find out what has to be repainted.
#pragma once

#include <cstdint>
#include <string>

#include "Orvane/ui/draw/Canvas.hpp"

namespace orvane::ui {

// Mixes a number into a fingerprint (the FNV-1a step over its bytes).
void mixInto(std::uint64_t& fingerprint, std::uint64_t value);
void mixInto(std::uint64_t& fingerprint, double value);
void mixInto(std::uint64_t& fingerprint, const Rect& rect);
void mixInto(std::uint64_t& fingerprint, const PaintShadow& shadow);

// How far a shadow reaches beyond what casts it, on each side.
Edges shadowReach(const PaintShadow& shadow);

inline constexpr std::uint64_t emptyFingerprint = 14695981039346656037ULL;

class InkProbe : public Canvas {
 public:
  // Text is taken to cover the frame of its view, and a little around it.
  explicit InkProbe(const Rect& textFrame) : textFrame_(textFrame) {}

  std::uint64_t fingerprint() const { return fingerprint_; }
  const Rect& ink() const { return ink_; }

  double scaleFactor() const override { return 1; }
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
  void mix(const std::string& text);
  void mix(const Rgba& color);
  void mix(const Shape& shape);
  void mix(const Paint& paint);
  void mix(const Font& font);
  void cover(const Rect& area) { ink_ = ink_.united(area); }

  Rect textFrame_;
  Rect ink_;
  std::uint64_t fingerprint_ = emptyFingerprint;
};

}  // namespace orvane::ui
