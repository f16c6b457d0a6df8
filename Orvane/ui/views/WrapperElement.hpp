// The base of the modifiers: an element around one view.
#pragma once

#include <memory>
#include <utility>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

class WrapperElement : public Element {
 public:
  explicit WrapperElement(View content) : content_(std::move(content)) {}

  const View& content() const { return content_; }
  void build(Node& node, Builder& builder) const override;

 private:
  View content_;
};

// The view inside a modifier; an empty view stays empty whatever is done to it.
template <typename Modifier, typename... Arguments>
View modified(const View& view, Arguments&&... arguments) {
  return view.isEmpty()
             ? View()
             : View(std::make_shared<Modifier>(view, std::forward<Arguments>(arguments)...));
}

}  // namespace orvane::ui
