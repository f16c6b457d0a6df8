// The modifiers that change the elements of a view in the semantics tree.
#include "Orvane/ui/views/Modifiers.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

// Unset members change nothing.
struct SemanticsChange {
  std::optional<Role> role = std::nullopt;
  std::optional<std::string> label = std::nullopt;
  std::optional<std::string> value = std::nullopt;
  std::optional<bool> isSelected = std::nullopt;
  bool isHidden = false;
};

class SemanticsElement final : public ModifierElement {
 public:
  SemanticsElement(View content, SemanticsChange change)
      : ModifierElement(std::move(content)), change_(std::move(change)) {}

  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode> children) const override {
    if (change_.isHidden) {
      return {};
    }
    SemanticsNode element;
    if (children.size() == 1) {
      element = std::move(children.front());
    } else {
      element.id = node.id;
      element.frame = node.hostFrame();
      element.isEnabled = node.environment->isEnabled;
      element.children = std::move(children);
    }
    element.role = change_.role.value_or(element.role);
    element.label = change_.label.value_or(element.label);
    element.value = change_.value.value_or(element.value);
    element.isSelected = change_.isSelected.value_or(element.isSelected);
    return {std::move(element)};
  }

 private:
  SemanticsChange change_;
};

}  // namespace

View View::accessibilityLabel(std::string label) const {
  return modified<SemanticsElement>(*this, SemanticsChange{.label = std::move(label)});
}

View View::accessibilityRole(Role role) const {
  return modified<SemanticsElement>(*this, SemanticsChange{.role = role});
}

View View::accessibilityValue(std::string value) const {
  return modified<SemanticsElement>(*this, SemanticsChange{.value = std::move(value)});
}

View View::accessibilitySelected(bool isSelected) const {
  return modified<SemanticsElement>(*this, SemanticsChange{.isSelected = isSelected});
}

View View::accessibilityHidden(bool isHidden) const {
  return modified<SemanticsElement>(*this, SemanticsChange{.isHidden = isHidden});
}

}  // namespace orvane::ui
