// Compares a picture with the version of it that is kept in the project. With ORVANE_RENEW_PICTURES
// set in the environment the kept versions are written anew instead; look at what changed.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <cairo.h>

namespace orvane::desk {

/// What is different between two ARGB32 pictures, in words; none when no component of any pixel
/// differs by more than the two steps that a PNG without premultiplied alpha may cost.
[[nodiscard]] std::optional<std::string> pictureDifference(cairo_surface_t* shown,
                                                           cairo_surface_t* kept);

/// The same against the kept file; when it differs, or is not there, the picture is written into
/// the folder for temporary files, and the message names it.
[[nodiscard]] std::optional<std::string> differenceFromKept(cairo_surface_t* shown,
                                                            const std::filesystem::path& file);

}  // namespace orvane::desk
