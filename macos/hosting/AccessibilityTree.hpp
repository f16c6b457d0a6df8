// Exposes the view kit's semantics tree to VoiceOver and other assistive technologies.
#pragma once

#include <cstdint>
#include <functional>
#include <map>

#import <AppKit/AppKit.h>

#include "Orvane/ui/views/Semantics.hpp"

/// One element of the tree. It stays the same object while its view keeps its identity, so that
/// VoiceOver keeps its cursor on it.
@interface OrvaneAccessibilityElement : NSAccessibilityElement
@end

namespace orvane::appkit {

/// Main thread only.
class AccessibilityTree {
 public:
  using Action = std::function<void(std::uint64_t id)>;

  /// `view` shows the tree and is held weakly; `press` runs the action of an element, `focus` gives
  /// it the keyboard.
  AccessibilityTree(NSView* _Nonnull view, Action press, Action focus);

  /// Applies the changes and posts notifications of changed values, removed elements and a new
  /// focus. The root stands for the view, so only its children have elements.
  void update(const ui::SemanticsNode& root);

  [[nodiscard]] NSArray* _Nonnull children() const { return children_; }
  /// The element with the keyboard focus; nil when none has it.
  [[nodiscard]] OrvaneAccessibilityElement* _Nullable focused() const { return focused_; }
  /// The innermost element at a point on the screen; nil when there is none.
  [[nodiscard]] id _Nullable elementAt(NSPoint screenPoint) const;

 private:
  using Elements = std::map<std::uint64_t, OrvaneAccessibilityElement*>;

  NSArray* _Nonnull elementsFor(const std::vector<ui::SemanticsNode>& nodes, id _Nonnull parent,
                                Elements& present);

  __weak NSView* _Nullable view_;
  Action press_;
  Action focus_;
  Elements elements_;
  NSArray* _Nonnull children_ = @[];
  OrvaneAccessibilityElement* _Nullable focused_ = nil;
};

}  // namespace orvane::appkit
