// Opening, layout, choosing and closing. Rows are painted elsewhere.
#include "desk/windows/MenuTracker.hpp"

#include <algorithm>
#include <utility>

#include <glib.h>

#include "desk/windows/Implementations.hpp"
#include "desk/windows/MenuMetrics.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

bool canBeChosen(const appkit::MenuItem& item) {
  return !item.isSeparator && item.isEnabled;
}

/// Compared without regard to the case of ASCII letters.
bool beginsWith(const std::string& title, const std::string& start) {
  return g_ascii_strncasecmp(title.c_str(), start.c_str(), start.size()) == 0;
}

}  // namespace

bool MenuTracker::openStatusMenu(std::size_t displayIndex) {
  const StatusBarItem* const item = server_.statusBar.item();
  const auto& frames = server_.machine().displays.globalFrames();
  if (item == nullptr || item->menu == nullptr || displayIndex >= frames.size() ||
      server_.modal.isRunning()) {
    return false;
  }
  close();
  isStatusMenu_ = true;
  displayIndex_ = displayIndex;
  anchor_ = StatusBar::itemFrame(frames[displayIndex]);
  open(item->menu);
  return true;
}

void MenuTracker::openPopUp(const ui::MenuRequest& request, std::weak_ptr<HostedView> view) {
  server_.machine().runLoop.afterCurrent([this, request, view = std::move(view)] {
    const std::shared_ptr<HostedView> kept = view.lock();
    const auto origin = kept != nullptr ? server_.originOf(*kept) : std::nullopt;
    if (!origin) {
      return;
    }
    const auto menu = std::make_shared<DeskMenu>();
    menu->checkedIndex = request.selectedIndex;
    for (std::size_t index = 0; index < request.items.size(); ++index) {
      appkit::MenuItem item;
      item.title = request.items[index];
      item.action = [choose = request.onChoose, index] {
        if (choose) {
          choose(static_cast<int>(index));
        }
      };
      menu->items.push_back(std::move(item));
    }
    close();
    isStatusMenu_ = false;
    const ui::Rect& control = request.anchor;
    anchor_ =
        CGRectMake(origin->x + control.x, origin->y + control.y, control.width, control.height);
    displayIndex_ = server_.machine()
                        .displays.indexContaining({CGRectGetMidX(anchor_), CGRectGetMidY(anchor_)})
                        .value_or(0);
    open(menu);
    // The arrow keys start at the current choice.
    if (request.selectedIndex >= 0 &&
        request.selectedIndex < static_cast<int>(request.items.size())) {
      highlight(static_cast<std::size_t>(request.selectedIndex));
    }
  });
}

void MenuTracker::open(Menu menu) {
  menu_ = std::move(menu);
  isStale_ = true;
  highlighted_.reset();
  isNavigatedByKeys_ = false;
  server_.tooltips.hide();
  server_.pointer.cancelPress();
  server_.machine().runLoop.enterMode(RunLoop::Mode::eventTracking);
  if (const auto willOpen = menu_->willOpen) {
    willOpen();
  }
  layOut();
  server_.updates.request();
}

void MenuTracker::close() {
  const Menu closed = std::exchange(menu_, nullptr);
  if (closed == nullptr) {
    return;
  }
  server_.tooltips.hide();
  server_.machine().runLoop.leaveMode();
  const std::vector<MenuRow> rows = std::exchange(rows_, {});
  for (const MenuRow& row : rows) {
    if (row.view != nullptr) {
      row.view->setOnScreen(false);
    }
  }
  highlighted_.reset();
  frame_ = {};
  server_.updates.request();
}

void MenuTracker::itemsChanged(const DeskMenu& menu) {
  if (isTracking(menu)) {
    isStale_ = true;
    server_.updates.request();
  }
}

double MenuTracker::widthOf(const appkit::MenuItem& item) const {
  if (const auto view = viewOf(item)) {
    return view->frame().size.width;
  }
  if (item.isSeparator) {
    return 0;
  }
  const double width = server_.resources().shaper.measure(item.title, MenuMetrics::font).width;
  return width + MenuMetrics::titleInset + MenuMetrics::trailingInset;
}

CGPoint MenuTracker::origin(double width, double height) const {
  CGPoint wanted{anchor_.origin.x, anchor_.origin.y + anchor_.size.height};
  if (!isStatusMenu_) {
    const int checked = std::max(menu_->checkedIndex, 0);
    const double middle = anchor_.origin.y + anchor_.size.height / 2;
    wanted = {anchor_.origin.x - MenuMetrics::titleInset + 8,
              middle - MenuMetrics::padding - (checked + 0.5) * MenuMetrics::rowHeight};
  }
  const auto& frames = server_.machine().displays.globalFrames();
  if (displayIndex_ >= frames.size()) {
    return wanted;
  }
  const CGRect& screen = frames[displayIndex_];
  const double top = screen.origin.y + Displays::menuBarHeight;
  const double right = screen.origin.x + screen.size.width - width;
  const double bottom = screen.origin.y + screen.size.height - height;
  return {std::max(screen.origin.x, std::min(wanted.x, right)),
          std::max(top, std::min(wanted.y, bottom))};
}

void MenuTracker::layOut() {
  if (menu_ == nullptr || !std::exchange(isStale_, false)) {
    return;
  }
  double width = isStatusMenu_ ? 0 : anchor_.size.width;
  double height = 2 * MenuMetrics::padding;
  for (const appkit::MenuItem& item : menu_->items) {
    width = std::max(width, widthOf(item));
    height += MenuMetrics::heightOf(item, viewOf(item).get());
  }
  const CGPoint corner = origin(width, height);
  frame_ = CGRectMake(corner.x, corner.y, width, height);
  const std::vector<MenuRow> before = std::exchange(rows_, {});
  double y = corner.y + MenuMetrics::padding;
  for (std::size_t index = 0; index < menu_->items.size(); ++index) {
    const appkit::MenuItem& item = menu_->items[index];
    const auto view = viewOf(item);
    const double rowHeight = MenuMetrics::heightOf(item, view.get());
    rows_.push_back({index, CGRectMake(corner.x, y, width, rowHeight), view});
    y += rowHeight;
  }
  for (const MenuRow& row : before) {
    const bool stays = std::any_of(rows_.begin(), rows_.end(),
                                   [&](const MenuRow& other) { return other.view == row.view; });
    if (row.view != nullptr && !stays) {
      row.view->setOnScreen(false);
    }
  }
  for (const MenuRow& row : rows_) {
    if (row.view != nullptr) {
      row.view->setOnScreen(true);
    }
  }
  if (highlighted_ &&
      (*highlighted_ >= menu_->items.size() || !canBeChosen(menu_->items[*highlighted_]))) {
    highlighted_.reset();
  }
}

const MenuRow* MenuTracker::rowAt(CGPoint place) const {
  const auto row = std::find_if(rows_.begin(), rows_.end(), [&](const MenuRow& one) {
    return CGRectContainsPoint(one.frame, place);
  });
  return row == rows_.end() ? nullptr : &*row;
}

void MenuTracker::highlight(std::optional<std::size_t> itemIndex) {
  if (itemIndex && (menu_ == nullptr || *itemIndex >= menu_->items.size() ||
                    !canBeChosen(menu_->items[*itemIndex]))) {
    itemIndex.reset();
  }
  if (highlighted_ != itemIndex) {
    highlighted_ = itemIndex;
    server_.updates.request();
  }
}

bool MenuTracker::choose(std::size_t itemIndex) {
  if (menu_ == nullptr || itemIndex >= menu_->items.size() ||
      !canBeChosen(menu_->items[itemIndex])) {
    return false;
  }
  // The action may replace the items.
  const appkit::MenuItem item = menu_->items[itemIndex];
  if (!item.keepsMenuOpen) {
    close();
  }
  if (item.action) {
    item.action();
  }
  return true;
}

std::optional<std::size_t> MenuTracker::currentItem() const {
  if (highlighted_ || isNavigatedByKeys_) {
    return highlighted_;
  }
  const MenuRow* const row = rowAt(server_.machine().pointer.location());
  return row != nullptr && canBeChosen(menu_->items[row->itemIndex]) ? std::optional(row->itemIndex)
                                                                     : std::nullopt;
}

void MenuTracker::highlightByKey(std::size_t itemIndex) {
  isNavigatedByKeys_ = true;
  highlight(itemIndex);
  server_.updates.request();
}

void MenuTracker::moveHighlight(bool isDown) {
  const auto count = static_cast<std::ptrdiff_t>(menu_->items.size());
  const std::ptrdiff_t step = isDown ? 1 : -1;
  std::ptrdiff_t index = isDown ? -1 : count;
  if (const auto from = currentItem()) {
    index = static_cast<std::ptrdiff_t>(*from);
  }
  for (index += step; index >= 0 && index < count; index += step) {
    if (canBeChosen(menu_->items[static_cast<std::size_t>(index)])) {
      highlightByKey(static_cast<std::size_t>(index));
      return;
    }
  }
}

void MenuTracker::selectByTyping(const std::string& characters) {
  const std::size_t count = menu_->items.size();
  const auto from = currentItem();
  for (std::size_t step = 0; step < count; ++step) {
    const std::size_t index = ((from ? *from + 1 : 0) + step) % count;
    const appkit::MenuItem& item = menu_->items[index];
    if (canBeChosen(item) && beginsWith(item.title, characters)) {
      highlightByKey(index);
      return;
    }
  }
}

void MenuTracker::keyDown(const ui::KeyEvent& event) {
  if (menu_ == nullptr) {
    return;
  }
  layOut();
  switch (event.key) {
    case ui::Key::escape:
      close();
      break;
    case ui::Key::down:
    case ui::Key::up:
      moveHighlight(event.key == ui::Key::down);
      break;
    case ui::Key::enter:
    case ui::Key::space:
      if (const auto chosen = currentItem()) {
        choose(*chosen);
      }
      break;
    case ui::Key::character:
      if (!event.characters.empty() && !event.modifiers.command && !event.modifiers.control) {
        selectByTyping(event.characters);
      }
      break;
    default:
      break;
  }
}

void MenuTracker::processEnded() {
  const Menu gone = std::exchange(menu_, nullptr);
  const std::vector<MenuRow> rows = std::exchange(rows_, {});
  highlighted_.reset();
  frame_ = {};
}

}  // namespace orvane::desk
