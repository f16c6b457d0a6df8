// Runs actions when a view has come and when it has gone.
#pragma once

#include <functional>
#include <utility>

#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

class LifecycleElement final : public WrapperElement {
 public:
  LifecycleElement(View content, std::function<void()> onAppear, std::function<void()> onDisappear)
      : WrapperElement(std::move(content)),
        onAppear_(std::move(onAppear)),
        onDisappear_(std::move(onDisappear)) {}

  const std::function<void()>& onAppear() const { return onAppear_; }
  const std::function<void()>& onDisappear() const { return onDisappear_; }
  void build(Node& node, Builder& builder) const override;

 private:
  std::function<void()> onAppear_;
  std::function<void()> onDisappear_;
};

}  // namespace orvane::ui
