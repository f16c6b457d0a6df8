// What views inherit from those around them: the appearance, attributes of text, the access to
// state and host.
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
#include "Orvane/ui/draw/Truncation.hpp"
#include "Orvane/ui/host/HostServices.hpp"
#include "Orvane/ui/views/KeyboardShortcut.hpp"
#include "Orvane/ui/views/State.hpp"

namespace orvane::ui {

/// How the lines of a text are made.
struct TextStyle {
  Font font = Font::body();
  HorizontalAlignment alignment = HorizontalAlignment::leading;
  /// 0 means any number of lines.
  int lineLimit = 0;
  TruncationMode truncationMode = TruncationMode::tail;
  /// The fraction of its width by which a single line may be tightened before it is truncated.
  double tightening = 0;
  /// In points; without one, the font's own.
  std::optional<double> lineHeight;

  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

struct Environment {
  Appearance appearance;
  Color foreground = Color::primary();
  TextStyle text;
  bool isEnabled = true;
  /// Activates the first control that inherits it.
  std::optional<KeyboardShortcut> shortcut;

  /// Set by the host.
  std::weak_ptr<HostLink> link;
  const ImageSource* images = nullptr;
  std::weak_ptr<StateStore> states;

  /// State of the composite view whose body is running, with a name that is unique in that view. It
  /// lives as long as the view keeps its identity. Outside of `body` the process ends: a handler
  /// captures the State instead.
  template <typename T>
  [[nodiscard]] State<T> state(const std::string& name, T initial) const {
    const auto store = states.lock();
    require(store && store->isBodyRunning, "Environment::state() is for the body of a view");
    std::any& slot = store->cells[name];
    if (!slot.has_value()) {
      slot = std::make_shared<StateCell<T>>(StateCell<T>{std::move(initial), link});
    }
    const auto* cell = std::any_cast<std::shared_ptr<StateCell<T>>>(&slot);
    require(cell != nullptr, "one name is used for state of two types");
    return State<T>(*cell);
  }

  [[nodiscard]] bool isDark() const { return appearance.dark; }
  [[nodiscard]] bool hasImage(const std::string& name) const {
    return images != nullptr && images->imageSize(name).has_value();
  }

  /// Runs the change and updates the host; the resulting changes are animated along the curve.
  void animate(const Curve& curve, const std::function<void()>& change) const;
  /// Closes the window or panel that shows the view.
  void dismiss() const;
};

}  // namespace orvane::ui
