// Pictures of the desktop as PNG files.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "desk/application/ApplicationHost.hpp"
#include "desk/canvas/CairoPointers.hpp"
#include "desk/machine/Machine.hpp"
#include "showroom/desktop/DesktopLayout.hpp"
#include "showroom/desktop/DesktopPainter.hpp"
#include "showroom/desktop/DesktopScene.hpp"

namespace orvane::showroom {

/// The whole desktop at `scale` pixels per point; null when there is no display or the picture
/// would have more than 16384 pixels to a side.
desk::SurfacePointer renderDesktop(DesktopPainter& painter, const DesktopScene& scene,
                                   DesktopStyle style, double scale);

/// Writes the screens as they are, each at its place in global coordinates. Returns what went
/// wrong, none when the file was written. The same state of the machine gives the same bytes.
std::optional<std::string> writeDesktopPicture(const desk::Machine& machine,
                                               const desk::ApplicationHost& application,
                                               const std::filesystem::path& file, double scale);

}  // namespace orvane::showroom
