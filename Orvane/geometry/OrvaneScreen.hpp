// A screen's identifiers and its frame in global coordinates, derived from what the window system
// reports. Stateless; functions that depend on the other screens take the list, so that an
// operation lists the screens once.
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <string>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/Screen.hpp"

namespace orvane::OrvaneScreen {

/// The display's number, the entry "NSScreenNumber" of its description; none when it is missing or
/// not a number.
[[nodiscard]] std::optional<CGDirectDisplayID> orvaneDisplayID(const appkit::Screen& screen);

/// The frame in global display coordinates: points, origin at the top left of the first display, y
/// downwards. `screens` is the system's list, whose first screen defines the origin; when it is
/// empty, the frame is returned unchanged.
[[nodiscard]] CGRect orvaneCGFrame(const appkit::Screen& screen,
                                   std::span<const appkit::Screen> screens);

/// The display's UUID string when it has a number for which the system knows a UUID, otherwise its
/// legacy identifier.
[[nodiscard]] std::string orvanePrimaryIdentifier(const appkit::Screen& screen);

/// Number, size, depth and colour space as text. The form, "Optional(...)" and "nil" included, must
/// never change: stored choices contain it and are compared as plain strings.
[[nodiscard]] std::string orvaneLegacyIdentifier(const appkit::Screen& screen);

/// The primary and the legacy identifier, and the display's number in decimal when it has one.
[[nodiscard]] std::set<std::string> orvaneMatchingIdentifiers(const appkit::Screen& screen);

/// The index of the first of `screens` that the identifier names, compared exactly; none when no
/// screen does.
[[nodiscard]] std::optional<std::size_t> orvaneFindScreen(const std::string& identifier,
                                                          std::span<const appkit::Screen> screens);

}  // namespace orvane::OrvaneScreen
