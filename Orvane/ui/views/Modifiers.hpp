// The base of the modifiers. The modifiers themselves are members of View, implemented by kind in
// the files *Modifiers.cpp, Environment.cpp and Semantics.cpp.
#pragma once

#include <memory>
#include <utility>

#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// An element around one view. The value says what the modifier does.
template <typename Value>
struct ModifierElement : Element {
  View content;
  Value value;

  void build(Node& node, BuildPass& pass) const override { pass.children(node, {&content, 1}); }
};

/// The view in a modifier.
template <typename Modifier, typename Value>
[[nodiscard]] View wrapped(const View& content, Value value) {
  const auto element = std::make_shared<Modifier>();
  element->content = content;
  element->value = std::move(value);
  return View(element);
}

/// The same, but an empty view stays empty.
template <typename Modifier, typename Value>
[[nodiscard]] View modified(const View& view, Value value) {
  return view.isEmpty() ? View() : wrapped<Modifier>(view, std::move(value));
}

/// For modifiers of one kind of view: the view with a copy of its element, which is of this class
/// and which the function changes.
template <typename OwnElement, typename Change>
[[nodiscard]] View altered(const View& view, const Change& change) {
  const auto copy = std::make_shared<OwnElement>(static_cast<const OwnElement&>(*view.element()));
  change(*copy);
  return View(copy);
}

}  // namespace orvane::ui
