// Shows the tooltip of the view on which the pointer rests.
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
  /// The time that the pointer must rest.
  static constexpr std::int64_t restNanoseconds = 1'000'000'000;

  struct Shown {
    std::string text;
    /// Where the pointer rested, in global coordinates.
    CGPoint place;
  };

  explicit Tooltips(WindowServer& server) : server_(server) {}
  ~Tooltips() { cancelTimer(); }

  /// To be called when the pointer has moved: it is over this point of the view, or over no view.
  void pointerIsOver(const std::shared_ptr<HostedView>& view, ui::Point point, CGPoint place);
  void hide();
  [[nodiscard]] const std::optional<Shown>& shown() const { return shown_; }

 private:
  void cancelTimer();

  WindowServer& server_;
  std::shared_ptr<RunLoopTimer> timer_;
  std::optional<ui::Tooltip> current_;
  std::optional<Shown> shown_;
};

}  // namespace orvane::desk
