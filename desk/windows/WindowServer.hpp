// The window server of a machine: windows, focus, menus, status items, and the routing of pointer
// and key events. It is created on first use.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/canvas/DrawingResources.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/machine/MachineObserver.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "desk/windows/MenuTracker.hpp"
#include "desk/windows/ModalSessions.hpp"
#include "desk/windows/PointerRouter.hpp"
#include "desk/windows/RunningApplication.hpp"
#include "desk/windows/StatusBar.hpp"
#include "desk/windows/Tooltips.hpp"
#include "desk/windows/ViewUpdates.hpp"
#include "desk/windows/WindowFocus.hpp"
#include "desk/windows/WindowList.hpp"

namespace orvane::desk {

/// Callbacks may do anything, even close the window that they belong to: the server holds
/// references to the objects it works on.
class WindowServer : public MachineObserver {
 public:
  using Window = std::shared_ptr<DeskWindow>;

  explicit WindowServer(Machine& machine) : machine_(machine) {}
  ~WindowServer() override;

  /// The current machine's; created if there is none yet.
  static WindowServer& current();
  /// Null before the first use.
  static WindowServer* of(const Machine& machine);

  [[nodiscard]] Machine& machine() { return machine_; }
  [[nodiscard]] const Machine& machine() const { return machine_; }
  [[nodiscard]] DrawingResources& resources() { return resources_; }

  /// Installs a program of the system, which lives as long as the server.
  void install(std::shared_ptr<void> program) { programs_.push_back(std::move(program)); }

  /// The windows that are visible, miniaturised or hidden by deactivation, back to front.
  [[nodiscard]] WindowList::Windows windows() const { return list_.backToFront(); }
  [[nodiscard]] bool isVisible(const DeskWindow& window) const;
  /// The frontmost window at a point in global coordinates; null when there is none.
  [[nodiscard]] Window windowAt(CGPoint globalPlace) const;
  /// The window with this content; null when there is none.
  [[nodiscard]] Window windowShowing(const HostedView& view) const;
  /// The view's top left in global coordinates; none when it is not visible.
  [[nodiscard]] std::optional<CGPoint> originOf(const HostedView& view) const;
  /// The top left of a window's frame, in global coordinates.
  [[nodiscard]] CGPoint topLeftOf(const DeskWindow& window) const;
  /// The index of the display that shows most of the window; none when no display shows it.
  [[nodiscard]] std::optional<std::size_t> displayIndexOf(const DeskWindow& window) const;

  /// Shows the window in front of the others of its level; while the application is inactive, only
  /// in front of its own windows, unless `regardless`.
  void orderFront(const Window& window, bool regardless);
  /// Takes the window and its children off the screen.
  void orderOut(const Window& window);
  /// Calls the window's willClose first, once.
  void close(const Window& window);
  /// The action of the close button; does nothing without that style.
  void performClose(const Window& window);
  /// Does nothing without that style.
  void miniaturize(const Window& window);
  void deminiaturize(const Window& window);
  /// Moves the children, too. Ignores an origin that is not finite.
  void setOrigin(DeskWindow& window, CGPoint origin);
  /// Centres it horizontally on its screen, and vertically with one third of the space above it.
  void center(DeskWindow& window);
  void addChild(const Window& parent, const Window& child);
  void removeChild(const Window& parent, const Window& child);
  void setContent(const Window& window, std::shared_ptr<HostedView> view);
  /// To be called when the visibility of a window may have changed.
  void noteChange();

  /// Sends a key press to the menu or the key window. Whether it was handled.
  bool keyDown(const ui::KeyEvent& event);

  void displaysChanged() override;
  void processEnded() override;
  [[nodiscard]] std::optional<std::size_t> keyDisplayIndex() const override;

 private:
  Machine& machine_;
  DrawingResources resources_;
  WindowList list_;

 public:
  ViewUpdates updates{*this};
  RunningApplication application{*this};
  WindowFocus focus{*this};
  ModalSessions modal{*this};
  StatusBar statusBar{*this};
  MenuTracker menus{*this};
  Tooltips tooltips{*this};
  PointerRouter pointer{*this};
  /// The screen-reader announcements of the process, in order.
  std::vector<std::string> announcements;

 private:
  std::vector<std::shared_ptr<void>> programs_;
};

}  // namespace orvane::desk
