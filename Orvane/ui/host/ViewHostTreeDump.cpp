// The retained tree as text. The kind of a node is the name of its element's class, which the
// compiler knows.
#include <charconv>
#include <cstdio>
#include <map>
#include <string_view>
#include <typeinfo>

#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

using Elements = std::map<std::uint64_t, const SemanticsNode*>;

// The last identifier, without "Element": Text for the class TextElement, and StatusPill for
// ComponentElement<StatusPill>. In a type's name (of the Itanium C++ ABI) each identifier follows
// its length.
std::string kindOf(const Element& element) {
  const std::string name = typeid(element).name();
  const char* const end = name.data() + name.size();
  std::string_view kind;
  for (const char* at = name.data(); at < end;) {
    std::size_t length = 0;
    const auto [identifier, error] = std::from_chars(at, end, length);
    if (error != std::errc{} || length > static_cast<std::size_t>(end - identifier)) {
      ++at;
      continue;
    }
    if (length > 1) {
      kind = std::string_view(identifier, length);
    }
    at = identifier + length;
  }
  constexpr std::string_view suffix = "Element";
  return std::string(kind.substr(0, kind.size() - (kind.ends_with(suffix) ? suffix.size() : 0)));
}

void collectElements(const SemanticsNode& element, Elements& elements) {
  elements[element.id] = &element;
  for (const SemanticsNode& child : element.children) {
    collectElements(child, elements);
  }
}

std::string described(const SemanticsNode& element) {
  return roleName(element.role) + (element.label.empty() ? "" : " \"" + element.label + "\"") +
         (element.isFocused ? " focused" : "");
}

std::string traceOf(const Node& node) {
  std::string words;
  const auto add = [&](bool holds, const char* word) {
    if (holds) {
      words += std::string(" ") + word;
    }
  };
  add(node.trace.isMade, "made");
  add(!node.trace.isMade && node.trace.hasNewAttributes, "changed");
  add(node.trace.isMoved, "moved");
  add(node.trace.isResized, "resized");
  add(node.isMoving, "animating");
  add(node.trace.isDamaged, "damaged");
  add(node.trace.isDrawn, "drawn");
  return words;
}

void dump(const Node& node, std::size_t depth, const char* state, const Elements& elements,
          std::string& text) {
  const Rect frame = node.hostFrame();
  char place[128];
  std::snprintf(place, sizeof place, " #%llu (%g %g %g %g)",
                static_cast<unsigned long long>(node.id), frame.x, frame.y, frame.width,
                frame.height);
  text += std::string(depth * 2, ' ') + kindOf(*node.element) + place + state + traceOf(node);
  const auto element = elements.find(node.id);
  if (element != elements.end()) {
    text += " | " + described(*element->second);
  }
  text += "\n";
  for (const auto& child : node.children) {
    dump(*child, depth + 1, state, elements, text);
  }
  for (const auto& child : node.leaving) {
    dump(*child, depth + 1, " leaving", elements, text);
  }
}

}  // namespace

std::string ViewHost::dumpTree() const {
  std::string text;
  if (tree_.root) {
    const SemanticsNode tree = semantics();
    Elements elements;
    for (const SemanticsNode& child : tree.children) {
      collectElements(child, elements);
    }
    dump(*tree_.root, 0, "", elements, text);
  }
  return text;
}

}  // namespace orvane::ui
