// The base of the modifiers. The modifiers themselves are members of View; each *Modifiers.cpp
// implements those of one kind.
#pragma once

#include <memory>
#include <utility>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// An element around one view.
class ModifierElement : public Element {
 public:
  explicit ModifierElement(View content) : content_(std::move(content)) {}

  [[nodiscard]] const View& content() const { return content_; }
  void build(Node& node, BuildPass& pass) const override;

 private:
  View content_;
};

/// The view in a modifier; an empty view stays empty.
template <typename Modifier, typename... Arguments>
[[nodiscard]] View modified(const View& view, Arguments&&... arguments) {
  return view.isEmpty()
             ? View()
             : View(std::make_shared<Modifier>(view, std::forward<Arguments>(arguments)...));
}

}  // namespace orvane::ui
