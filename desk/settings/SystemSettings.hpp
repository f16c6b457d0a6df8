// The simulated System Settings: a program of the system with one window, opened by links, in which
// the user allows applications to control the computer.
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
#include "desk/windows/SystemProgram.hpp"

namespace orvane::desk {

class HostedView;
class Machine;
class WindowServer;
struct DeskWindow;

/// It outlives the application's process, as a program of its own does. What it shows of the
/// machine is read anew whenever the machine has changed.
class SystemSettings : public SystemProgram {
 public:
  /// The window's size in points.
  static constexpr double width = 715;
  static constexpr double height = 500;

  /// What the user has opened and chosen.
  struct State {
    SettingsPage page = SettingsPage::general;
    /// The application that is selected in the Accessibility list; empty for none.
    std::string selected;
    /// Whether the sheet that adds an application is open, and what is selected there.
    bool isChoosing = false;
    std::string chosen;
    /// Whether a file is being dragged over the list.
    bool isDragOver = false;
  };

  /// Use installOn.
  explicit SystemSettings(WindowServer& server);
  ~SystemSettings() override;

  /// Once for each server. From then on it opens when a link names one of its pages.
  static SystemSettings& installOn(WindowServer& server);

  /// The page that a link names; none when it is not one of the settings'.
  [[nodiscard]] static std::optional<SettingsPage> pageOf(const std::string& url);
  /// A link or file was opened: opens the window when it is one of the settings'.
  void linkOpened(const Links::Opened& link);
  /// Brings the window to the front, on the page that it showed last.
  void open();
  void open(SettingsPage page);

  [[nodiscard]] const State& state() const { return state_; }
  [[nodiscard]] const Machine& machine() const;
  [[nodiscard]] SystemLanguage language() const;
  [[nodiscard]] const AccessibilityList& applications() const { return applications_; }

  void goTo(SettingsPage page);
  /// Applications are known by their names.
  void select(const std::string& name);
  void setAllowed(const std::string& name, bool isAllowed);
  void removeSelected();
  /// The sheet that adds an application.
  void beginChoosing();
  void choose(const std::string& name);
  void endChoosing(bool addsChosen);
  void setDockEdge(DockEdge edge);
  void setDockAutoHides(bool hides);

  /// The list that takes dropped applications, from the top left of the window's content; none
  /// while it is not shown.
  [[nodiscard]] std::optional<ui::Rect> listFrame() const;

 private:
  /// What the views read and nobody announces.
  struct Facts {
    std::vector<AccessibilityList::Entry> applications;
    SystemLanguage language;
    DockEdge dockEdge;
    bool dockAutoHides;
    long long displayChanges;

    friend bool operator==(const Facts&, const Facts&) = default;
  };

  void makeWindow();
  void place();
  [[nodiscard]] Facts facts() const;
  void followMachine();
  void setDragOver(bool isOver);
  void dropped(const std::string& fileUrl);
  void changed();

  WindowServer& server_;
  AccessibilityList applications_;
  State state_;
  std::optional<Facts> shownFacts_;
  std::shared_ptr<HostedView> view_;
  std::shared_ptr<DeskWindow> window_;
};

}  // namespace orvane::desk
