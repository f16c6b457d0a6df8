// Pictures of one window or of the open menu as PNG files.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

/// Writes the surface with what shines through from behind it, cut to its frame and without other
/// windows. Returns what went wrong, none when the file was written.
std::optional<std::string> writeSurfacePicture(const desk::Machine& machine,
                                               const desk::ApplicationHost& application,
                                               const std::string& surface,
                                               const std::filesystem::path& file, double scale);

}  // namespace orvane::showroom
