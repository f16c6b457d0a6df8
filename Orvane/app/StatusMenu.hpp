// The status item's menu as a list of entries.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "Orvane/app/StatusMenuRow.hpp"
#include "Orvane/app/StatusMenuSectionHeader.hpp"
#include "Orvane/platform/Quartz.hpp"
#include "Orvane/platform/appkit/HostingView.hpp"
#include "Orvane/platform/appkit/Menu.hpp"

namespace orvane {

struct StatusMenuSeparator {};

using StatusMenuEntry = std::variant<StatusMenuSeparator, StatusMenuSectionHeader, StatusMenuRow>;

/// Main thread only.
class StatusMenu {
 public:
  /// In points.
  explicit StatusMenu(double headerWidth) : headerWidth_(headerWidth) {}

  /// Replaces the entries. An item keeps its view if its entry is of the same kind as before, so a
  /// row may call this from its own click handler, while the menu is open.
  void show(const std::vector<StatusMenuEntry>& entries);

  [[nodiscard]] appkit::Menu& menu() { return menu_; }

 private:
  struct Shown {
    /// Read by the view.
    std::shared_ptr<StatusMenuEntry> entry;
    std::optional<appkit::HostingView> view;
  };

  [[nodiscard]] CGSize sizeOf(const StatusMenuEntry& entry) const;
  /// None for a separator, which the menu itself draws.
  [[nodiscard]] std::optional<appkit::HostingView> viewOf(
      const std::shared_ptr<StatusMenuEntry>& entry) const;
  void insert(std::size_t index, const StatusMenuEntry& entry);
  void change(std::size_t index, const StatusMenuEntry& entry);
  void remove(std::size_t index);

  double headerWidth_;
  appkit::Menu menu_;
  std::vector<Shown> shown_;
};

}  // namespace orvane
