// Draws on a canvas that records only texts.
#include "tests/support/TextBoxes.hpp"

#include <cstdio>
#include <limits>
#include <utility>
#include <vector>

#include "tests/support/RecordingCanvas.hpp"

namespace orvane {

namespace {

class TextCanvas : public ui::RecordingCanvas {
 public:
  TextCanvas(std::string name, ui::Point origin, ui::TextMeasurer& measurer)
      : name_(std::move(name)),
        transforms_{ui::Transform::translation(origin)},
        measurer_(measurer) {}

  [[nodiscard]] const std::string& boxes() const { return boxes_; }

  void save() override { transforms_.emplace_back(transforms_.back()); }
  void restore() override { transforms_.pop_back(); }
  void transform(const ui::Transform& inner) override {
    transforms_.back() = transforms_.back().after(inner);
  }
  void text(const std::string& line, const ui::Font& font, const ui::Rgba& /*color*/,
            ui::Point baseline) override {
    const ui::TextLayout layout =
        measurer_.layout(line, font, std::numeric_limits<double>::infinity(), {});
    const ui::Transform& now = transforms_.back();
    const ui::Point place = now.apply(ui::Point{baseline.x, baseline.y - layout.ascent});
    char box[128];
    std::snprintf(box, sizeof(box), "\t%.1f\t%.1f\t%.1f\t%.1f\n", place.x, place.y,
                  layout.size().width * now.scale, layout.size().height * now.scale);
    boxes_ += name_ + "\t" + line + box;
  }

 private:
  std::string name_;
  std::vector<ui::Transform> transforms_;
  ui::TextMeasurer& measurer_;
  std::string boxes_;
};

}  // namespace

std::string textBoxes(const std::string& name, const ui::ViewHost& host, ui::Point origin,
                      ui::TextMeasurer& measurer) {
  TextCanvas canvas(name, origin, measurer);
  host.paint(canvas, {0, 0, host.size().width, host.size().height});
  return canvas.boxes();
}

}  // namespace orvane
