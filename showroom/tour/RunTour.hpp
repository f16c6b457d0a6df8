// The tour: what Orvane does, told and shown step by step on the simulated Mac.
#pragma once

#include <string>

namespace orvane::showroom {

/// Writes a numbered picture of each step into the directory, which is made if it is not there, and
/// prints one line for each on the standard output. Returns the exit status of the program: 0; 1
/// when the machine did not do what the story tells; 2 when a picture cannot be written. The same
/// program gives the same lines and the same bytes.
int runTour(const std::string& directory);

}  // namespace orvane::showroom
