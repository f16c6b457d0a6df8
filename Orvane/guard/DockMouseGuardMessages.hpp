// The guard's messages to its owner, in the language that is set when they are composed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane::DockMouseGuardMessages {

[[nodiscard]] std::string permissionMissing();
[[nodiscard]] std::string noTriggerZones();
[[nodiscard]] std::string tapRefused();
[[nodiscard]] std::string started(std::size_t zoneCount);
[[nodiscard]] std::string targetUnavailable();
[[nodiscard]] std::string blocked(std::int64_t count);

}  // namespace orvane::DockMouseGuardMessages
