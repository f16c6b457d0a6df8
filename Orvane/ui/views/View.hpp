// A view is a cheap value that describes; it owns no state. Composite views are plain structs with
// `View body(const Environment&) const`, and convert to View by themselves. Modifiers chain, and
// each one applies to the result of those before it.
#pragma once

#include <concepts>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/draw/Font.hpp"
#include "Orvane/ui/layout/Edges.hpp"
#include "Orvane/ui/layout/UnitPoint.hpp"
#include "Orvane/ui/views/Element.hpp"
#include "Orvane/ui/views/Environment.hpp"
#include "Orvane/ui/views/EquatableValue.hpp"
#include "Orvane/ui/views/Transition.hpp"

namespace orvane::ui {

class View;

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double defaultPadding = 16;
inline constexpr double defaultSpacing = 8;

template <typename T>
concept CompositeView = requires(const T& component, const Environment& environment) {
  { component.body(environment) } -> std::convertible_to<View>;
};

// A flexible frame. A width or height fixes that side. Otherwise the frame follows its content
// within the bounds; with a maximum it grows to what is proposed, at most to the maximum (which may
// be infinity).
struct FrameBounds {
  std::optional<double> width = std::nullopt;
  std::optional<double> height = std::nullopt;
  std::optional<double> minimumWidth = std::nullopt;
  std::optional<double> maximumWidth = std::nullopt;
  std::optional<double> minimumHeight = std::nullopt;
  std::optional<double> maximumHeight = std::nullopt;
  Alignment alignment = Alignment::center();
};

class View {
 public:
  // A view that shows nothing, takes no room, and gets no spacing in a stack.
  View() = default;
  explicit View(std::shared_ptr<const Element> element) : element_(std::move(element)) {}
  template <CompositeView Component>
  View(Component component);  // NOLINT: composites are meant to convert

  bool isEmpty() const { return !element_; }
  const std::shared_ptr<const Element>& element() const { return element_; }
  const std::string& explicitId() const { return id_; }

  // Layout. Lengths are points; alignments place the content in a frame larger or smaller than it.
  View padding(double distance = defaultPadding) const;
  View padding(const Edges& edges) const;
  View frame(double width, double height, Alignment alignment = Alignment::center()) const;
  View frame(const FrameBounds& bounds) const;
  View width(double width, Alignment alignment = Alignment::center()) const;
  View height(double height, Alignment alignment = Alignment::center()) const;
  // Grows to the proposed width, at most to the maximum.
  View maximumWidth(double maximum = infinity, Alignment alignment = Alignment::center()) const;
  // Takes its ideal size in these directions, whatever is proposed: a text wraps and is never cut.
  View fixedSize(bool horizontal = true, bool vertical = true) const;
  View fixedSizeVertical() const { return fixedSize(false, true); }
  // Served before siblings of a lower priority in a stack; 0 by default.
  View layoutPriority(double priority) const;

  // Layers, each proposed the size of the view.
  View background(const View& background, Alignment alignment = Alignment::center()) const;
  View overlay(const View& overlay, Alignment alignment = Alignment::center()) const;

  // Drawing; none of these changes the layout.
  View opacity(double opacity) const;
  View offset(double x, double y) const;
  View scale(double factor, UnitPoint anchor = UnitPoint::center()) const;
  // The shadow cast by everything in the view as one picture.
  View shadow(const Shadow& shadow) const;
  View clip(const Shape& shape) const;

  // Inherited by everything below.
  View foreground(const Color& color) const;
  View font(const Font& font) const;
  View lineLimit(int lines) const;
  View truncationMode(TruncationMode mode) const;
  // A text of one line that is too wide by no more than this fraction of its width moves its
  // characters closer together instead of being cut. The default is AppKit's.
  View allowsTightening(double fraction = 0.05) const;
  // The lines of texts are so many points high, whatever script they are written in, and each has
  // its baseline where a Latin line in the middle of this height has it. Zero and less leave them
  // as they are.
  View lineHeight(double points) const;
  View textAlignment(TextAlignment alignment) const;
  View disabled(bool isDisabled) const;
  View environment(std::function<void(Environment&)> change) const;

  // Input. Handlers may destroy the view, and even its host.
  // Told when the pointer comes (true) and goes (false); disabled views hear of it too.
  View onHover(std::function<void(bool isInside)> handler) const;
  View tooltip(std::string text) const;
  View keyboardShortcut(KeyboardShortcut shortcut) const;
  View dragSource(std::function<std::optional<DragItem>()> item) const;
  // Without hit testing the pointer passes through the view and everything in it.
  View hitTesting(bool isAllowed) const;

  // What scrolls around the view brings it into sight when it comes, or later becomes, wanted, and
  // when a wanted one has got another place among its siblings: at once where it comes so, else
  // along the animation of the update.
  View scrollsIntoView(bool isWanted, std::size_t place = 0) const;

  // Change over time. When the value differs from the one before, what changed in this view with
  // the same update travels along the curve, and without a curve is there at once, whatever
  // animation the view stands in.
  template <typename Value>
  View animation(const std::optional<Curve>& curve, Value value) const {
    return animationOn(curve, EquatableValue(std::move(value)));
  }
  // How the view comes and goes when an animation is under way; it must be the view that is added
  // or removed, or its only content.
  View transition(const Transition& transition) const;
  // The same identity means the same node, wherever the view stands among its siblings.
  View id(std::string id) const;
  // After the layout in which the view came.
  View onAppear(std::function<void()> action) const;

  // Semantics. They apply to the one element in the view, or make a group of several.
  View accessibilityLabel(std::string label) const;
  View accessibilityRole(Role role) const;
  View accessibilityValue(std::string value) const;
  View accessibilitySelected(bool isSelected) const;
  View accessibilityHidden(bool isHidden = true) const;

 private:
  View animationOn(const std::optional<Curve>& curve, EquatableValue value) const;

  std::shared_ptr<const Element> element_;
  std::string id_;
};

// The view while the condition holds; otherwise an empty place, so that siblings keep theirs.
inline View when(bool condition, const View& view) {
  return condition ? view : View();
}

// The element of a composite view.
class ComponentElement : public Element {
 public:
  void build(Node& node, Builder& builder) const override;

 private:
  virtual View body(const Environment& environment) const = 0;
};

template <typename Component>
class ComponentElementOf final : public ComponentElement {
 public:
  explicit ComponentElementOf(Component component) : component_(std::move(component)) {}

 private:
  View body(const Environment& environment) const override { return component_.body(environment); }

  Component component_;
};

template <CompositeView Component>
View::View(Component component)
    : element_(std::make_shared<ComponentElementOf<Component>>(std::move(component))) {}

}  // namespace orvane::ui
