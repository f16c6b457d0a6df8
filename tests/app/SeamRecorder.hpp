// SeamRecorder notes what the application asks of its platform, in the order in which it asks. The
// linker leads the calls through it, so neither the application nor the desk knows that it is
// there.
#pragma once

#include <string>
#include <vector>

#include "Orvane/platform/appkit/Application.hpp"

namespace orvane {

/// Notes the calls between its beginning and its end, but for those that only look something up;
/// one at a time.
class SeamRecorder {
 public:
  SeamRecorder();
  SeamRecorder(const SeamRecorder&) = delete;
  SeamRecorder& operator=(const SeamRecorder&) = delete;
  ~SeamRecorder();

  /// One call in each line: the name of the function and what matters of its arguments.
  [[nodiscard]] std::string text() const;

  /// How often the screens were listed, which is a look-up and no call of the text.
  [[nodiscard]] static int screenLists();

  /// What the application has given the system to call, whether it was recorded or not.
  [[nodiscard]] static const appkit::ApplicationDelegate& delegate();

 private:
  std::vector<std::string> calls_;
};

}  // namespace orvane
