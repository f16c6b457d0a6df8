// One run of presentation: samples every animation at a moment, notes where each node then is in
// the host's coordinates, and finds what has to be repainted.
#pragma once

#include <vector>

#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

class Presenter {
 public:
  explicit Presenter(double now) : now_(now) {}

  void present(Node& root);

  // Areas in the host's coordinates that look different from the presentation before.
  const std::vector<Rect>& dirty() const { return dirty_; }
  // True while anything has not yet arrived.
  bool isMoving() const { return isMoving_; }

 private:
  // What the ancestors do to everything below them.
  struct Inherited {
    Transform toHost;
    double opacity = 1;
    // How far shadows of ancestors reach beyond what is painted.
    Edges reach;
    // What is painted outside of this is cut off; empty means no limit.
    std::optional<Rect> clip;
    std::uint64_t fingerprint;
    bool isMoving = false;
  };

  void visit(Node& node, const Inherited& outer);
  Inherited through(const Node& node, const Inherited& outer, bool isChanging) const;
  void note(Node& node, const Inherited& inner);
  bool settle(Node& node);
  void removeGone(Node& node);

  double now_;
  bool isMoving_ = false;
  std::vector<Rect> dirty_;
};

}  // namespace orvane::ui
