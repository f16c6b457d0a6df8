// Exposes the view kit's semantics tree to VoiceOver and other assistive technologies.
#include "macos/hosting/AccessibilityTree.hpp"

#include <utility>

#include "macos/appkit/Strings.hpp"

@implementation OrvaneAccessibilityElement {
 @public
  __weak NSView* _view;
  NSRect _frameInView;
  BOOL _canBePressed;
  BOOL _canBeFocused;
  BOOL _isFocused;
  std::function<void()> _press;
  std::function<void()> _focus;
}

// The host view is not an element itself, so the parent is its nearest ancestor that is one.
- (id)accessibilityParent {
  id const parent = super.accessibilityParent;
  return parent == nil ? nil : NSAccessibilityUnignoredAncestor(parent);
}

// Computed on demand, because the window may have moved.
- (NSRect)accessibilityFrame {
  NSView* const view = _view;
  return view == nil ? NSZeroRect : NSAccessibilityFrameInView(view, _frameInView);
}

- (BOOL)accessibilityPerformPress {
  // Pressing may remove the element.
  const std::function<void()> press = _press;
  if (_canBePressed && press) {
    press();
  }
  return _canBePressed;
}

- (BOOL)isAccessibilityFocused {
  return _isFocused;
}

- (void)setAccessibilityFocused:(BOOL)focused {
  const std::function<void()> focus = _focus;
  if (focused && _canBeFocused && focus) {
    focus();
  }
}

- (BOOL)isAccessibilitySelectorAllowed:(SEL)selector {
  if (selector == @selector(accessibilityPerformPress)) {
    return _canBePressed;
  }
  return selector == @selector(setAccessibilityFocused:)
             ? _canBeFocused
             : [super isAccessibilitySelectorAllowed:selector];
}

@end

namespace orvane::appkit {
namespace {

NSAccessibilityRole roleFrom(ui::Role role) {
  switch (role) {
    case ui::Role::group:
      return NSAccessibilityGroupRole;
    case ui::Role::staticText:
      return NSAccessibilityStaticTextRole;
    case ui::Role::heading:
      // AppKit's header has no constant for it.
      return @"AXHeading";
    case ui::Role::image:
      return NSAccessibilityImageRole;
    case ui::Role::button:
      return NSAccessibilityButtonRole;
    case ui::Role::toggle:
      return NSAccessibilityCheckBoxRole;
    case ui::Role::radioButton:
      return NSAccessibilityRadioButtonRole;
    case ui::Role::popUpButton:
      return NSAccessibilityPopUpButtonRole;
    case ui::Role::scrollArea:
      return NSAccessibilityScrollAreaRole;
  }
  return NSAccessibilityUnknownRole;
}

std::string textOf(const ui::SemanticsNode& node) {
  return node.value.empty() ? node.label : node.label + ", " + node.value;
}

/// The value of a switch or a radio button is a number, whether it is on. Static text is its
/// element's value, without a label.
id valueFrom(const ui::SemanticsNode& node) {
  switch (node.role) {
    case ui::Role::toggle:
      return @(node.value == "1");
    case ui::Role::radioButton:
      return @(node.isSelected);
    case ui::Role::staticText:
      return foundationString(textOf(node));
    default:
      return node.value.empty() ? nil : foundationString(node.value);
  }
}

NSString* labelFrom(const ui::SemanticsNode& node) {
  switch (node.role) {
    case ui::Role::staticText:
      return nil;
    case ui::Role::radioButton:
      // Its value is a number, so the value text goes into the label.
      return foundationString(textOf(node));
    default:
      return foundationString(node.label);
  }
}

void describe(OrvaneAccessibilityElement* element, const ui::SemanticsNode& node) {
  element.accessibilityRole = roleFrom(node.role);
  element.accessibilitySubrole = node.role == ui::Role::toggle ? NSAccessibilitySwitchSubrole : nil;
  element.accessibilityLabel = labelFrom(node);
  element.accessibilityValue = valueFrom(node);
  element.accessibilityEnabled = node.isEnabled;
  element.accessibilitySelected = node.isSelected;
  element->_isFocused = node.isFocused;
  element->_canBeFocused = node.isFocusable && node.isEnabled;
  element->_frameInView =
      NSMakeRect(node.frame.x, node.frame.y, node.frame.width, node.frame.height);
  element->_canBePressed = node.isControl && node.isEnabled;
}

}  // namespace

AccessibilityTree::AccessibilityTree(NSView* view, Action press, Action focus)
    : view_(view), press_(std::move(press)), focus_(std::move(focus)) {}

NSArray* AccessibilityTree::elementsFor(const std::vector<ui::SemanticsNode>& nodes, id parent,
                                        Elements& present) {
  NSMutableArray* const elements = [[NSMutableArray alloc] init];
  for (const ui::SemanticsNode& node : nodes) {
    const auto known = elements_.find(node.id);
    const bool isNew = known == elements_.end();
    OrvaneAccessibilityElement* const element =
        isNew ? [[OrvaneAccessibilityElement alloc] init] : known->second;
    const id valueBefore = isNew ? nil : element.accessibilityValue;
    present.emplace(node.id, element);
    element->_view = view_;
    element->_press = [press = press_, id = node.id] { press(id); };
    element->_focus = [focus = focus_, id = node.id] { focus(id); };
    element.accessibilityParent = parent;
    describe(element, node);
    const id value = element.accessibilityValue;
    if (!isNew && value != valueBefore && ![value isEqual:valueBefore]) {
      NSAccessibilityPostNotification(element, NSAccessibilityValueChangedNotification);
    }
    if (node.isFocused) {
      focused_ = element;
    }
    element.accessibilityChildren = elementsFor(node.children, element, present);
    [elements addObject:element];
  }
  return elements;
}

void AccessibilityTree::update(const ui::SemanticsNode& root) {
  NSView* const view = view_;
  if (view == nil) {
    return;
  }
  Elements present;
  OrvaneAccessibilityElement* const focusedBefore = focused_;
  focused_ = nil;
  children_ = elementsFor(root.children, view, present);
  const Elements before = std::exchange(elements_, std::move(present));
  for (const auto& [id, element] : before) {
    if (!elements_.contains(id)) {
      NSAccessibilityPostNotification(element, NSAccessibilityUIElementDestroyedNotification);
    }
  }
  if (focused_ != nil && focused_ != focusedBefore) {
    NSAccessibilityPostNotification(focused_, NSAccessibilityFocusedUIElementChangedNotification);
  }
}

id AccessibilityTree::elementAt(NSPoint screenPoint) const {
  id found = nil;
  NSArray* level = children_;
  // What is drawn last is on top; an element's children take precedence over the element.
  for (BOOL goesOn = YES; goesOn;) {
    goesOn = NO;
    for (OrvaneAccessibilityElement* element in level.reverseObjectEnumerator) {
      if (NSPointInRect(screenPoint, element.accessibilityFrame)) {
        found = element;
        level = element.accessibilityChildren;
        goesOn = YES;
        break;
      }
    }
  }
  return found;
}

}  // namespace orvane::appkit
