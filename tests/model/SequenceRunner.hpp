// SequenceRunner applies each action both to the application on a simulated machine and to its
// reference, and describes both in the same format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/model/OrvaneModel.hpp"
#include "desk/machine/MachineScope.hpp"
#include "tests/model/ReferenceModel.hpp"
#include "tests/model/ReferenceWorld.hpp"
#include "tests/model/SequenceAction.hpp"

namespace orvane::reference {

class SequenceRunner {
 public:
  /// Starts with two screens attached, the permission granted and the application launched.
  SequenceRunner();
  SequenceRunner(const SequenceRunner&) = delete;
  SequenceRunner& operator=(const SequenceRunner&) = delete;

  void perform(const Action& action);

  /// The application's observable state, and the reference's, line by line.
  [[nodiscard]] std::string seen();
  [[nodiscard]] std::string expected();

  /// The final locations of the last pointer movement, of both; they must be equal.
  [[nodiscard]] std::pair<CGPoint, CGPoint> outcomes() const { return outcomes_; }

  /// Ends the machine; true when nothing was left behind.
  [[nodiscard]] bool endsCleanly();

 private:
  void performOnTheWorld(const Action& action);
  void performOnTheApplication(const Action& action);

  void launch();
  void endProcess();
  void corruptStorage(const Action& action);
  void attach(std::size_t slot);
  void detach(std::size_t index);
  void renumber(std::size_t index, std::uint32_t number);
  void moveScreen(std::size_t index, std::size_t variant);
  void displaysChanged();
  void setDockEdge(std::size_t choice);
  void setTrusted(bool trusted);
  void movePointer(std::size_t where, std::size_t howOften);
  void grant();
  void settle();
  [[nodiscard]] desk::Machine& machine() const { return scope_.machine(); }
  [[nodiscard]] OrvaneModel& model() const;

  desk::MachineScope scope_;
  World world_;
  std::optional<Model> reference_;
  std::vector<std::function<void()>> prompts_;
  std::uint64_t heldKeys_ = 0;
  std::pair<CGPoint, CGPoint> outcomes_{};
};

}  // namespace orvane::reference
