// The simulated System Settings: a system program with one window, opened by links, in which the
// user allows applications to control the computer.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/ui/layout/Rect.hpp"
#include "desk/machine/DockEdge.hpp"
#include "desk/machine/Links.hpp"
#include "desk/settings/AccessibilityList.hpp"
#include "desk/settings/SettingsPage.hpp"
#include "desk/settings/SystemLanguage.hpp"

namespace orvane::desk {

class HostedView;
class Machine;
class WindowServer;
struct DeskWindow;

/// A separate program: it outlives the application's process. It has the Accessibility page;
/// `extend` adds more. The window is rebuilt when the machine has changed.
class SystemSettings {
 public:
  /// The window's size in points.
  static constexpr double width = 715;
  static constexpr double height = 500;

  static constexpr const char* accessibilityPage = "accessibility";
  /// Its parent, which `extend` may add.
  static constexpr const char* privacyPage = "privacy";

  /// What the user has opened and chosen.
  struct State {
    /// The page's name.
    std::string page = accessibilityPage;
    /// The application that is selected in the Accessibility list; empty for none.
    std::string selected;
    /// Whether the sheet that adds an application is open, and what is selected there.
    bool isChoosing = false;
    std::string chosen;
    /// A file is being dragged over the list.
    bool isDragOver = false;
  };

  /// Use installOn.
  explicit SystemSettings(WindowServer& server);
  SystemSettings(const SystemSettings&) = delete;
  SystemSettings& operator=(const SystemSettings&) = delete;
  ~SystemSettings();

  /// To be called once for each server. The window opens when a link to one of its pages is opened.
  static SystemSettings& installOn(WindowServer& server);

  /// Adds pages, and the sidebar that leads to them. Of several pages that match a link, the one
  /// added first opens.
  void extend(std::vector<SettingsPage> pages, SettingsPage::MakeView makeSidebar);
  [[nodiscard]] const std::vector<SettingsPage>& pages() const { return pages_; }

  /// Brings the window to the front, with the page that it showed last.
  void open();
  void open(const std::string& page);

  [[nodiscard]] const State& state() const { return state_; }
  /// The views of the current page and, if the window has been extended, of the sidebar.
  [[nodiscard]] ui::View pageView();
  [[nodiscard]] ui::View sidebarView();
  /// The parent of the current page; null if it has none, or if there is no such page.
  [[nodiscard]] const SettingsPage* parentPage() const;
  [[nodiscard]] Machine& machine() const;
  [[nodiscard]] SystemLanguage language() const;
  [[nodiscard]] const AccessibilityList& applications() const { return applications_; }

  /// By the page's name; an unknown page is empty. A change of page resets the rest of the state.
  void goTo(const std::string& page);
  /// Applications are identified by name.
  void select(const std::string& name);
  void setAllowed(const std::string& name, bool isAllowed);
  void removeSelected();
  /// The sheet that adds an application.
  void beginChoosing();
  void choose(const std::string& name);
  void endChoosing(bool addsChosen);

  /// The frame of the list that accepts dropped applications, from the top left of the window's
  /// content; none while it is not shown.
  [[nodiscard]] std::optional<ui::Rect> listFrame() const;

 private:
  /// What pages read without being notified of changes.
  struct Facts {
    std::vector<AccessibilityList::Entry> applications;
    SystemLanguage language;
    DockEdge dockEdge;
    bool dockAutoHides;
    long long displayChanges;

    friend bool operator==(const Facts&, const Facts&) = default;
  };

  void linkOpened(const Links::Opened& link);
  /// Null when there is none.
  [[nodiscard]] const SettingsPage* findPage(const std::string& name) const;
  void makeWindow();
  void place();
  [[nodiscard]] Facts facts() const;
  void followMachine();
  void setDragOver(bool isOver);
  void dropped(const std::string& fileUrl);
  void changed();

  WindowServer& server_;
  AccessibilityList applications_;
  std::vector<SettingsPage> pages_;
  SettingsPage::MakeView makeSidebar_;
  State state_;
  std::optional<Facts> shownFacts_;
  std::shared_ptr<HostedView> view_;
  std::shared_ptr<DeskWindow> window_;
};

}  // namespace orvane::desk
