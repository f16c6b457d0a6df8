// Work that the application does for the user while it has no window; an activity of NSProcessInfo
// on a Mac.
#pragma once

#include <memory>
#include <string_view>

namespace orvane::appkit {

/// While one exists, the system runs the process at full speed; the Mac itself may still sleep.
/// Main thread only.
class Activity {
 public:
  explicit Activity(std::string_view reason);
  Activity(const Activity&) = delete;
  Activity& operator=(const Activity&) = delete;
  ~Activity();

 private:
  struct Implementation;
  std::unique_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
