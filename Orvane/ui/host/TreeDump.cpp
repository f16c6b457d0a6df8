// The names of kinds come from the compiler, without namespaces and "Element".
#include "Orvane/ui/host/TreeDump.hpp"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <typeinfo>

#include <cxxabi.h>

#include "Orvane/ui/host/RetainedTree.hpp"
#include "Orvane/ui/host/SemanticsPass.hpp"
#include "Orvane/ui/views/Node.hpp"

namespace orvane::ui {

namespace {

using Elements = std::map<std::uint64_t, const SemanticsNode*>;

// "orvane::ui::(anonymous namespace)::TextElement" is Text, and the element of a composite view,
// "orvane::ui::ComponentElementOf<orvane::StatusPill>", is StatusPill.
std::string kindOf(const Element& element) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> readable(
      abi::__cxa_demangle(typeid(element).name(), nullptr, nullptr, &status), &std::free);
  std::string name = readable ? readable.get() : typeid(element).name();
  name = name.substr(0, name.find_last_not_of('>') + 1);
  name = name.substr(name.find_last_of(":<") + 1);
  const std::size_t suffix = name.rfind("Element");
  return suffix == std::string::npos ? name : name.substr(0, suffix);
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

std::string dumpTree(const RetainedTree& tree, std::uint64_t focusedId) {
  std::string text;
  if (tree.root) {
    const SemanticsNode semantics = semanticsTree(*tree.root, tree.now, focusedId);
    Elements elements;
    for (const SemanticsNode& child : semantics.children) {
      collectElements(child, elements);
    }
    dump(*tree.root, 0, "", elements, text);
  }
  return text;
}

}  // namespace orvane::ui
