// The modifiers that correct or complete what a view tells a screen reader.
#include "Orvane/ui/views/Node.hpp"
#include "Orvane/ui/views/WrapperElement.hpp"

namespace orvane::ui {

namespace {

class SemanticsElement final : public WrapperElement {
 public:
  SemanticsElement(View content, SemanticsChange change)
      : WrapperElement(std::move(content)), change_(std::move(change)) {}

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
  SemanticsChange change;
  change.label = std::move(label);
  return modified<SemanticsElement>(*this, std::move(change));
}

View View::accessibilityRole(Role role) const {
  SemanticsChange change;
  change.role = role;
  return modified<SemanticsElement>(*this, std::move(change));
}

View View::accessibilityValue(std::string value) const {
  SemanticsChange change;
  change.value = std::move(value);
  return modified<SemanticsElement>(*this, std::move(change));
}

View View::accessibilitySelected(bool isSelected) const {
  SemanticsChange change;
  change.isSelected = isSelected;
  return modified<SemanticsElement>(*this, std::move(change));
}

View View::accessibilityHidden(bool isHidden) const {
  SemanticsChange change;
  change.isHidden = isHidden;
  return modified<SemanticsElement>(*this, std::move(change));
}

}  // namespace orvane::ui
