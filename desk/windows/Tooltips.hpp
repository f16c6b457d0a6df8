// Tooltips shows the hint of the view that the pointer rests on.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "Orvane/platform/Quartz.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "desk/machine/RunLoopTimer.hpp"
#include "desk/windows/HostedView.hpp"

namespace orvane::desk {

class WindowServer;

class Tooltips {
 public:
  /// How long the pointer has to rest.
  static constexpr std::int64_t restNanoseconds = 1'000'000'000;

  struct Shown {
    std::string text;
    /// Where the pointer rested, in global coordinates.
    CGPoint place;
  };

  explicit Tooltips(WindowServer& server) : server_(server) {}
  ~Tooltips() { stopWaiting(); }

  /// The pointer is over this view's point, or over no view.
  void pointerIsOver(const std::shared_ptr<HostedView>& view, ui::Point point, CGPoint place);
  void hide();
  [[nodiscard]] const std::optional<Shown>& shown() const { return shown_; }

 private:
  void stopWaiting();

  WindowServer& server_;
  std::shared_ptr<RunLoopTimer> rest_;
  std::optional<ui::Tooltip> current_;
  std::optional<Shown> shown_;
};

}  // namespace orvane::desk
