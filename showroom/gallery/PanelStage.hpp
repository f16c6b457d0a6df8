// PanelStage is what a whole panel of the gallery shows: the Mac, and what was done to the model.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/platform/appkit/LoginItem.hpp"

namespace orvane::showroom {

struct PanelStage {
  /// At most eight. The first display is the built-in and main one, whose name is the product's;
  /// the system knows none for a display with an empty one.
  std::vector<std::string> displayNames;
  bool isTrusted = true;
  appkit::LoginItem::Status loginItem = appkit::LoginItem::Status::notRegistered;
  /// With it every change of the login item fails.
  std::optional<std::string> loginItemError = std::nullopt;
  /// The application runs from a disk image.
  bool isOnDiskImage = false;
  /// What the user does, with the displays listed.
  std::function<void(OrvaneModel& model)> use = nullptr;

  /// Brings the current machine into this state and makes a model on it. Of the stored settings
  /// only the language stays. Models that were made before learn of the new displays when the
  /// machine next does what is due.
  [[nodiscard]] std::shared_ptr<OrvaneModel> model() const;

  /// The identifier of the display at the place, counted from 0.
  [[nodiscard]] static std::string displayID(std::size_t place);
};

}  // namespace orvane::showroom
