// The window is created when it is first opened, and reused.
#include "desk/settings/SystemSettings.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "desk/hand/FindControl.hpp"
#include "desk/settings/AccessibilityPage.hpp"
#include "desk/settings/SystemSettingsView.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

constexpr const char* bundleUrl = "file:///System/Applications/System%20Settings.app";

}  // namespace

SystemSettings::SystemSettings(WindowServer& server)
    : server_(server),
      applications_(server.machine().permission),
      pages_{{accessibilityPage,
              privacyPage,
              {"x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension"
               "?Privacy_Accessibility",
               "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"},
              makeAccessibilityPage}} {
  server.machine().links.onOpened([this](const Links::Opened& link) { linkOpened(link); });
}

SystemSettings::~SystemSettings() {
  server_.machine().links.onOpened(nullptr);
}

SystemSettings& SystemSettings::installOn(WindowServer& server) {
  const auto program = std::make_shared<SystemSettings>(server);
  server.install(program);
  return *program;
}

void SystemSettings::extend(std::vector<SettingsPage> pages, SettingsPage::MakeView makeSidebar) {
  std::ranges::move(pages, std::back_inserter(pages_));
  makeSidebar_ = std::move(makeSidebar);
  changed();
}

const SettingsPage* SystemSettings::findPage(const std::string& name) const {
  const auto found = std::ranges::find(pages_, name, &SettingsPage::name);
  return found != pages_.end() ? &*found : nullptr;
}

void SystemSettings::linkOpened(const Links::Opened& link) {
  if (!link.wasAccepted) {
    return;
  }
  const auto page = std::ranges::find_if(pages_, [&](const SettingsPage& candidate) {
    return std::ranges::any_of(
        candidate.links, [&](const std::string& prefix) { return link.url.starts_with(prefix); });
  });
  if (page != pages_.end()) {
    open(page->name);
  } else if (link.url.starts_with(bundleUrl)) {
    open();
  }
}

void SystemSettings::open(const std::string& page) {
  goTo(page);
  open();
}

void SystemSettings::open() {
  if (window_ == nullptr) {
    makeWindow();
  }
  if (!server_.isVisible(*window_)) {
    place();
  }
  window_->title = language().text("System Settings", "系统设置");
  server_.focus.clicked(window_);
}

void SystemSettings::makeWindow() {
  window_ = std::make_shared<DeskWindow>(
      appkit::WindowKind::window, CGRectMake(0, 0, width, height),
      appkit::StyleMask::titled | appkit::StyleMask::closable | DeskWindow::fullSizeContentView);
  window_->className = "SystemSettings";
  window_->owner = WindowOwner::system;
  window_->isTitleHidden = true;
  window_->hasTransparentTitlebar = true;
  window_->dropTarget = DropTarget{
      .accepts =
          [this](ui::Point place) {
            const auto list = listFrame();
            return list && list->contains(place);
          },
      .drop = [this](ui::Point, const std::string& fileUrl) { dropped(fileUrl); },
      .hover = [this](bool isOver) { setDragOver(isOver); },
  };
  view_ = std::make_shared<HostedView>(
      [this](const ui::Environment&) -> ui::View { return SystemSettingsView{this}; });
  // The sidebar is glass.
  view_->hasBackdrop = true;
  view_->willUpdate = [this] { followMachine(); };
  server_.setContent(window_, view_);
}

void SystemSettings::place() {
  // Left of the centre, so that the permission guide at the right does not cover it.
  constexpr double distanceFromMiddle = 70;
  const Displays& displays = server_.machine().displays;
  const auto index = server_.machine().pointer.displayIndex();
  if (displays.isEmpty()) {
    return;
  }
  const CGRect area = displays.all()[index.value_or(0)].frame;
  // On a small display the top with the close button stays visible.
  const double x = std::max(area.origin.x, CGRectGetMidX(area) - width / 2 - distanceFromMiddle);
  const double free = area.size.height - Displays::menuBarHeight - height;
  const double y = area.origin.y + (free > 0 ? free / 2 : free);
  server_.setOrigin(*window_, {std::floor(x), std::floor(y)});
}

Machine& SystemSettings::machine() const {
  return server_.machine();
}

SystemLanguage SystemSettings::language() const {
  return SystemLanguage::of(machine().locale);
}

SystemSettings::Facts SystemSettings::facts() const {
  return {applications_.entries(), language(), machine().dock.edge(), machine().dock.autoHides(),
          machine().displays.changeCount()};
}

void SystemSettings::followMachine() {
  Facts present = facts();
  if (shownFacts_ != present) {
    shownFacts_ = std::move(present);
    changed();
  }
}

void SystemSettings::changed() {
  if (view_ != nullptr) {
    view_->host().invalidate();
  }
}

ui::View SystemSettings::pageView() {
  const SettingsPage* const page = findPage(state_.page);
  return page != nullptr ? page->makeView(*this) : ui::View();
}

ui::View SystemSettings::sidebarView() {
  return makeSidebar_ ? makeSidebar_(*this) : ui::View();
}

const SettingsPage* SystemSettings::parentPage() const {
  const SettingsPage* const page = findPage(state_.page);
  return page != nullptr ? findPage(page->parent) : nullptr;
}

void SystemSettings::goTo(const std::string& page) {
  if (page != state_.page) {
    state_ = {};
    state_.page = page;
  }
  changed();
}

void SystemSettings::select(const std::string& name) {
  state_.selected = name;
  changed();
}

void SystemSettings::setAllowed(const std::string& name, bool isAllowed) {
  applications_.setAllowed(name, isAllowed);
  changed();
}

void SystemSettings::removeSelected() {
  applications_.remove(std::exchange(state_.selected, {}));
  changed();
}

void SystemSettings::beginChoosing() {
  state_.isChoosing = true;
  state_.chosen.clear();
  changed();
}

void SystemSettings::choose(const std::string& name) {
  state_.chosen = name;
  changed();
}

void SystemSettings::endChoosing(bool addsChosen) {
  state_.isChoosing = false;
  if (addsChosen && !state_.chosen.empty()) {
    applications_.add(state_.chosen);
    state_.selected = state_.chosen;
  }
  changed();
}

std::optional<ui::Rect> SystemSettings::listFrame() const {
  if (view_ == nullptr || state_.page != accessibilityPage || state_.isChoosing) {
    return std::nullopt;
  }
  view_->update();
  const auto list =
      findElement(view_->host().semantics(),
                  [label = accessibilityListLabel(language())](const ui::SemanticsNode& node) {
                    return node.role == ui::Role::group && node.label == label;
                  });
  return list ? std::optional(list->frame) : std::nullopt;
}

void SystemSettings::setDragOver(bool isOver) {
  if (isOver != state_.isDragOver) {
    state_.isDragOver = isOver;
    changed();
  }
}

void SystemSettings::dropped(const std::string& fileUrl) {
  const std::string name = AccessibilityList::applicationOf(fileUrl);
  if (!name.empty()) {
    applications_.add(name);
    state_.selected = name;
    changed();
  }
}

}  // namespace orvane::desk
