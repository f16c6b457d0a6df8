// TextRun is a line of text as drawn, with its place on the panel.
#pragma once

#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "Orvane/ui/draw/Canvas.hpp"
#include "Orvane/ui/draw/TextMeasurer.hpp"
#include "Orvane/ui/host/ViewHost.hpp"

namespace orvane {

struct TextRun {
  std::string line;
  ui::Font font;
  ui::Rgba color;
  /// In points from the panel's top left corner, from the top of its capitals to below its
  /// baseline.
  ui::Rect frame;
  /// The frame within all clips.
  ui::Rect visible;
  /// In points from the panel's top.
  double baseline = 0;
  /// The vertical scale of its font.
  double scale = 1;
  /// The product of the opacities of the layers around it.
  double opacity = 1;
};

inline ui::TextLayout wholeLine(const std::string& line, const ui::Font& font,
                                ui::TextMeasurer& measurer) {
  return measurer.layout(line, font, std::numeric_limits<double>::infinity(), {0});
}

/// A canvas that only collects texts.
class TextCollector : public ui::Canvas {
 public:
  explicit TextCollector(ui::TextMeasurer& measurer, double scaleFactor = 1)
      : measurer_(measurer), scaleFactor_(scaleFactor) {}

  [[nodiscard]] const std::vector<TextRun>& runs() const { return runs_; }

  double scaleFactor() const override { return scaleFactor_; }
  void save() override { states_.push_back(state_); }
  void restore() override {
    state_ = states_.back();
    states_.pop_back();
  }
  void transform(const ui::Transform& transform) override {
    state_.transform = state_.transform.after(transform);
  }
  void clip(const ui::Shape& shape) override {
    state_.clip = state_.clip.intersection(state_.transform.apply(shape.rect));
  }
  void fill(const ui::Shape&, const ui::Paint&) override {}
  void stroke(const ui::Shape&, const ui::Paint&, double) override {}
  void shadow(const ui::Shape&, const ui::PaintShadow&) override {}
  void beginLayer(const ui::Rect&, double opacity, const std::optional<ui::PaintShadow>&) override {
    save();
    state_.opacity *= opacity;
  }
  void endLayer() override { restore(); }
  void text(const std::string& line, const ui::Font& font, const ui::Rgba& color,
            ui::Point baseline) override {
    constexpr double capitals = 0.75;
    constexpr double below = 0.2;
    const ui::Rect local{baseline.x, baseline.y - capitals * font.size,
                         wholeLine(line, font, measurer_).size().width,
                         (capitals + below) * font.size};
    const ui::Rect frame = state_.transform.apply(local);
    runs_.push_back({line, font, color, frame, frame.intersection(state_.clip),
                     state_.transform.apply(baseline).y, state_.transform.scale, state_.opacity});
  }
  void image(const std::string&, const ui::Rect&) override {}
  void symbol(const std::string&, const ui::Font&, const ui::Rgba&, const ui::Rect&) override {}

 private:
  struct State {
    ui::Transform transform;
    ui::Rect clip{-1e6, -1e6, 2e6, 2e6};
    double opacity = 1;
  };

  ui::TextMeasurer& measurer_;
  double scaleFactor_;
  State state_;
  std::vector<State> states_;
  std::vector<TextRun> runs_;
};

/// One line for each line of text that the host draws: the name, the text and its box (left, top,
/// width, height, in points to a tenth), separated by tabs; to compare the layout of a view on two
/// platforms. `origin` is the host's position.
inline std::string textBoxes(const std::string& name, const ui::ViewHost& host, ui::Point origin,
                             ui::TextMeasurer& measurer) {
  TextCollector collector(measurer);
  host.paint(collector, {0, 0, host.size().width, host.size().height});
  std::string boxes;
  for (const TextRun& run : collector.runs()) {
    const ui::TextLayout layout = wholeLine(run.line, run.font, measurer);
    char box[128];
    std::snprintf(box, sizeof(box), "\t%.1f\t%.1f\t%.1f\t%.1f\n", origin.x + run.frame.x,
                  origin.y + run.baseline - layout.ascent * run.scale, run.frame.width,
                  layout.size().height * run.scale);
    boxes += name + "\t" + run.line + box;
  }
  return boxes;
}

}  // namespace orvane
