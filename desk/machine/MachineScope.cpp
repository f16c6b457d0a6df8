// Switching a machine on and off.
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

MachineScope::MachineScope() : machine_(std::make_unique<Machine>()) {}

MachineScope::~MachineScope() {
  if (machine_ != nullptr) {
    end();
  }
}

MachineEnd MachineScope::end() {
  machine_->process.end();
  MachineEnd result{machine_->objects.liveDescriptions(), machine_->faults.take()};
  machine_.reset();
  return result;
}

}  // namespace orvane::desk
