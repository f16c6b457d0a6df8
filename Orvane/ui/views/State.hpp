// State of a composite view. It lives in the view's node; handlers may keep a handle to it.
#pragma once

#include <any>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

template <typename T>
struct StateCell {
  T value;
  std::weak_ptr<HostLink> link;
};

/// The state of one node.
struct StateStore {
  /// By name; each value is a std::shared_ptr<StateCell<T>>.
  std::map<std::string, std::any> cells;
  bool isBodyRunning = false;
};

/// A handle to one value. It may outlive the node and the host.
template <typename T>
class State {
 public:
  explicit State(std::shared_ptr<StateCell<T>> cell) : cell_(std::move(cell)) {}

  [[nodiscard]] const T& value() const { return cell_->value; }

  /// Changes the value and invalidates the host, if it still exists; changes that follow are
  /// animated along the curve, if there is one. An equal value changes nothing.
  void set(T value, const std::optional<Curve>& curve = std::nullopt) const {
    if (cell_->value == value) {
      return;
    }
    cell_->value = std::move(value);
    if (const auto link = cell_->link.lock()) {
      link->invalidate(curve);
    }
  }

 private:
  std::shared_ptr<StateCell<T>> cell_;
};

}  // namespace orvane::ui
