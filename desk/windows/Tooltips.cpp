// A timer runs only while the pointer rests on a view whose tooltip is not visible yet.
#include "desk/windows/Tooltips.hpp"

#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

bool isSame(const std::optional<ui::Tooltip>& first, const std::optional<ui::Tooltip>& second) {
  if (!first || !second) {
    return !first && !second;
  }
  return first->text == second->text && first->frame == second->frame;
}

}  // namespace

void Tooltips::pointerIsOver(const std::shared_ptr<HostedView>& view, ui::Point point,
                             CGPoint place) {
  const std::optional<ui::Tooltip> tooltip =
      view != nullptr ? view->host().tooltipAt(point) : std::nullopt;
  if (isSame(tooltip, current_) && shown_) {
    return;
  }
  hide();
  current_ = tooltip;
  if (!tooltip) {
    return;
  }
  timer_ = server_.machine().runLoop.addTimer(restNanoseconds, RunLoop::commonModes,
                                              [this, text = tooltip->text, place] {
                                                cancelTimer();
                                                shown_ = Shown{text, place};
                                                server_.updates.request();
                                              });
}

void Tooltips::hide() {
  cancelTimer();
  current_.reset();
  if (shown_) {
    shown_.reset();
    server_.updates.request();
  }
}

void Tooltips::cancelTimer() {
  if (const auto timer = timer_) {
    timer_ = nullptr;
    server_.machine().runLoop.invalidateTimer(timer);
  }
}

}  // namespace orvane::desk
