// There is a timer only while the pointer rests on something with a hint that is not shown yet.
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
  rest_ = server_.machine().runLoop.addTimer(restNanoseconds, RunLoop::commonModes,
                                             [this, text = tooltip->text, place] {
                                               stopWaiting();
                                               shown_ = Shown{text, place};
                                               server_.updates.request();
                                             });
}

void Tooltips::hide() {
  stopWaiting();
  current_.reset();
  if (shown_) {
    shown_.reset();
    server_.updates.request();
  }
}

void Tooltips::stopWaiting() {
  if (const auto rest = rest_) {
    rest_ = nullptr;
    server_.machine().runLoop.invalidateTimer(rest);
  }
}

}  // namespace orvane::desk
