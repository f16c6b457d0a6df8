// The displays that stand on the desk when nobody asked for others.
#pragma once

#include <cstddef>

#include "desk/machine/Display.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

/// How many there are.
inline constexpr std::size_t standardDisplayCount = 4;

/// The display at the position: a built-in one, one to its right, one to its left, one above.
desk::Display standardDisplay(std::size_t position);

/// Attaches the first of them that is not attached, and returns its number; 0 when all are.
std::uint32_t attachNextStandardDisplay(desk::Machine& machine);

}  // namespace orvane::showroom
