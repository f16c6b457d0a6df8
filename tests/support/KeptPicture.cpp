// Compares all components of all pixels.
#include "tests/support/KeptPicture.hpp"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

#include "desk/canvas/PngFile.hpp"
#include "tests/support/Pixels.hpp"

namespace orvane::desk {

namespace {

std::string sizeOf(cairo_surface_t* surface) {
  return std::to_string(cairo_image_surface_get_width(surface)) + " by " +
         std::to_string(cairo_image_surface_get_height(surface));
}

}  // namespace

std::optional<std::string> pictureDifference(cairo_surface_t* shown, cairo_surface_t* kept,
                                             int tolerance) {
  if (sizeOf(shown) != sizeOf(kept)) {
    return "it has " + sizeOf(shown) + " pixels instead of " + sizeOf(kept);
  }
  int different = 0;
  int worst = 0;
  std::string first;
  for (int y = 0; y < cairo_image_surface_get_height(shown); ++y) {
    for (int x = 0; x < cairo_image_surface_get_width(shown); ++x) {
      const int distance = greatestDifference(pixelAt(shown, x, y), pixelAt(kept, x, y));
      if (distance > tolerance) {
        ++different;
        first = first.empty() ? std::to_string(x) + ", " + std::to_string(y) : first;
      }
      worst = std::max(worst, distance);
    }
  }
  if (different == 0) {
    return std::nullopt;
  }
  return std::to_string(different) + " pixels differ, by up to " + std::to_string(worst) +
         " of 255, the first one at " + first;
}

std::optional<std::string> differenceFromKept(cairo_surface_t* shown,
                                              const std::filesystem::path& name) {
  const std::filesystem::path file = std::filesystem::path(ORVANE_SOURCE_FOLDER) / name;
  if (std::getenv("ORVANE_RENEW_PICTURES") != nullptr) {
    return writePng(shown, file) ? std::nullopt : std::optional("cannot write " + file.string());
  }
  const SurfacePointer kept = readPng(file);
  const std::optional<std::string> difference = kept != nullptr
                                                    ? pictureDifference(shown, kept.get())
                                                    : std::optional("there is no " + file.string());
  if (!difference) {
    return std::nullopt;
  }
  const auto now = std::filesystem::path(testing::TempDir()) / (file.stem().string() + "-now.png");
  writePng(shown, now);
  return *difference + "; as drawn now: " + now.string();
}

}  // namespace orvane::desk
