// PictureWriter draws what is to be seen on a machine into a PNG file.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "desk/script/Complaint.hpp"
#include "desk/script/Session.hpp"

namespace orvane::desk::script {

struct PictureRequest {
  std::string file;
  /// One window, menu or panel; the whole desktop when there is none.
  std::optional<std::string> surface;
  /// Pixels per point.
  double scale = 1;
};

/// Says what was wrong: a surface that is not there, a file that cannot be written.
using PictureWriter =
    std::function<Complaint(const Session& session, const PictureRequest& request)>;

}  // namespace orvane::desk::script
