// The application's images: every one that it names is there, in the right sizes, and is what its
// drawing shows.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <librsvg/rsvg.h>

#include "desk/canvas/ApplicationImages.hpp"
#include "desk/canvas/ImageArtwork.hpp"
#include "desk/canvas/PngFile.hpp"
#include "tests/support/BytesOf.hpp"

namespace orvane::desk {
namespace {

namespace fs = std::filesystem;

const fs::path sources = fs::path(ORVANE_SOURCE_FOLDER) / "Orvane";
const fs::path resources = sources / "resources";

/// Every name in quotes that begins an image in the application's source.
std::set<std::string> namedImages() {
  // Also the two names of a choice: Image(condition ? "one" : "other").
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
  SurfacePointer surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size.width, size.height));
  if (handle) {
    const ContextPointer context(cairo_create(surface.get()));
    const RsvgRectangle viewport{0, 0, 1.0 * size.width, 1.0 * size.height};
    rsvg_handle_render_document(handle.get(), context.get(), &viewport, nullptr);
  }
  return surface;
}

/// The greatest difference of two pictures' components, from 0 to 255; 256 for another size.
int difference(cairo_surface_t* first, cairo_surface_t* second) {
  if (!(sizeOf(first) == sizeOf(second))) {
    return 256;
  }
  cairo_surface_flush(first);
  cairo_surface_flush(second);
  int greatest = 0;
  const auto [width, height] = sizeOf(first);
  for (int y = 0; y < height; ++y) {
    const auto row = [y](cairo_surface_t* surface) {
      return cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
    };
    for (int x = 0; x < 4 * width; ++x) {
      greatest = std::max(greatest, std::abs(row(first)[x] - row(second)[x]));
    }
  }
  return greatest;
}

/// The fonts and filters of another release of the library may round otherwise.
constexpr int tolerance = 6;

void expectDrawn(cairo_surface_t* picture, const std::string& drawing, PixelSize size) {
  ASSERT_NE(picture, nullptr) << drawing;
  EXPECT_EQ(sizeOf(picture), size) << drawing << " of " << size.width;
  EXPECT_LE(difference(picture, drawn(resources / (drawing + ".svg"), size).get()), tolerance)
      << drawing << " of " << size.width << " pixels is not what its drawing shows; render it anew";
}

std::string drawingOfIcon(int pixels) {
  return pixels <= 32 ? "AppIcon-small" : "AppIcon";
}

TEST(ApplicationImagesTest, EveryImageThatTheApplicationNamesIsThere) {
  const std::set<std::string> names = namedImages();
  EXPECT_EQ(names, (std::set<std::string>{"AppIcon", "DisplayLaptop", "DisplayMonitor"}));
  ImageLibrary library;
  addApplicationImages(library);
  for (const std::string& name : names) {
    EXPECT_TRUE(library.size(name)) << name;
    EXPECT_TRUE(fs::exists(resources / "rendered" / (name + ".png"))) << name;
    EXPECT_TRUE(fs::exists(resources / "rendered" / (name + "@2x.png"))) << name;
  }
}

TEST(ApplicationImagesTest, TheyHaveTheirSizesInPoints) {
  ImageLibrary library;
  addApplicationImages(library);
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
  for (const ImageArtwork& artwork : imageArtworks()) {
    const std::string name = artwork.name;
    const PixelSize once = name == "AppIcon" ? PixelSize{128, 128} : PixelSize{122, 70};
    const SurfacePointer single = readPng(resources / "rendered" / (name + ".png"));
    expectDrawn(single.get(), name, once);
    expectDrawn(decodePng(artwork.png).get(), name, {2 * once.width, 2 * once.height});
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
    const SurfacePointer picture =
        decodePng(std::span(reinterpret_cast<const std::uint8_t*>(png.data()), png.size()));
    ASSERT_TRUE(picture) << kind;
    const int pixels = sizeOf(picture.get()).width;
    found[kind] = pixels;
    expectDrawn(picture.get(), drawingOfIcon(pixels), {pixels, pixels});
  }
  // The kinds as the format defines them: 16 to 512 points, once and with two pixels per point.
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

/// The share of the icon's pixels that are opaque where a Mac's icon has its plate, and outside.
TEST(ApplicationImagesTest, TheIconKeepsToTheGridOfAMacsIcons) {
  const SurfacePointer icon = drawn(resources / "AppIcon.svg", {1024, 1024});
  const auto alpha = [&](int x, int y) {
    cairo_surface_flush(icon.get());
    return cairo_image_surface_get_data(
        icon.get())[y * cairo_image_surface_get_stride(icon.get()) + 4 * x + 3];
  };
  // The plate is 824 wide in 1024; beyond it there is only its shadow.
  for (const int along : {300, 512, 724}) {
    EXPECT_EQ(alpha(101, along), 255);
    EXPECT_EQ(alpha(922, along), 255);
    EXPECT_EQ(alpha(along, 101), 255);
    EXPECT_LT(alpha(98, along), 128);
    EXPECT_LT(alpha(925, along), 128);
    EXPECT_LT(alpha(along, 98), 128);
  }
  EXPECT_LT(alpha(120, 120), 60) << "the corner is round";
}

}  // namespace
}  // namespace orvane::desk
