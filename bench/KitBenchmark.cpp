// The cost of the view kit: describing, laying out and painting a panel, after a change and after a
// hover; and the memory per view.
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "Orvane/model/OrvaneModel.hpp"
#include "Orvane/panels/main/ContentView.hpp"
#include "Orvane/ui/draw/Color.hpp"
#include "Orvane/ui/host/BuildPass.hpp"
#include "Orvane/ui/host/LayoutPass.hpp"
#include "Orvane/ui/host/PresentPass.hpp"
#include "Orvane/ui/host/ViewHost.hpp"
#include "Orvane/windows/OrvaneWindow.hpp"
#include "bench/KitPanel.hpp"
#include "desk/canvas/CairoCanvas.hpp"
#include "desk/canvas/ImageSurface.hpp"
#include "desk/machine/MachineScope.hpp"
#include "desk/windows/ContentPicture.hpp"
#include "showroom/desktop/StandardDisplays.hpp"

namespace orvane::bench {
namespace {

constexpr double scale = 2;

/// A panel to be measured.
class Subject {
 public:
  Subject() = default;
  Subject(const Subject&) = delete;
  Subject& operator=(const Subject&) = delete;
  virtual ~Subject() = default;
  [[nodiscard]] virtual ui::Size size() const = 0;
  [[nodiscard]] virtual ui::View view() = 0;
  /// In the middle of a control with a hover state.
  [[nodiscard]] virtual ui::Point hoverPlace() const = 0;
};

class SyntheticPanel : public Subject {
 public:
  [[nodiscard]] ui::Size size() const override { return {KitPanel::width, KitPanel::height}; }
  [[nodiscard]] ui::View view() override { return KitPanel{++revision_ % 10}; }
  [[nodiscard]] ui::Point hoverPlace() const override { return {100, 150}; }

 private:
  int revision_ = 0;
};

/// The application's main panel, with three displays.
class MainPanel : public Subject {
 public:
  MainPanel() {
    for (int display = 0; display < 3; ++display) {
      showroom::attachNextStandardDisplay(scope_.machine());
    }
    scope_.machine().process.start();
    model_ = std::make_unique<OrvaneModel>();
    model_->refreshDisplays();
  }
  ~MainPanel() override { model_.reset(); }
  MainPanel(const MainPanel&) = delete;
  MainPanel& operator=(const MainPanel&) = delete;

  [[nodiscard]] ui::Size size() const override {
    return {OrvaneWindow::contentSize.width, OrvaneWindow::contentSize.height};
  }
  [[nodiscard]] ui::View view() override {
    return ContentView{.model = model_.get(),
                       .actions = {.close = [] {}, .minimise = [] {}, .showSettings = [] {}}};
  }
  [[nodiscard]] ui::Point hoverPlace() const override { return {320, 230}; }

 private:
  desk::MachineScope scope_;
  std::unique_ptr<OrvaneModel> model_;
};

/// A panel in an idle host, and a surface to paint it on.
class Stage {
 public:
  explicit Stage(Subject& subject)
      : host_(resources_.hostPlatform()), surface_(desk::imageSurface(subject.size(), scale)) {
    host_.setSize(subject.size());
    host_.setRoot([&subject](const ui::Environment&) { return subject.view(); });
    rest();
    host_.takeDirtyRects();
  }

  ui::ViewHost& host() { return host_; }
  void rest() {
    constexpr double longerThanAnyAnimation = 10;
    for (int time = 0; time < 3; ++time) {
      now_ += longerThanAnyAnimation;
      host_.tick(now_);
    }
  }
  void nextFrame() {
    now_ += 1.0 / 60;
    host_.tick(now_);
  }
  void paintAll() {
    desk::CairoCanvas canvas(surface_.get(), scale, resources_);
    host_.paint(canvas, {0, 0, host_.size().width, host_.size().height});
  }
  /// Draws what has changed, as a window does.
  void showFrame() { picture_.of(host_, scale, resources_); }
  [[nodiscard]] long long areas() const { return picture_.drawnAreaCount(); }

 private:
  desk::DrawingResources resources_;
  ui::ViewHost host_;
  desk::SurfacePointer surface_;
  desk::ContentPicture picture_;
  double now_ = 0;
};

/// The retained tree without a host, so that each pass can be timed separately.
class BareTree {
 public:
  explicit BareTree(desk::DrawingResources& resources)
      : text_(resources.shaper),
        images_(resources.hostPlatform().images),
        environment_(std::make_shared<ui::Environment>()) {}

  void build(Subject& subject) {
    ui::BuildPass pass({now_, colors_, madeNodes_, damage_, std::nullopt});
    pass.root(root_, subject.view(), environment_);
  }
  void layOut(const ui::Size& size) {
    ui::LayoutPass pass{text_, images_, now_};
    pass.placeAligned(*root_, size, ui::Alignment::center(), ui::Proposal::of(size));
  }
  void present() {
    ui::present(*root_, now_, damage_);
    damage_.take();
  }

  [[nodiscard]] std::size_t nodes() {
    std::size_t count = 0;
    ui::visitNodes(*root_, [&](ui::Node&) { ++count; });
    return count;
  }

 private:
  ui::TextMeasurer& text_;
  ui::ImageSource images_;
  ui::ColorResolver colors_ = ui::standardColor;
  std::shared_ptr<const ui::Environment> environment_;
  std::uint64_t madeNodes_ = 0;
  ui::Damage damage_;
  std::unique_ptr<ui::Node> root_;
  double now_ = 0;
};

double microsecondsOf(const std::function<void()>& work) {
  const auto began = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - began;
  return took.count();
}

/// Rebuild and reconcile, lay out, present: all passes after a change, without painting.
template <typename Panel>
void kitUpdate(benchmark::State& state) {
  Panel subject;
  Stage stage(subject);
  for (auto _ : state) {
    stage.host().invalidate();
    stage.host().layoutIfNeeded();
  }
}

/// The same, pass by pass, in microseconds.
template <typename Panel>
void kitStages(benchmark::State& state) {
  Panel subject;
  desk::DrawingResources resources;
  BareTree tree(resources);
  double build = 0;
  double layout = 0;
  double present = 0;
  tree.build(subject);
  tree.layOut(subject.size());
  for (auto _ : state) {
    build += microsecondsOf([&] { tree.build(subject); });
    layout += microsecondsOf([&] { tree.layOut(subject.size()); });
    present += microsecondsOf([&] { tree.present(); });
  }
  const auto average = benchmark::Counter::kAvgIterations;
  state.counters["nodes"] = static_cast<double>(tree.nodes());
  state.counters["rebuild_us"] = benchmark::Counter(build, average);
  state.counters["layout_us"] = benchmark::Counter(layout, average);
  state.counters["present_us"] = benchmark::Counter(present, average);
}

/// Paints the whole panel at two pixels per point.
template <typename Panel>
void kitPaint(benchmark::State& state) {
  Panel subject;
  Stage stage(subject);
  stage.paintAll();
  for (auto _ : state) {
    stage.paintAll();
  }
}

/// The pointer enters or leaves a control: updates and paints one frame, as a window does.
template <typename Panel>
void kitHover(benchmark::State& state) {
  Panel subject;
  Stage stage(subject);
  stage.showFrame();
  const auto before = stage.areas();
  bool isInside = false;
  for (auto _ : state) {
    isInside = !isInside;
    stage.host().pointerMoved(isInside ? subject.hoverPlace() : ui::Point{2, 2});
    stage.nextFrame();
    stage.showFrame();
  }
  state.counters["areas"] = benchmark::Counter(static_cast<double>(stage.areas() - before),
                                               benchmark::Counter::kAvgIterations);
}

/// The heap memory per node of a laid-out tree: nodes, descriptions, broken text lines.
template <typename Panel>
void kitMemory(benchmark::State& state) {
  constexpr std::size_t trees = 32;
  Panel subject;
  desk::DrawingResources resources;
  double bytesPerNode = 0;
  for (auto _ : state) {
    std::vector<std::unique_ptr<BareTree>> all;
    std::size_t nodes = 0;
    // The first tree fills the shared caches.
    for (std::size_t tree = 0; tree <= trees; ++tree) {
      all.push_back(std::make_unique<BareTree>(resources));
    }
    const auto grow = [&](std::size_t index) {
      all[index]->build(subject);
      all[index]->layOut(subject.size());
      all[index]->present();
      return all[index]->nodes();
    };
    grow(0);
    const std::size_t before = mallinfo2().uordblks;
    for (std::size_t tree = 1; tree <= trees; ++tree) {
      nodes += grow(tree);
    }
    bytesPerNode = static_cast<double>(mallinfo2().uordblks - before) / static_cast<double>(nodes);
  }
  state.counters["bytes_per_node"] = bytesPerNode;
}

BENCHMARK(kitUpdate<SyntheticPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitUpdate<MainPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitStages<SyntheticPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitStages<MainPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitPaint<SyntheticPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitPaint<MainPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitHover<SyntheticPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitHover<MainPanel>)->Unit(benchmark::kMicrosecond);
BENCHMARK(kitMemory<SyntheticPanel>)->Iterations(1);
BENCHMARK(kitMemory<MainPanel>)->Iterations(1);

}  // namespace
}  // namespace orvane::bench
