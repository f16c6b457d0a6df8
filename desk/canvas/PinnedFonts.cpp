// A configuration with fontconfig's usual folders and caches that accepts only the pinned families
// and has no rules for hinting, emboldening or substitution. The machine's configuration is not
// read, which also saves time.
#include "desk/canvas/PinnedFonts.hpp"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>

#include "desk/canvas/CairoPointers.hpp"

// Read by the leak checker of a sanitizer build. fontconfig refers to its patterns by offsets
// instead of pointers, so the checker takes them for leaks.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig.so\n";
}
// Prevents a report about suppressed leaks.
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

namespace orvane::desk {
namespace {

/// A required face, with fontconfig's weight and slant.
struct Face {
  const char* family;
  int weight;
  int slant;
  const char* description;
};

constexpr Face requiredFaces[] = {
    {systemFontFamily, FC_WEIGHT_LIGHT, FC_SLANT_ROMAN, "Light"},
    {systemFontFamily, FC_WEIGHT_REGULAR, FC_SLANT_ROMAN, "Regular"},
    {systemFontFamily, FC_WEIGHT_MEDIUM, FC_SLANT_ROMAN, "Medium"},
    {systemFontFamily, FC_WEIGHT_DEMIBOLD, FC_SLANT_ROMAN, "Semi Bold"},
    {systemFontFamily, FC_WEIGHT_BOLD, FC_SLANT_ROMAN, "Bold"},
    {systemFontFamily, FC_WEIGHT_EXTRABOLD, FC_SLANT_ROMAN, "Extra Bold"},
    {systemFontFamily, FC_WEIGHT_BLACK, FC_SLANT_ROMAN, "Black"},
    {systemFontFamily, FC_WEIGHT_REGULAR, FC_SLANT_ITALIC, "Italic"},
    {chineseFontFamily, FC_WEIGHT_REGULAR, FC_SLANT_ROMAN, "Regular"},
    {chineseFontFamily, FC_WEIGHT_BOLD, FC_SLANT_ROMAN, "Bold"},
};

const FcChar8* characters(const char* text) {
  return reinterpret_cast<const FcChar8*>(text);
}

/// Never rescanned, because fontconfig would then read the machine's configuration.
constexpr const char* noRescan = "<config><rescan><int>0</int></rescan></config>";

constexpr const char* fontFolders =
    "<dir>/usr/share/fonts</dir><dir>/usr/local/share/fonts</dir>"
    "<dir prefix=\"xdg\">fonts</dir><dir>~/.fonts</dir>"
    "<cachedir>/var/cache/fontconfig</cachedir><cachedir prefix=\"xdg\">fontconfig</cachedir>";

std::string acceptedFamily(const char* family) {
  return std::string("<acceptfont><pattern><patelt name=\"family\"><string>") + family +
         "</string></patelt></pattern></acceptfont>";
}

/// Created on first use and never destroyed, because caches of fontconfig and pango refer to it.
FcConfig* configuration() {
  static FcConfig* const config = [] {
    const std::string xml =
        std::string("<?xml version=\"1.0\"?><fontconfig>") + noRescan + fontFolders +
        "<selectfont>" + acceptedFamily(systemFontFamily) + acceptedFamily(chineseFontFamily) +
        "<rejectfont><pattern></pattern></rejectfont></selectfont></fontconfig>";
    FcConfig* const made = FcConfigCreate();
    FcConfigParseAndLoadFromMemory(made, characters(xml.c_str()), FcTrue);
    FcConfigBuildFonts(made);
    return made;
  }();
  return config;
}

bool isInstalled(const Face& face) {
  const std::unique_ptr<FcPattern, Release<FcPatternDestroy>> pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FAMILY, characters(face.family));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, face.weight);
  FcPatternAddInteger(pattern.get(), FC_SLANT, face.slant);
  const std::unique_ptr<FcObjectSet, Release<FcObjectSetDestroy>> objects(
      FcObjectSetBuild(FC_FILE, static_cast<const char*>(nullptr)));
  const std::unique_ptr<FcFontSet, Release<FcFontSetDestroy>> fonts(
      FcFontList(configuration(), pattern.get(), objects.get()));
  return fonts != nullptr && fonts->nfont > 0;
}

}  // namespace

std::optional<std::string> missingFontsMessage() {
  std::string missing;
  for (const Face& face : requiredFaces) {
    if (!isInstalled(face)) {
      missing.append(missing.empty() ? "" : ", ");
      missing.append(face.family).append(" ").append(face.description);
    }
  }
  if (missing.empty()) {
    return std::nullopt;
  }
  return "Fonts are missing: " + missing +
         ". Install the Debian packages fonts-inter and fonts-noto-cjk.";
}

PangoFontMap* pinnedFontMap() {
  static PangoFontMap* const map = [] {
    if (const std::optional<std::string> message = missingFontsMessage()) {
      std::fprintf(stderr, "%s\n", message->c_str());
      std::abort();
    }
    // Before the map is created: its class starts a thread that loads the current configuration, or
    // the machine's if there is none yet.
    FcConfigSetCurrent(configuration());
    PangoFontMap* made = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(made), 72.0);
    return made;
  }();
  return map;
}

}  // namespace orvane::desk
