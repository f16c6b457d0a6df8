// The modifiers that change the elements of a view in the semantics tree, and the names of the
// roles.
#include "Orvane/ui/views/Semantics.hpp"

#include <array>

#include "Orvane/ui/views/Modifiers.hpp"

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

struct SemanticsElement final : ModifierElement<SemanticsChange> {
  std::vector<SemanticsNode> semantics(const Node& node,
                                       std::vector<SemanticsNode> children) const override {
    if (value.isHidden) {
      return {};
    }
    SemanticsNode element;
    if (children.size() == 1) {
      element = std::move(children.front());
    } else {
      element = node.semantics(Role::group);
      element.children = std::move(children);
    }
    element.role = value.role.value_or(element.role);
    element.label = value.label.value_or(element.label);
    element.value = value.value.value_or(element.value);
    element.isSelected = value.isSelected.value_or(element.isSelected);
    return {std::move(element)};
  }
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

View View::accessibilityHidden() const {
  return modified<SemanticsElement>(*this, SemanticsChange{.isHidden = true});
}

const char* roleName(Role role) {
  // In the order of the enumeration.
  constexpr std::array names{"group",  "text",         "heading",       "image",      "button",
                             "toggle", "radio button", "pop-up button", "scroll area"};
  return names.at(static_cast<std::size_t>(role));
}

}  // namespace orvane::ui
