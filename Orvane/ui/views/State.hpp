// State of a composite view: it lives in the retained node, and a handle to it may be kept by
// handlers that outlive the node.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Orvane/ui/host/HostLink.hpp"
#include "Orvane/ui/views/Curve.hpp"

namespace orvane::ui {

class StateCellBase {
 public:
  virtual ~StateCellBase() = default;
};

template <typename T>
class StateCell : public StateCellBase {
 public:
  StateCell(T initial, std::weak_ptr<HostLink> owner)
      : value(std::move(initial)), link(std::move(owner)) {}

  T value;
  std::weak_ptr<HostLink> link;
};

// All state of one node, by name.
class StateStore {
 public:
  std::map<std::string, std::shared_ptr<StateCellBase>> cells;
};

template <typename T>
class State {
 public:
  explicit State(std::shared_ptr<StateCell<T>> cell) : cell_(std::move(cell)) {}

  const T& value() const { return cell_->value; }
  const T& operator*() const { return cell_->value; }

  // Changes the value and asks the host for a new body; the changes that follow travel along the
  // curve, if one is given. An equal value changes nothing, and a host that is gone hears nothing.
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
