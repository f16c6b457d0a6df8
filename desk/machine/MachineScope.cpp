// Switching a machine on and off.
#include "desk/machine/MachineScope.hpp"

namespace orvane::desk {

MachineScope::MachineScope() : machine_(std::make_unique<Machine>()) {}

MachineScope::~MachineScope() {
  if (machine_ != nullptr) {
    end();
  }
}

std::vector<std::string> MachineScope::end() {
  machine_->process.end();
  std::vector<std::string> problems;
  for (const std::string& object : machine_->objects.liveDescriptions()) {
    problems.push_back("not released: " + object);
  }
  for (const std::string& fault : machine_->faults.take()) {
    problems.push_back("fault: " + fault);
  }
  machine_.reset();
  return problems;
}

}  // namespace orvane::desk
