// The modifiers that change the environment of a view, and its calls of the host.
#include "Orvane/ui/views/Environment.hpp"

#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

using Change = std::function<void(Environment&)>;

struct EnvironmentElement final : ModifierElement<Change> {
  void build(Node& node, BuildPass& pass) const override {
    const auto changed = std::make_shared<Environment>(*node.environment);
    value(*changed);
    node.environment = changed;
    ModifierElement::build(node, pass);
  }
};

View changed(const View& view, Change change) {
  return modified<EnvironmentElement>(view, std::move(change));
}

}  // namespace

View View::foreground(const Color& color) const {
  return changed(*this, [color](Environment& inherited) { inherited.foreground = color; });
}

View View::font(const Font& font) const {
  return changed(*this, [font](Environment& inherited) { inherited.text.font = font; });
}

View View::lineLimit(int lines) const {
  return changed(*this, [lines](Environment& inherited) { inherited.text.lineLimit = lines; });
}

View View::lineHeight(double points) const {
  return changed(*this, [points](Environment& inherited) {
    inherited.text.lineHeight = points > 0 ? std::optional<double>(points) : std::nullopt;
  });
}

View View::truncationMode(TruncationMode mode) const {
  return changed(*this, [mode](Environment& inherited) { inherited.text.truncationMode = mode; });
}

View View::allowsTightening(double fraction) const {
  return changed(*this,
                 [fraction](Environment& inherited) { inherited.text.tightening = fraction; });
}

View View::textAlignment(HorizontalAlignment alignment) const {
  return changed(*this,
                 [alignment](Environment& inherited) { inherited.text.alignment = alignment; });
}

View View::disabled(bool isDisabled) const {
  return changed(*this, [isDisabled](Environment& inherited) {
    inherited.isEnabled = inherited.isEnabled && !isDisabled;
  });
}

View View::keyboardShortcut(KeyboardShortcut shortcut) const {
  return changed(*this, [shortcut = std::move(shortcut)](Environment& inherited) {
    inherited.shortcut = shortcut;
  });
}

void Environment::animate(const Curve& curve, const std::function<void()>& change) const {
  // The change may destroy the view that holds this environment.
  const std::weak_ptr<HostLink> keptLink = link;
  const Curve keptCurve = curve;
  if (const std::function<void()> keptChange = change) {
    keptChange();
  }
  if (const auto host = keptLink.lock()) {
    host->invalidate(keptCurve);
  }
}

void Environment::dismiss() const {
  if (const auto host = link.lock()) {
    host->call(&HostServices::dismiss);
  }
}

}  // namespace orvane::ui
