// The window server of the simulated Mac: its windows, who of them is key, menus, status items, and
// where pointer and keys go. It stands on a machine and is made when it is first needed.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/canvas/DrawingResources.hpp"
#include "desk/canvas/PangoTextMeasurer.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/machine/MachineObserver.hpp"
#include "desk/windows/DeskWindow.hpp"
#include "desk/windows/MenuTracker.hpp"
#include "desk/windows/ModalSessions.hpp"
#include "desk/windows/PointerRouter.hpp"
#include "desk/windows/RunningApplication.hpp"
#include "desk/windows/StatusBar.hpp"
#include "desk/windows/SystemProgram.hpp"
#include "desk/windows/Tooltips.hpp"
#include "desk/windows/ViewUpdates.hpp"
#include "desk/windows/WindowFocus.hpp"
#include "desk/windows/WindowList.hpp"

namespace orvane::desk {

/// Callbacks may do anything, also end the windows they came from; what is being worked on is held
/// meanwhile.
class WindowServer : public MachineObserver {
 public:
  using Window = std::shared_ptr<DeskWindow>;

  explicit WindowServer(Machine& machine);
  ~WindowServer() override;

  /// That of the current machine, made if there is none yet.
  static WindowServer& current();
  /// Null when nobody has needed one yet.
  static WindowServer* of(const Machine& machine);

  [[nodiscard]] Machine& machine() { return machine_; }
  [[nodiscard]] const Machine& machine() const { return machine_; }
  [[nodiscard]] DrawingResources& resources() { return resources_; }
  [[nodiscard]] ui::TextMeasurer& text() { return text_; }

  /// From now on the program lives as long as the server.
  void install(std::unique_ptr<SystemProgram> program) { programs_.push_back(std::move(program)); }

  /// The windows that are on the screen, miniaturised, or hidden for a while, back to front.
  [[nodiscard]] WindowList::Windows windows() const { return list_.backToFront(); }
  [[nodiscard]] bool isVisible(const DeskWindow& window) const;
  /// The frontmost window there, in global coordinates; null when there is none.
  [[nodiscard]] Window windowAt(CGPoint globalPlace) const;
  /// The window whose content the view is; null when it is nobody's.
  [[nodiscard]] Window windowShowing(const HostedView& view) const;
  /// Where the view's top left is, in global coordinates; none when it is not on the screen.
  [[nodiscard]] std::optional<CGPoint> originOf(const HostedView& view) const;
  /// The top left of a window's frame, in global coordinates.
  [[nodiscard]] CGPoint topLeftOf(const DeskWindow& window) const;
  /// The display that most of the window is on, by its place in the list; none when it is on none.
  [[nodiscard]] std::optional<std::size_t> displayIndexOf(const DeskWindow& window) const;

  /// Shows the window, in front of those of its level; while the application is not active, only
  /// in front of its own, unless `regardless`.
  void orderFront(const Window& window, bool regardless);
  /// Takes the window and its children off the screen.
  void orderOut(const Window& window);
  /// Tells the window's owner first, once.
  void close(const Window& window);
  /// As the close button does; nothing for a window without that style.
  void performClose(const Window& window);
  /// Nothing for a window without that style.
  void miniaturize(const Window& window);
  void deminiaturize(const Window& window);
  /// The children move with it.
  void setOrigin(DeskWindow& window, CGPoint origin);
  /// In the middle of its screen, a little above the middle.
  void center(DeskWindow& window);
  void addChild(const Window& parent, const Window& child);
  void removeChild(const Window& parent, const Window& child);
  void setContent(const Window& window, std::shared_ptr<HostedView> view);
  /// Whether a window is on the screen may have changed.
  void noteChange();

  /// A key is pressed. Returns whether anybody did anything with it.
  bool keyDown(const ui::KeyEvent& event);

  void displaysChanged() override;
  void processEnded() override;
  [[nodiscard]] std::optional<std::size_t> keyDisplayIndex() const override;

 private:
  Machine& machine_;
  DrawingResources resources_;
  PangoTextMeasurer text_;
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
  /// What was spoken to users of a screen reader.
  std::vector<std::string> announcements;

 private:
  std::vector<std::unique_ptr<SystemProgram>> programs_;
};

}  // namespace orvane::desk
