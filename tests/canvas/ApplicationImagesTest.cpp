// The application's images: every image that it names exists, in the right sizes, and equals its
// drawing.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <librsvg/rsvg.h>

#include "desk/canvas/Artwork.hpp"
#include "desk/canvas/ImageLibrary.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/support/BytesOf.hpp"
#include "tests/support/KeptPicture.hpp"

namespace orvane::desk {
namespace {

namespace fs = std::filesystem;

const fs::path sources = fs::path(ORVANE_SOURCE_FOLDER) / "Orvane";
const fs::path resources = sources / "resources";

/// The quoted names of images in the application's sources.
std::set<std::string> namedImages() {
  // Also both names of Image(condition ? "one" : "other").
  const std::regex mention(R"re((?:Image|hasImage)\(([^()]*)\)|imageName = ("\w+"))re");
  const std::regex quoted(R"re("([\w-]+)")re");
  std::set<std::string> names;
  for (const auto& entry : fs::recursive_directory_iterator(sources)) {
    if (entry.path().extension() != ".cpp") {
      continue;
    }
    const std::string text = bytesOf(entry.path());
    for (std::sregex_iterator match(text.begin(), text.end(), mention), end; match != end;
         ++match) {
      const std::string arguments = match->str();
      for (std::sregex_iterator name(arguments.begin(), arguments.end(), quoted); name != end;
           ++name) {
        names.insert((*name)[1]);
      }
    }
  }
  return names;
}

struct PixelSize {
  int width = 0;
  int height = 0;

  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

PixelSize sizeOf(cairo_surface_t* surface) {
  return {cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
}

SurfacePointer drawn(const fs::path& drawing, PixelSize size) {
  const ObjectPointer<RsvgHandle> handle(rsvg_handle_new_from_file(drawing.c_str(), nullptr));
  SurfacePointer surface = imageSurface(size.width, size.height);
  if (handle) {
    const ContextPointer context(cairo_create(surface.get()));
    const RsvgRectangle viewport{0, 0, 1.0 * size.width, 1.0 * size.height};
    rsvg_handle_render_document(handle.get(), context.get(), &viewport, nullptr);
  }
  return surface;
}

/// Other versions of librsvg may round differently.
constexpr int tolerance = 6;

void expectDrawn(cairo_surface_t* picture, const std::string& drawing, PixelSize size) {
  ASSERT_NE(picture, nullptr) << drawing;
  EXPECT_EQ(sizeOf(picture), size) << drawing << " of " << size.width;
  EXPECT_EQ(
      pictureDifference(picture, drawn(resources / (drawing + ".svg"), size).get(), tolerance),
      std::nullopt)
      << drawing << " of " << size.width
      << " pixels differs from its drawing; run tools/render-artwork";
}

std::string drawingOfIcon(int pixels) {
  return pixels <= 32 ? "AppIcon-small" : "AppIcon";
}

TEST(ApplicationImagesTest, EveryImageThatTheApplicationNamesIsThere) {
  const std::set<std::string> names = namedImages();
  EXPECT_EQ(names, (std::set<std::string>{"AppIcon", "DisplayLaptop", "DisplayMonitor"}));
  const ImageLibrary library;
  for (const std::string& name : names) {
    EXPECT_TRUE(library.size(name)) << name;
    EXPECT_TRUE(fs::exists(resources / "rendered" / (name + ".png"))) << name;
    EXPECT_TRUE(fs::exists(resources / "rendered" / (name + "@2x.png"))) << name;
  }
}

TEST(ApplicationImagesTest, EachImageHasItsSizeInPoints) {
  const ImageLibrary library;
  const std::map<std::string, ui::Size> sizes{{"AppIcon", {128, 128}},
                                              {"DisplayLaptop", {122, 70}},
                                              {"DisplayLaptop-dark", {122, 70}},
                                              {"DisplayMonitor", {122, 70}},
                                              {"DisplayMonitor-dark", {122, 70}}};
  EXPECT_EQ(imageArtworks().size(), sizes.size());
  for (const auto& [name, size] : sizes) {
    EXPECT_EQ(library.size(name), size) << name;
  }
}

TEST(ApplicationImagesTest, RenderedFilesAreWhatTheirDrawingsShowAtBothScales) {
  for (const Artwork& artwork : imageArtworks()) {
    const std::string name(artwork.name);
    const PixelSize once = name == "AppIcon" ? PixelSize{128, 128} : PixelSize{122, 70};
    const SurfacePointer single = readPng(resources / "rendered" / (name + ".png"));
    expectDrawn(single.get(), name, once);
    expectDrawn(decodePng(artwork.bytes).get(), name, {2 * once.width, 2 * once.height});
  }
}

TEST(ApplicationImagesTest, TheIconFileHasEverySizeOfAMac) {
  const std::string file = bytesOf(resources / "rendered" / "AppIcon.icns");
  const auto number = [&](std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < 4; ++index) {
      value = value << 8U | static_cast<unsigned char>(file.at(at + index));
    }
    return value;
  };
  ASSERT_EQ(file.substr(0, 4), "icns");
  ASSERT_EQ(number(4), file.size());
  std::map<std::string, int> found;
  for (std::size_t at = 8; at < file.size(); at += number(at + 4)) {
    const std::string kind = file.substr(at, 4);
    const std::string png = file.substr(at + 8, number(at + 4) - 8);
    const SurfacePointer picture = decodePng(png);
    ASSERT_TRUE(picture) << kind;
    const int pixels = sizeOf(picture.get()).width;
    found[kind] = pixels;
    expectDrawn(picture.get(), drawingOfIcon(pixels), {pixels, pixels});
  }
  // The image types of the format: 16 to 512 points, with one and two pixels per point.
  EXPECT_EQ(found, (std::map<std::string, int>{{"icp4", 16},
                                               {"icp5", 32},
                                               {"ic07", 128},
                                               {"ic08", 256},
                                               {"ic09", 512},
                                               {"ic11", 32},
                                               {"ic12", 64},
                                               {"ic13", 256},
                                               {"ic14", 512},
                                               {"ic10", 1024}}));
}

}  // namespace
}  // namespace orvane::desk
