// The present pass: samples every animation at one moment and determines where each node is and
// what has to be repainted.
#pragma once

#include <optional>

#include "Orvane/ui/host/Damage.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

class PresentPass {
 public:
  /// Adds the areas that look different from the previous presentation to the damage.
  PresentPass(double now, Damage& damage) : now_(now), damage_(damage) {}

  void present(Node& root);

  /// Whether an animation is still running.
  [[nodiscard]] bool isMoving() const { return isMoving_; }

 private:
  /// The effects of all ancestors.
  struct Inherited {
    Transform toHost;
    double opacity = 1;
    /// How far the ancestors' shadows extend beyond what is painted.
    Edges reach;
    /// In host coordinates; none without a limit.
    std::optional<Rect> clip;
    std::uint64_t fingerprint;
    bool isMoving = false;
  };

  void visit(Node& node, const Inherited& outer);
  [[nodiscard]] Inherited through(const Node& node, const Inherited& outer, bool isChanging) const;
  void updateInk(Node& node, const Inherited& inner);
  bool settle(Node& node);
  void removeGone(Node& node);

  double now_;
  Damage& damage_;
  bool isMoving_ = false;
};

}  // namespace orvane::ui
