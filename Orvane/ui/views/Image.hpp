// Images of the application's resources, and symbols.
#pragma once

#include <string>

#include "Orvane/ui/views/View.hpp"

namespace orvane::ui {

/// In its own size; an unknown image has none and shows nothing. It is not in the semantics tree
/// until it has an accessibility label. In the dark appearance the image NAME-dark, if there is
/// one, replaces NAME in the same size.
class [[nodiscard]] Image : public View {
 public:
  explicit Image(std::string name);

  /// In the largest size of its own proportions within the proposed size.
  View resizable() const;

 private:
  std::string name_;
};

/// A symbol in the size and weight of the inherited font and in the inherited colour. As an image,
/// it is not in the semantics tree.
struct [[nodiscard]] Symbol : View {
  explicit Symbol(std::string name);
};

}  // namespace orvane::ui
