// Images of the application's resources and symbols, both by name.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

enum class ContentMode {
  // Any shape that is proposed.
  stretch,
  // The largest size of its own proportions inside of what is proposed, or the smallest that covers
  // it.
  fit,
  fill
};

// Without `resizable` an image keeps its own size. An unknown one has none and shows nothing. It is
// decoration, hidden from the semantics tree, until it is given an accessibility label. In the dark
// appearance an image NAME-dark, where there is one, takes the place of NAME in the same size.
class Image : public View {
 public:
  explicit Image(std::string name);

  View resizable(ContentMode mode = ContentMode::stretch) const;

 private:
  std::string name_;
};

// A symbol in the inherited font's size and weight, in the inherited colour. Decoration as well.
class Symbol : public View {
 public:
  explicit Symbol(std::string name);
};

}  // namespace orvane::ui
