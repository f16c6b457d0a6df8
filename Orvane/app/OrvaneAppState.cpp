// Holds the process's only model.
#include "Orvane/app/OrvaneAppState.hpp"

#include "Orvane/base/ProcessShared.hpp"

namespace orvane {

OrvaneModel& OrvaneAppState::model() {
  static ProcessShared<OrvaneModel> shared;
  return shared.get();
}

}  // namespace orvane
