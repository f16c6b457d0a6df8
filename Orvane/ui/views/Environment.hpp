// What flows down the tree of views: appearance, inherited text attributes, and the way back to the
// host.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Orvane/base/Require.hpp"
#include "Orvane/ui/draw/Appearance.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/draw/ImageSource.hpp"
#include "Orvane/ui/draw/LineLimit.hpp"
#include "Orvane/ui/host/HostLink.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "Orvane/ui/views/State.hpp"

namespace orvane::ui {

enum class TextAlignment { leading, center, trailing };

struct Environment {
  Appearance appearance;
  Font font = Font::body();
  Color foreground = Color::primary();
  TextAlignment textAlignment = TextAlignment::leading;
  // 0 means any number of lines.
  int lineLimit = 0;
  TruncationMode truncationMode = TruncationMode::tail;
  // The fraction of its width by which a single line may be set closer before it is cut.
  double tightening = 0;
  // In points; none for the height that the characters ask for.
  std::optional<double> lineHeight;
  bool isEnabled = true;
  // Activates the first control below.
  std::optional<KeyboardShortcut> shortcut;

  // Set by the host.
  std::weak_ptr<HostLink> link;
  const ImageSource* images = nullptr;
  std::weak_ptr<StateStore> states;

  // State of the composite view whose body is being made, by a name that is unique in that view. It
  // lives as long as the view keeps its place in the tree. Only within `body`; elsewhere the result
  // belongs to nobody and redraws nothing.
  template <typename T>
  State<T> state(const std::string& name, T initial) const {
    const auto store = states.lock();
    if (!store) {
      return State<T>(
          std::make_shared<StateCell<T>>(std::move(initial), std::weak_ptr<HostLink>()));
    }
    std::shared_ptr<StateCellBase>& cell = store->cells[name];
    if (!cell) {
      cell = std::make_shared<StateCell<T>>(std::move(initial), link);
    }
    auto typed = std::dynamic_pointer_cast<StateCell<T>>(cell);
    require(typed != nullptr, "one name was used for state of two types");
    return State<T>(std::move(typed));
  }

  bool isDark() const { return appearance.dark; }
  bool hasImage(const std::string& name) const {
    return images != nullptr && images->image(name).has_value();
  }

  // Runs the change; everything that looks different afterwards travels along the curve.
  void animate(const Curve& curve, const std::function<void()>& change) const;
  // Closes what the view is shown in.
  void dismiss() const;
};

}  // namespace orvane::ui
