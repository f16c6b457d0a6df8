// Fingerprints and areas of drawing calls.
#include "Orvane/ui/draw/InkProbe.hpp"

#include <bit>
#include <cmath>

namespace orvane::ui {

void mixInto(std::uint64_t& fingerprint, std::uint64_t value) {
  // FNV-1a, 64 bits, byte by byte.
  constexpr std::uint64_t prime = 1099511628211ULL;
  for (int byte = 0; byte < 8; ++byte) {
    fingerprint = (fingerprint ^ ((value >> (byte * 8)) & 0xFFU)) * prime;
  }
}

void mixInto(std::uint64_t& fingerprint, double value) {
  mixInto(fingerprint, std::bit_cast<std::uint64_t>(value + 0.0));
}

void mixInto(std::uint64_t& fingerprint, const Rect& rect) {
  mixInto(fingerprint, rect.x);
  mixInto(fingerprint, rect.y);
  mixInto(fingerprint, rect.width);
  mixInto(fingerprint, rect.height);
}

void mixInto(std::uint64_t& fingerprint, const PaintShadow& shadow) {
  mixInto(fingerprint, shadow.color.red);
  mixInto(fingerprint, shadow.color.green);
  mixInto(fingerprint, shadow.color.blue);
  mixInto(fingerprint, shadow.color.alpha);
  mixInto(fingerprint, shadow.radius);
  mixInto(fingerprint, shadow.offset.x);
  mixInto(fingerprint, shadow.offset.y);
}

Edges shadowReach(const PaintShadow& shadow) {
  // Three standard deviations of the blur, and a pixel for its rounding.
  const double reach = 1.5 * shadow.radius + 1;
  return {std::max(0.0, reach - shadow.offset.y), std::max(0.0, reach - shadow.offset.x),
          std::max(0.0, reach + shadow.offset.y), std::max(0.0, reach + shadow.offset.x)};
}

void InkProbe::mix(const std::string& text) {
  mixInto(fingerprint_, static_cast<std::uint64_t>(text.size()));
  for (const char character : text) {
    constexpr std::uint64_t prime = 1099511628211ULL;
    fingerprint_ = (fingerprint_ ^ static_cast<unsigned char>(character)) * prime;
  }
}

void InkProbe::mix(const Rgba& color) {
  mixInto(fingerprint_, color.red);
  mixInto(fingerprint_, color.green);
  mixInto(fingerprint_, color.blue);
  mixInto(fingerprint_, color.alpha);
}

void InkProbe::mix(const Shape& shape) {
  mixInto(fingerprint_, static_cast<std::uint64_t>(shape.kind));
  mixInto(fingerprint_, static_cast<std::uint64_t>(shape.cornerStyle));
  mixInto(fingerprint_, shape.rect);
  mixInto(fingerprint_, shape.cornerRadius);
}

void InkProbe::mix(const Paint& paint) {
  for (const PaintStop& stop : paint.stops) {
    mix(stop.color);
    mixInto(fingerprint_, stop.location);
  }
  mixInto(fingerprint_, paint.start.x);
  mixInto(fingerprint_, paint.start.y);
  mixInto(fingerprint_, paint.end.x);
  mixInto(fingerprint_, paint.end.y);
}

void InkProbe::mix(const Font& font) {
  mixInto(fingerprint_, font.size);
  mixInto(fingerprint_, static_cast<std::uint64_t>(font.weight));
}

void InkProbe::fill(const Shape& shape, const Paint& paint) {
  mix(shape);
  mix(paint);
  cover(shape.rect);
}

void InkProbe::stroke(const Shape& shape, const Paint& paint, double lineWidth) {
  mix(shape);
  mix(paint);
  mixInto(fingerprint_, lineWidth);
  cover(shape.rect.inset(-lineWidth / 2));
}

void InkProbe::shadow(const Shape& shape, const PaintShadow& shadow) {
  mix(shape);
  mixInto(fingerprint_, shadow);
  const Edges reach = shadowReach(shadow);
  cover(shape.rect.inset({-reach.top, -reach.leading, -reach.bottom, -reach.trailing}));
}

void InkProbe::text(const std::string& line, const Font& font, const Rgba& color, Point baseline) {
  mix(line);
  mix(font);
  mix(color);
  mixInto(fingerprint_, baseline.x);
  mixInto(fingerprint_, baseline.y);
  // Glyphs may reach a little beyond their advance and their line.
  cover(textFrame_.inset(-font.size / 4));
}

void InkProbe::image(const std::string& name, const Rect& destination) {
  mix(name);
  mixInto(fingerprint_, destination);
  cover(destination);
}

void InkProbe::symbol(const std::string& name, const Font& font, const Rgba& color,
                      const Rect& rect) {
  mix(name);
  mix(font);
  mix(color);
  mixInto(fingerprint_, rect);
  cover(rect.inset(-font.size / 8));
}

}  // namespace orvane::ui
