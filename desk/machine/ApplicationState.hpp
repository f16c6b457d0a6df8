// The system's record of the running application.
#pragma once

#include "Orvane/platform/appkit/Application.hpp"

namespace orvane::desk {

struct ApplicationState {
  appkit::ActivationPolicy activationPolicy = appkit::ActivationPolicy::regular;
  /// Activities that have begun and not ended.
  int activityCount = 0;
};

}  // namespace orvane::desk
