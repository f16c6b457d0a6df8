// Finds the families with the machine's fontconfig, then builds a configuration of our own that
// accepts only them and carries no rules for hinting, emboldening or substitution.
#include "desk/canvas/PinnedFonts.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <vector>

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

// Read by the leak checker of a sanitizer build, where there is one. fontconfig holds its patterns
// by offsets instead of pointers, so the checker takes for lost what is still in use.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig.so\n";
}
// It says nothing of what it did not complain about.
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

namespace orvane::desk {
namespace {

struct FontconfigRelease {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
  void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
  void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};

template <typename Object>
using FontconfigPointer = std::unique_ptr<Object, FontconfigRelease>;

/// One face that has to be there: what fontconfig calls its weight and slant.
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

/// The files of a face in the machine's configuration.
std::set<std::filesystem::path> filesOf(const Face& face) {
  const FontconfigPointer<FcPattern> pattern(FcPatternCreate());
  FcPatternAddString(pattern.get(), FC_FAMILY, characters(face.family));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, face.weight);
  FcPatternAddInteger(pattern.get(), FC_SLANT, face.slant);
  const FontconfigPointer<FcObjectSet> objects(
      FcObjectSetBuild(FC_FILE, static_cast<const char*>(nullptr)));
  const FontconfigPointer<FcFontSet> fonts(FcFontList(nullptr, pattern.get(), objects.get()));
  std::set<std::filesystem::path> files;
  for (int index = 0; fonts && index < fonts->nfont; ++index) {
    FcChar8* file = nullptr;
    if (FcPatternGetString(fonts->fonts[index], FC_FILE, 0, &file) == FcResultMatch) {
      files.insert(reinterpret_cast<const char*>(file));
    }
  }
  return files;
}

std::string escaped(const std::string& text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      default:
        result += character;
    }
  }
  return result;
}

std::string acceptedFamily(const char* family) {
  return std::string("<acceptfont><pattern><patelt name=\"family\"><string>") + family +
         "</string></patelt></pattern></acceptfont>";
}

/// A configuration with the folders of the pinned files, the machine's caches of them, and a
/// filter that lets only the two families through.
FontconfigPointer<FcConfig> makeConfiguration() {
  std::set<std::filesystem::path> folders;
  for (const Face& face : requiredFaces) {
    for (const std::filesystem::path& file : filesOf(face)) {
      folders.insert(file.parent_path());
    }
  }
  std::string xml = "<?xml version=\"1.0\"?><fontconfig>";
  for (const std::filesystem::path& folder : folders) {
    xml += "<dir>" + escaped(folder.string()) + "</dir>";
  }
  FcStrList* caches = FcConfigGetCacheDirs(nullptr);
  while (const FcChar8* cache = FcStrListNext(caches)) {
    xml += "<cachedir>" + escaped(reinterpret_cast<const char*>(cache)) + "</cachedir>";
  }
  FcStrListDone(caches);
  xml += "<selectfont>" + acceptedFamily(systemFontFamily) + acceptedFamily(chineseFontFamily) +
         "<rejectfont><pattern></pattern></rejectfont></selectfont></fontconfig>";
  FontconfigPointer<FcConfig> config(FcConfigCreate());
  FcConfigParseAndLoadFromMemory(config.get(), characters(xml.c_str()), FcTrue);
  FcConfigBuildFonts(config.get());
  return config;
}

}  // namespace

std::optional<std::string> missingFontsMessage() {
  std::string missing;
  for (const Face& face : requiredFaces) {
    if (filesOf(face).empty()) {
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
  // It is never given back: fontconfig's and pango's own caches refer to it until the process ends.
  static PangoFontMap* const map = [] {
    if (const std::optional<std::string> message = missingFontsMessage()) {
      std::fprintf(stderr, "%s\n", message->c_str());
      std::abort();
    }
    PangoFontMap* made = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
    const FontconfigPointer<FcConfig> config = makeConfiguration();
    pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(made), config.get());
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(made), 72.0);
    return made;
  }();
  return map;
}

}  // namespace orvane::desk
