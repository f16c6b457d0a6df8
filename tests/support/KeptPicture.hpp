// Compares pictures with reference pictures. With ORVANE_RENEW_PICTURES set in the environment,
// writes new reference pictures instead; review the changes.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <cairo.h>

namespace orvane::desk {

/// Describes the difference between two ARGB32 pictures; none when no component of any pixel
/// differs by more than the tolerance, by default the error of storing a PNG without premultiplied
/// alpha.
[[nodiscard]] std::optional<std::string> pictureDifference(cairo_surface_t* shown,
                                                           cairo_surface_t* kept,
                                                           int tolerance = 2);

/// The same for a file, whose name may be relative to the project's root. If the pictures differ or
/// the file does not exist, the picture is written to the folder for temporary files, which the
/// message names.
[[nodiscard]] std::optional<std::string> differenceFromKept(cairo_surface_t* shown,
                                                            const std::filesystem::path& name);

}  // namespace orvane::desk
