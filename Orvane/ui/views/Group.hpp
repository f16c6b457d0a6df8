// Several views in one place of a container, which lays them out one by one.
#pragma once

#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// Lays out its children on top of each other, the first one lowest; as large as the largest.
class OverlaidElement : public Element {
 public:
  OverlaidElement(Alignment alignment, std::vector<View> members)
      : alignment_(alignment), members_(std::move(members)) {}

  [[nodiscard]] const std::vector<View>& members() const { return members_; }
  [[nodiscard]] Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override;
  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override;

 private:
  Alignment alignment_;
  std::vector<View> members_;
};

class GroupElement final : public OverlaidElement {
 public:
  /// Groups without an id among the members are replaced by their members.
  explicit GroupElement(const std::vector<View>& members);

  void build(Node& node, BuildPass& pass) const override;
};

/// Outside of a stack, its members are laid out on top of each other.
class [[nodiscard]] Group : public View {
 public:
  explicit Group(const std::vector<View>& members)
      : View(std::make_shared<GroupElement>(members)) {}
};

/// One view per item, each with the item's id, so that it keeps its node when items are added,
/// removed and moved. `identify` returns an item's id as a string; `make` returns its view and may
/// take the item's index as a second argument.
template <typename Items, typename Identify, typename Make>
Group forEach(const Items& items, const Identify& identify, const Make& make) {
  std::vector<View> views;
  std::size_t index = 0;
  for (const auto& item : items) {
    if constexpr (std::is_invocable_v<const Make&, decltype(item), std::size_t>) {
      views.push_back(View(make(item, index)).id(identify(item)));
    } else {
      views.push_back(View(make(item)).id(identify(item)));
    }
    ++index;
  }
  return Group(views);
}

}  // namespace orvane::ui
