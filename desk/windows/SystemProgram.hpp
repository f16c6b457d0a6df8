// A program of the system with windows, such as System Settings. It runs independently of the
// application.
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
