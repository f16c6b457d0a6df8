// Holds the process's only model.
#pragma once

#include "Orvane/model/OrvaneModel.hpp"

namespace orvane {

class OrvaneAppState {
 public:
  OrvaneAppState() = delete;

  /// Created on first use. Main thread only.
  static OrvaneModel& model();
};

}  // namespace orvane
