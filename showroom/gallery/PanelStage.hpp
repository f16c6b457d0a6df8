// PanelStage is the state in which the gallery shows a whole panel.
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
  /// At most eight. The first display is built in and main, and the application names it. An empty
  /// name means that the system knows none.
  std::vector<std::string> displayNames;
  bool isTrusted = true;
  appkit::LoginItem::Status loginItem = appkit::LoginItem::Status::notRegistered;
  /// If set, every change of the login item fails with it.
  std::optional<std::string> loginItemError = std::nullopt;
  /// Whether the application runs from a disk image.
  bool isOnDiskImage = false;
  /// The user's actions on the model, after it has listed the displays.
  std::function<void(OrvaneModel& model)> use = nullptr;

  /// Brings the current machine into this state and makes a model on it. Removes all stored
  /// settings except the language. Earlier models are notified of the new displays by the machine's
  /// next due tasks.
  [[nodiscard]] std::shared_ptr<OrvaneModel> model() const;

  /// The identifier of the display at the index.
  [[nodiscard]] static std::string displayID(std::size_t index);
};

}  // namespace orvane::showroom
