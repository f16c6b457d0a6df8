// Several views in one place of a container: they take part in its layout as if they stood there
// one by one.
#pragma once

#include <vector>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class GroupElement final : public Element {
 public:
  // Groups inside are spread out.
  explicit GroupElement(const std::vector<View>& members);

  const std::vector<View>& members() const { return members_; }
  void build(Node& node, Builder& builder) const override;
  Size measure(Node& node, const Proposal& proposal, LayoutPass& pass) const override;
  void place(Node& node, const Proposal& proposal, Size size, LayoutPass& pass) const override;

 private:
  std::vector<View> members_;
};

// Outside of a stack, its members lie above one another.
class Group : public View {
 public:
  explicit Group(const std::vector<View>& members)
      : View(std::make_shared<GroupElement>(members)) {}
};

// One view per item, each with an identity of its own, so that it keeps its node when items come,
// go and move. `identify` returns the item's id as a string; `make` its view and may take the
// item's index as a second argument.
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
