// The window is made when it is first opened, and kept from then on.
#include "desk/settings/SystemSettings.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "desk/settings/SystemSettingsView.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::desk {

namespace {

/// A link that begins so opens that page. Of two that fit, the first one does.
constexpr std::array<std::pair<std::string_view, SettingsPage>, 6> pagesByLink{{
    {"x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_Accessibility",
     SettingsPage::accessibility},
    {"x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
     SettingsPage::accessibility},
    {"x-apple.systempreferences:com.apple.preference.security", SettingsPage::privacy},
    {"x-apple.systempreferences:com.apple.Desktop-Settings.extension",
     SettingsPage::desktopAndDock},
    {"x-apple.systempreferences:com.apple.preference.dock", SettingsPage::desktopAndDock},
    {"x-apple.systempreferences:com.apple.LoginItems-Settings.extension", SettingsPage::general},
}};
constexpr std::string_view application = "file:///System/Applications/System%20Settings.app";

std::optional<ui::Rect> frameOf(const ui::SemanticsNode& node, const std::string& label) {
  if (node.role == ui::Role::group && node.label == label) {
    return node.frame;
  }
  for (const ui::SemanticsNode& child : node.children) {
    if (const auto frame = frameOf(child, label)) {
      return frame;
    }
  }
  return std::nullopt;
}

}  // namespace

SystemSettings::SystemSettings(WindowServer& server)
    : server_(server), applications_(server.machine().permission) {
  server.machine().links.onOpened([this](const Links::Opened& link) { linkOpened(link); });
}

SystemSettings::~SystemSettings() {
  server_.machine().links.onOpened(nullptr);
}

SystemSettings& SystemSettings::installOn(WindowServer& server) {
  auto program = std::make_unique<SystemSettings>(server);
  SystemSettings& installed = *program;
  server.install(std::move(program));
  return installed;
}

std::optional<SettingsPage> SystemSettings::pageOf(const std::string& url) {
  for (const auto& [link, page] : pagesByLink) {
    if (url.starts_with(link)) {
      return page;
    }
  }
  return std::nullopt;
}

void SystemSettings::linkOpened(const Links::Opened& link) {
  if (!link.wasAccepted) {
    return;
  }
  if (const auto page = pageOf(link.url)) {
    open(*page);
  } else if (std::string_view(link.url).starts_with(application)) {
    open();
  }
}

void SystemSettings::open(SettingsPage page) {
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
  // Left of the middle, where a guide that stands at the right leaves it free.
  constexpr double distanceFromMiddle = 70;
  const Displays& displays = server_.machine().displays;
  const auto index = server_.machine().pointer.displayIndex();
  if (displays.isEmpty()) {
    return;
  }
  const CGRect area = displays.all()[index.value_or(0)].frame;
  // Where the display is too small, the top with the close button stays in view.
  const double x = std::max(area.origin.x, CGRectGetMidX(area) - width / 2 - distanceFromMiddle);
  const double free = area.size.height - Displays::menuBarHeight - height;
  const double y = area.origin.y + (free > 0 ? free / 2 : free);
  server_.setOrigin(*window_, {std::floor(x), std::floor(y)});
}

const Machine& SystemSettings::machine() const {
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

void SystemSettings::goTo(SettingsPage page) {
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

void SystemSettings::setDockEdge(DockEdge edge) {
  server_.machine().preferences.set({Dock::preferencesDomain}, Dock::orientationKey,
                                    std::string(nameOf(edge)));
  changed();
}

void SystemSettings::setDockAutoHides(bool hides) {
  server_.machine().preferences.set({Dock::preferencesDomain}, Dock::autoHideKey, hides);
  changed();
}

std::optional<ui::Rect> SystemSettings::listFrame() const {
  if (view_ == nullptr || state_.page != SettingsPage::accessibility || state_.isChoosing) {
    return std::nullopt;
  }
  view_->update();
  return frameOf(view_->host().semantics(), SystemSettingsView::listLabel(language()));
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
