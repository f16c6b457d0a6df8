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
class ModifierElement : public Element {
 public:
  ModifierElement(View content, Value value)
      : content_(std::move(content)), value_(std::move(value)) {}

  [[nodiscard]] const View& content() const { return content_; }
  [[nodiscard]] const Value& value() const { return value_; }
  void build(Node& node, BuildPass& pass) const override { pass.children(node, {&content_, 1}); }

 private:
  View content_;
  Value value_;
};

/// The view in a modifier; an empty view stays empty.
template <typename Modifier, typename Value>
[[nodiscard]] View modified(const View& view, Value value) {
  return view.isEmpty() ? View() : View(std::make_shared<Modifier>(view, std::move(value)));
}

}  // namespace orvane::ui
