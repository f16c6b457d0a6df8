// The displays that the window and the tour begin with.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "desk/machine/Display.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

inline constexpr std::size_t standardDisplayCount = 4;

/// The first standard display that is not attached; none if all are.
[[nodiscard]] std::optional<desk::Display> nextStandardDisplay(const desk::Machine& machine);

/// Attaches the next standard display and returns its number; 0 if all are attached.
std::uint32_t attachNextStandardDisplay(desk::Machine& machine);

}  // namespace orvane::showroom
