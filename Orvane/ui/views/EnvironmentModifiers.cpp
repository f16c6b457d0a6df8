// The modifiers that change the environment of a view.
#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/views/Modifiers.hpp"

namespace orvane::ui {

namespace {

class EnvironmentElement final : public ModifierElement {
 public:
  EnvironmentElement(View content, std::function<void(Environment&)> change)
      : ModifierElement(std::move(content)), change_(std::move(change)) {}

  void build(Node& node, BuildPass& pass) const override {
    const auto changed = std::make_shared<Environment>(*node.environment);
    change_(*changed);
    pass.children(node, {&content(), 1}, changed);
  }

 private:
  std::function<void(Environment&)> change_;
};

}  // namespace

View View::environment(std::function<void(Environment&)> change) const {
  return modified<EnvironmentElement>(*this, std::move(change));
}

View View::foreground(const Color& color) const {
  return environment([color](Environment& inherited) { inherited.foreground = color; });
}

View View::font(const Font& font) const {
  return environment([font](Environment& inherited) { inherited.font = font; });
}

View View::lineLimit(int lines) const {
  return environment([lines](Environment& inherited) { inherited.lineLimit = lines; });
}

View View::lineHeight(double points) const {
  return environment([points](Environment& inherited) {
    inherited.lineHeight = points > 0 ? std::optional<double>(points) : std::nullopt;
  });
}

View View::truncationMode(TruncationMode mode) const {
  return environment([mode](Environment& inherited) { inherited.truncationMode = mode; });
}

View View::allowsTightening(double fraction) const {
  return environment([fraction](Environment& inherited) { inherited.tightening = fraction; });
}

View View::textAlignment(TextAlignment alignment) const {
  return environment([alignment](Environment& inherited) { inherited.textAlignment = alignment; });
}

View View::disabled(bool isDisabled) const {
  return environment([isDisabled](Environment& inherited) {
    inherited.isEnabled = inherited.isEnabled && !isDisabled;
  });
}

View View::keyboardShortcut(KeyboardShortcut shortcut) const {
  return environment(
      [shortcut = std::move(shortcut)](Environment& inherited) { inherited.shortcut = shortcut; });
}

}  // namespace orvane::ui
