// Shaping without anything that depends on the machine: hinting, hinted metrics, rounded positions,
// subpixel colours, the language of the environment.
#include "desk/canvas/TextShaper.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>

#include <pango/pangocairo.h>

#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PinnedFonts.hpp"

namespace orvane::desk {
namespace {

double points(int pangoUnits) {
  return static_cast<double>(pangoUnits) / PANGO_SCALE;
}

using DescriptionPointer =
    std::unique_ptr<PangoFontDescription, Release<pango_font_description_free>>;

/// Marks the Chinese parts of a text. Otherwise pango would use the language of the environment,
/// and show Japanese forms of the characters in a Japanese one.
void addLanguages(PangoAttrList* attributes, const std::string& text) {
  constexpr gunichar firstChinese = 0x2E80;
  const char* place = text.c_str();
  const char* end = place + text.size();
  while (place < end) {
    const char* start = place;
    const bool isChinese = g_utf8_get_char(place) >= firstChinese;
    while (place < end && (g_utf8_get_char(place) >= firstChinese) == isChinese) {
      place = g_utf8_next_char(place);
    }
    PangoAttribute* language =
        pango_attr_language_new(pango_language_from_string(isChinese ? "zh-cn" : "en"));
    language->start_index = static_cast<guint>(start - text.c_str());
    language->end_index = static_cast<guint>(place - text.c_str());
    pango_attr_list_insert(attributes, language);
  }
}

/// Above and below the baseline, in points.
struct Reach {
  double ascent = 0;
  double descent = 0;
};

bool isChinese(const PangoItem* run) {
  const DescriptionPointer description(pango_font_describe(run->analysis.font));
  return std::string_view(pango_font_description_get_family(description.get())) ==
         chineseFontFamily;
}

/// Chinese text has the metrics of the Mac's PingFang SC: 1.06 of the size above the baseline and
/// 0.34 below. The pinned font has 1.16 and 0.288, with which centred characters would be too low.
Reach reachOf(PangoGlyphItem* run, double size) {
  if (isChinese(run->item)) {
    return {1.06 * size, 0.34 * size};
  }
  PangoRectangle logical;
  pango_glyph_string_extents(run->glyphs, run->item->analysis.font, nullptr, &logical);
  return {points(-logical.y), points(logical.y + logical.height)};
}

}  // namespace

std::string validText(const std::string& text) {
  const auto length = static_cast<gssize>(text.size());
  if (g_utf8_validate(text.data(), length, nullptr) != FALSE) {
    return text;
  }
  gchar* mended = g_utf8_make_valid(text.data(), length);
  std::string result(mended);
  g_free(mended);
  return result;
}

TextShaper::TextShaper() : context_(pango_font_map_create_context(pinnedFontMap())) {
  const FontOptionsPointer options(cairo_font_options_create());
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_subpixel_order(options.get(), CAIRO_SUBPIXEL_ORDER_DEFAULT);
  pango_cairo_context_set_font_options(context_.get(), options.get());
  pango_context_set_round_glyph_positions(context_.get(), FALSE);
  pango_context_set_base_dir(context_.get(), PANGO_DIRECTION_LTR);
  pango_context_set_language(context_.get(), pango_language_from_string("en"));
}

ObjectPointer<PangoLayout> TextShaper::shape(const std::string& text, const ui::Font& font) const {
  static const std::string families = std::string(systemFontFamily) + "," + chineseFontFamily;
  const DescriptionPointer description(pango_font_description_new());
  pango_font_description_set_family_static(description.get(), families.c_str());
  pango_font_description_set_absolute_size(description.get(),
                                           std::max(font.size, 0.0) * PANGO_SCALE);
  pango_font_description_set_weight(description.get(), static_cast<PangoWeight>(font.weight));
  ObjectPointer<PangoLayout> layout(pango_layout_new(context_.get()));
  pango_layout_set_font_description(layout.get(), description.get());
  pango_layout_set_auto_dir(layout.get(), FALSE);
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  // No hyphen in a word that is broken between characters.
  const std::unique_ptr<PangoAttrList, Release<pango_attr_list_unref>> attributes(
      pango_attr_list_new());
  pango_attr_list_insert(attributes.get(), pango_attr_insert_hyphens_new(FALSE));
  if (font.tracking != 0) {
    pango_attr_list_insert(
        attributes.get(),
        pango_attr_letter_spacing_new(static_cast<int>(std::lround(font.tracking * PANGO_SCALE))));
  }
  const std::string valid = validText(text);
  addLanguages(attributes.get(), valid);
  pango_layout_set_attributes(layout.get(), attributes.get());
  pango_layout_set_text(layout.get(), valid.data(), static_cast<int>(valid.size()));
  return layout;
}

LineMetrics TextShaper::measure(const std::string& line, const ui::Font& font) const {
  if (!(font.size > 0)) {
    return {};
  }
  return measured_.get(cacheKey(line, font.size, font.weight, font.tracking),
                       [&] { return measured(line, font); });
}

LineMetrics TextShaper::measured(const std::string& line, const ui::Font& font) const {
  const ObjectPointer<PangoLayout> shaped = shape(line, font);
  PangoLayoutLine* shapedLine = pango_layout_get_line_readonly(shaped.get(), 0);
  PangoRectangle logical;
  pango_layout_line_get_extents(shapedLine, nullptr, &logical);
  if (shapedLine->runs == nullptr) {
    return {points(logical.width), points(-logical.y), points(logical.height)};
  }
  Reach reach;
  for (const GSList* link = shapedLine->runs; link != nullptr; link = link->next) {
    const Reach run = reachOf(static_cast<PangoGlyphItem*>(link->data), font.size);
    reach.ascent = std::max(reach.ascent, run.ascent);
    reach.descent = std::max(reach.descent, run.descent);
  }
  return {points(logical.width), reach.ascent, reach.ascent + reach.descent};
}

Mask TextShaper::makeMask(const std::string& line, const ui::Font& font,
                          const PixelPlacement& placement) const {
  if (!(font.size > 0)) {
    return {};
  }
  const ObjectPointer<PangoLayout> shaped = shape(line, font);
  PangoLayoutLine* shapedLine = pango_layout_get_line_readonly(shaped.get(), 0);
  PangoRectangle ink;
  pango_layout_line_get_extents(shapedLine, &ink, nullptr);
  if (ink.width <= 0 || ink.height <= 0) {
    return {};
  }
  // One more pixel on each side for antialiased edges.
  Mask mask;
  mask.x = static_cast<int>(std::floor(placement.phaseX + points(ink.x) * placement.scale)) - 1;
  mask.y = static_cast<int>(std::floor(placement.phaseY + points(ink.y) * placement.scale)) - 1;
  const double right = placement.phaseX + points(ink.x + ink.width) * placement.scale;
  const double bottom = placement.phaseY + points(ink.y + ink.height) * placement.scale;
  const int width = static_cast<int>(std::ceil(right)) + 1 - mask.x;
  const int height = static_cast<int>(std::ceil(bottom)) + 1 - mask.y;
  mask.surface = imageSurface(width, height, CAIRO_FORMAT_A8);
  const ContextPointer context(cairo_create(mask.surface.get()));
  cairo_translate(context.get(), placement.phaseX - mask.x, placement.phaseY - mask.y);
  cairo_scale(context.get(), placement.scale, placement.scale);
  // Outlines allow subpixel positions; cairo's cached glyphs do not.
  cairo_set_antialias(context.get(), CAIRO_ANTIALIAS_GOOD);
  pango_cairo_layout_line_path(context.get(), shapedLine);
  cairo_fill(context.get());
  return mask;
}

}  // namespace orvane::desk
