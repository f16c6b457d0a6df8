// Runs an action when a view has appeared.
#pragma once

#include <functional>
#include <utility>

#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

class LifecycleElement final : public WrapperElement {
 public:
  LifecycleElement(View content, std::function<void()> onAppear)
      : WrapperElement(std::move(content)), onAppear_(std::move(onAppear)) {}

  const std::function<void()>& onAppear() const { return onAppear_; }
  void build(Node& node, Builder& builder) const override;

 private:
  std::function<void()> onAppear_;
};

}  // namespace orvane::ui
