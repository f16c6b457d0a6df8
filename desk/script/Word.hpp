// Word is one word of a script's line.
#pragma once

#include <cstddef>
#include <string>

#include "desk/script/Complaint.hpp"

namespace orvane::desk::script {

struct Word {
  /// Without quotes, escapes replaced.
  std::string text;
  /// Where it stands in the line, in bytes; `end` is the place after it.
  std::size_t begin = 0;
  std::size_t end = 0;
  /// An escape that the language does not know. A word that is read in another way, as JSON is, may
  /// have one.
  Complaint complaint;
};

}  // namespace orvane::desk::script
