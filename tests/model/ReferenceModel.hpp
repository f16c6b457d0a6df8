// A reference implementation of the state model, small and slow, for comparison with the real one
// after every step.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneStatus.hpp"
#include "tests/model/ReferenceGuard.hpp"
#include "tests/model/ReferenceWorld.hpp"

namespace orvane::reference {

/// One run of the application.
class Model {
 public:
  /// `pin` is a request to lock that comes after a request to prevent has been granted.
  enum class Request { lock, pin, prevent, overtaken };

  explicit Model(World& world);

  void refresh();
  void select(const std::string& id);
  void toggleLock();
  void togglePin();
  void togglePrevent();
  void restore();
  void setPrevents(bool newPrevents);
  void setModifier(const std::string& newModifier);
  void setLanguage(const std::string& newLanguage);
  void openAccessibilitySettings();

  /// The user grants the permission for the request.
  void granted(Request request);
  void displaysChanged();
  void move(CGPoint place, std::uint64_t flags, CGPoint& outcome);
  /// Runs what was posted to the main queue.
  void settle();
  /// Time has passed: runs what is due.
  void catchUp();

  [[nodiscard]] OrvaneStatus status() const;
  [[nodiscard]] bool isRunning() const { return guard.hasTap; }

  Guard guard;
  std::vector<std::string> displays;
  std::optional<std::string> selected;
  bool hasPermission;
  bool isUnlocked = false;
  double lastChecked;
  std::string language;
  std::string modifier;
  bool prevents;
  /// The requests that the user has yet to answer.
  std::vector<Request> requests;
  bool isAsking = false;

 private:
  void setSelected(const std::optional<std::string>& id);
  /// The user starts or stops the guard, which cancels earlier requests.
  void overtakeRequests();
  void ask(Request request);
  void start();
  void startForTheUser();
  void stopIfRunning();
  void restartIfRunning();
  [[nodiscard]] bool isTargetListed() const;
  [[nodiscard]] const Screen* listed(const std::string& identifier) const;

  World& world_;
  /// The screens as they were when they were last listed.
  std::vector<Screen> listed_;
  double askingEnds_ = 0;
  bool isGranting_ = false;
  std::vector<double> looks_;
};

}  // namespace orvane::reference
