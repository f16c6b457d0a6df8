// The fingerprints and areas of drawing calls.
#include "Orvane/ui/draw/InkProbe.hpp"

#include <bit>

namespace orvane::ui {

namespace {

// 64-bit FNV-1a.
void mixByte(std::uint64_t& fingerprint, std::uint64_t byte) {
  constexpr std::uint64_t prime = 1099511628211ULL;
  fingerprint = (fingerprint ^ byte) * prime;
}

void mixInto(std::uint64_t& fingerprint, Point point) {
  ui::mixInto(fingerprint, {point.x, point.y});
}

void mixInto(std::uint64_t& fingerprint, const Rgba& color) {
  ui::mixInto(fingerprint, {color.red, color.green, color.blue, color.alpha});
}

void mixInto(std::uint64_t& fingerprint, const std::string& text) {
  ui::mixInto(fingerprint, static_cast<std::uint64_t>(text.size()));
  for (const char character : text) {
    mixByte(fingerprint, static_cast<unsigned char>(character));
  }
}

void mixInto(std::uint64_t& fingerprint, const Font& font) {
  ui::mixInto(fingerprint, {font.size, static_cast<double>(font.weight), font.tracking});
}

void mixInto(std::uint64_t& fingerprint, const Shape& shape) {
  ui::mixInto(fingerprint, {static_cast<double>(shape.kind), static_cast<double>(shape.cornerStyle),
                            shape.cornerRadius});
  ui::mixInto(fingerprint, shape.rect);
}

void mixInto(std::uint64_t& fingerprint, const Paint& paint) {
  for (const PaintStop& stop : paint.stops) {
    mixInto(fingerprint, stop.color);
    ui::mixInto(fingerprint, stop.location);
  }
  mixInto(fingerprint, paint.start);
  mixInto(fingerprint, paint.end);
}

}  // namespace

void mixInto(std::uint64_t& fingerprint, std::uint64_t value) {
  for (int byte = 0; byte < 8; ++byte) {
    mixByte(fingerprint, (value >> (byte * 8)) & 0xFFU);
  }
}

void mixInto(std::uint64_t& fingerprint, double value) {
  // Minus zero becomes zero.
  mixInto(fingerprint, std::bit_cast<std::uint64_t>(value + 0.0));
}

void mixInto(std::uint64_t& fingerprint, std::initializer_list<double> values) {
  for (const double value : values) {
    mixInto(fingerprint, value);
  }
}

void mixInto(std::uint64_t& fingerprint, const Rect& rect) {
  mixInto(fingerprint, {rect.x, rect.y, rect.width, rect.height});
}

void mixInto(std::uint64_t& fingerprint, const PaintShadow& shadow) {
  mixInto(fingerprint, shadow.color);
  mixInto(fingerprint, {shadow.radius, shadow.offset.x, shadow.offset.y});
}

template <typename... Arguments>
void InkProbe::note(const Rect& area, const Arguments&... arguments) {
  (mixInto(fingerprint_, arguments), ...);
  ink_ = ink_.united(area);
}

void InkProbe::fill(const Shape& shape, const Paint& paint) {
  note(shape.rect, shape, paint);
}

void InkProbe::stroke(const Shape& shape, const Paint& paint, double lineWidth) {
  note(shape.rect.inset(-lineWidth / 2), shape, paint, lineWidth);
}

void InkProbe::shadow(const Shape& shape, const PaintShadow& shadow) {
  note(shape.rect.outset(shadow.reach()), shape, shadow);
}

void InkProbe::text(const std::string& line, const Font& font, const Rgba& color, Point baseline) {
  // Glyphs may extend a little beyond their advance and their line.
  note(textFrame_.inset(-font.size / 4), line, font, color, baseline);
}

void InkProbe::image(const std::string& name, const Rect& destination) {
  note(destination, name, destination);
}

void InkProbe::symbol(const std::string& name, const Font& font, const Rgba& color,
                      const Rect& rect) {
  note(rect.inset(-font.size / 8), name, font, color, rect);
}

}  // namespace orvane::ui
