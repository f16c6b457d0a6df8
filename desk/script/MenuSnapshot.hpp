// The status item's menu as JSON.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk::script {

/// Whether it is open, and its rows, even while it is closed.
[[nodiscard]] nlohmann::ordered_json statusMenuSnapshot(WindowServer& server);

}  // namespace orvane::desk::script
