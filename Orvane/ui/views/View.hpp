// View: an immutable description of a part of the interface, cheap to make and to copy. Composite
// views are structs with `View body(const Environment&) const` and convert to View implicitly.
// Modifiers chain; each applies to the result of those before it. docs/ui.md introduces the kit.
#pragma once

#include <any>
#include <concepts>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Rect.hpp"
#include "Orvane/ui/views/Element.hpp"
#include "Orvane/ui/views/Environment.hpp"
#include "Orvane/ui/views/Transition.hpp"

namespace orvane::ui {

class View;

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double defaultPadding = 16;

template <typename T>
concept CompositeView = requires(const T& component, const Environment& environment) {
  { component.body(environment) } -> std::convertible_to<View>;
};

/// A flexible frame. A width or height fixes that side. Otherwise the frame follows its content;
/// with a maximum, which may be infinity, it grows to the proposal.
struct FrameBounds {
  std::optional<double> width = std::nullopt;
  std::optional<double> height = std::nullopt;
  std::optional<double> maximumWidth = std::nullopt;
  std::optional<double> maximumHeight = std::nullopt;
  Alignment alignment = Alignment::center();
};

class [[nodiscard]] View {
 public:
  /// An empty view: shows nothing, takes no room, and gets no spacing in a stack.
  View() = default;
  explicit View(std::shared_ptr<const Element> element) : element_(std::move(element)) {}
  template <CompositeView Component>
  View(Component component);  // NOLINT: composites are meant to convert

  [[nodiscard]] bool isEmpty() const { return !element_; }
  [[nodiscard]] const std::shared_ptr<const Element>& element() const { return element_; }
  [[nodiscard]] const std::string& explicitId() const { return id_; }

  // Layout. Lengths are points; an alignment places content in a frame of another size.
  View padding(double distance) const;
  View padding(const Edges& edges) const;
  View frame(double width, double height, Alignment alignment = Alignment::center()) const;
  View frame(const FrameBounds& bounds) const;
  View width(double width, Alignment alignment = Alignment::center()) const;
  View height(double height, Alignment alignment = Alignment::center()) const;
  /// Grows to the proposed width, at most to the maximum.
  View maximumWidth(double maximum = infinity, Alignment alignment = Alignment::center()) const;
  /// Ignores the proposal and takes the ideal size, so a text is never truncated.
  View fixedSize() const;
  /// Ignores the proposed height and takes the ideal height for the proposed width.
  View fixedSizeVertical() const;

  // Layers. Each is proposed the size of the view and does not change it.
  View background(const View& background, Alignment alignment = Alignment::center()) const;
  View overlay(const View& overlay, Alignment alignment = Alignment::center()) const;

  // Drawing. These do not change the layout.
  View opacity(double opacity) const;
  View offset(double x, double y) const;
  /// About the centre.
  View scale(double factor) const;
  /// The view casts the shadow as one picture.
  View shadow(const Shadow& shadow) const;
  View clip(const Shape& shape) const;

  // The environment, inherited by all views below.
  View foreground(const Color& color) const;
  View font(const Font& font) const;
  View lineLimit(int lines) const;
  View truncationMode(TruncationMode mode) const;
  /// A text of one line that is too wide by at most this fraction of its width is set more tightly
  /// instead of being truncated. The default is AppKit's.
  View allowsTightening(double fraction = 0.05) const;
  /// Lines of text have this height in points, in every script, and the baseline that a Latin line
  /// centred in this height has. Zero and less restore the font's own height.
  View lineHeight(double points) const;
  View textAlignment(HorizontalAlignment alignment) const;
  View disabled(bool isDisabled) const;

  // Input. Handlers may destroy the view, and even its host.
  /// Called when the pointer enters (true) and leaves (false), for disabled views, too.
  View onHover(std::function<void(bool isInside)> handler) const;
  View tooltip(std::string text) const;
  View keyboardShortcut(KeyboardShortcut shortcut) const;
  /// Called when a drag begins; without a request there is no drag. The host sets the frame.
  View dragSource(std::function<std::optional<DragRequest>()> request) const;
  /// Scrolls the surrounding scroll views to the view when it appears or becomes wanted, and when a
  /// wanted view gets another place among its siblings: at once if it appears, otherwise along the
  /// curve of the update.
  View scrollsIntoView(bool isWanted, std::size_t place = 0) const;

  // Change over time.
  /// Whenever the value changes, the changes of the same update in this view follow the curve.
  /// Without a curve they apply at once, even inside another animation.
  template <typename Value>
  View animation(const std::optional<Curve>& curve, Value value) const {
    return animationOn(curve, std::move(value), [](const std::any& a, const std::any& b) {
      const auto* first = std::any_cast<Value>(&a);
      const auto* second = std::any_cast<Value>(&b);
      return first != nullptr && second != nullptr && *first == *second;
    });
  }
  /// How the view appears and disappears during an animation. It must be the view that is added or
  /// removed, or its only content.
  View transition(const Transition& transition) const;
  /// The view keeps its node when its place among its siblings changes.
  View id(std::string id) const;
  /// Called after the layout in which the view appeared.
  View onAppear(std::function<void()> action) const;

  // Semantics. These change the one element in the view, or make a group of several.
  View accessibilityLabel(std::string label) const;
  View accessibilityRole(Role role) const;
  View accessibilityValue(std::string value) const;
  View accessibilitySelected(bool isSelected) const;
  View accessibilityHidden() const;

 private:
  View animationOn(const std::optional<Curve>& curve, std::any value,
                   bool (*areEqual)(const std::any&, const std::any&)) const;

  std::shared_ptr<const Element> element_;
  std::string id_;
};

/// The view that `content` returns, if the condition holds; otherwise an empty view, so that the
/// siblings keep their places. `content` is only called if the condition holds.
template <typename Content>
requires std::is_invocable_r_v<View, const Content&> View when(bool condition,
                                                               const Content& content) {
  return condition ? View(content()) : View();
}

/// One view per item, each with the item's id, so that it keeps its node when items are added,
/// removed and moved. `identify` returns an item's id as a string; `make` returns the view of an
/// item and its index.
template <typename Items, typename Identify, typename Make>
std::vector<View> forEach(const Items& items, const Identify& identify, const Make& make) {
  std::vector<View> views;
  for (const auto& item : items) {
    views.push_back(View(make(item, views.size())).id(identify(item)));
  }
  return views;
}

/// For Element::build: makes the result of the function the only child of the node. The environment
/// that the function gets has the node's state.
void buildBody(Node& node, BuildPass& pass,
               const std::function<View(const Environment&)>& makeBody);

template <typename Component>
class ComponentElement final : public Element {
 public:
  explicit ComponentElement(Component component) : component_(std::move(component)) {}

  void build(Node& node, BuildPass& pass) const override {
    buildBody(node, pass, [this](const Environment& own) { return component_.body(own); });
  }

 private:
  Component component_;
};

template <CompositeView Component>
View::View(Component component)
    : element_(std::make_shared<ComponentElement<Component>>(std::move(component))) {}

}  // namespace orvane::ui
