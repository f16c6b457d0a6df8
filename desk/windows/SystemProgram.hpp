// A program of the system that shows windows, such as the System Settings. It runs whether or not
// the application does.
#pragma once

namespace orvane::desk {

class SystemProgram {
 public:
  SystemProgram() = default;
  SystemProgram(const SystemProgram&) = delete;
  SystemProgram& operator=(const SystemProgram&) = delete;
  virtual ~SystemProgram() = default;
};

}  // namespace orvane::desk
