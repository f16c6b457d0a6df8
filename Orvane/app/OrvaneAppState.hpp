// Holds what exists once in the process: the model.
#pragma once

#include "Orvane/model/OrvaneModel.hpp"

namespace orvane {

class OrvaneAppState {
 public:
  OrvaneAppState() = delete;

  /// The one model, created when it is first asked for. Main thread only.
  static OrvaneModel& model();
};

}  // namespace orvane
